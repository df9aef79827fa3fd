// Installed applications and the Dock.

#include "app/AppRuntime.hpp"
#include "simulation/DockPositionJSON.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

namespace quenby {
namespace {

using Arguments = ScenarioLineRegistry::Arguments;

void appLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 4, "app PATH BUNDLE_ID [NAME]");
  const FileURL bundle = context.diskURL(arguments[1]);
  const std::string name =
      arguments.size() == 4 ? arguments[3] : bundle.lastPathComponentWithoutExtension();
  context.world().applications().install(bundle, arguments[2], name);
}

void dockApplicationLine(ScenarioContext& context, const Arguments& arguments) {
  const bool isRunningOnly = arguments[1] == "running-only";
  if (isRunningOnly) {
    expectArgumentCount(arguments, 3, 3, "dock running-only PATH");
  } else {
    expectArgumentCount(arguments, 3, 5, "dock app PATH [BUNDLE_ID|-] [LABEL]");
  }
  SimulatedApplications& applications = context.world().applications();
  const FileURL bundle = context.diskURL(arguments[2]);
  std::optional<std::string> identifier = applications.bundleIdentifier(bundle);
  if (arguments.size() >= 4) {
    identifier = arguments[3] == "-" ? std::nullopt : std::optional(arguments[3]);
  }
  const std::string label =
      arguments.size() == 5
          ? arguments[4]
          : applications.bundleName(bundle).value_or(bundle.lastPathComponentWithoutExtension());
  context.world().dock().appendApplication(bundle, identifier, label, isRunningOnly);
}

void dockLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 5,
                      "dock app|spacer|folder|url|document|running-only|plist|"
                      "clear|missing|invalid|sync-fails …");
  const std::string& kind = arguments[1];
  SimulatedDock& dock = context.world().dock();
  const auto needs = [&arguments](std::size_t count, const char* usage) {
    expectArgumentCount(arguments, count, count, usage);
  };
  if (kind == "app" || kind == "running-only") {
    dockApplicationLine(context, arguments);
  } else if (kind == "spacer") {
    needs(2, "dock spacer");
    dock.appendSpacer();
  } else if (kind == "folder") {
    needs(3, "dock folder PATH");
    dock.appendFolder(context.diskURL(arguments[2]));
  } else if (kind == "url") {
    needs(3, "dock url URL");
    dock.appendWebLink(arguments[2]);
  } else if (kind == "document") {
    needs(3, "dock document PATH");
    dock.appendDocument(context.diskURL(arguments[2]));
  } else if (kind == "plist") {
    needs(3, "dock plist FILE");
    dock.useFile(context.resolveScriptFile(arguments[2]), context.world().diskRoot());
  } else if (kind == "clear") {
    needs(2, "dock clear");
    dock.clear();
  } else if (kind == "missing") {
    needs(2, "dock missing");
    dock.removePersistentApps();
  } else if (kind == "invalid") {
    needs(2, "dock invalid");
    dock.makePersistentAppsInvalid();
  } else if (kind == "sync-fails") {
    needs(3, "dock sync-fails on|off");
    dock.setSynchronizationFails(parseOnOff(arguments[2], "dock sync-fails on|off"));
  } else {
    throw ScenarioLineError{"unknown Dock item \"" + kind + "\""};
  }
}

void writeState(const ScenarioContext& context, AppRuntime* runtime,
                nlohmann::ordered_json& fields) {
  if (runtime == nullptr) {
    return;
  }
  const ShortcutsAssembly& shortcuts = runtime->shortcuts();
  const NumberMappingSnapshot& current = shortcuts.dockNumberProvider().current();
  auto dock = nlohmann::ordered_json::array();
  for (int position = NumberMappingEntries::kFirstPosition;
       position <= NumberMappingEntries::kLastPosition; ++position) {
    dock.push_back(
        dockPositionJSON(position, current.entries.at(position), [&context](const FileURL& url) {
          return context.world().scriptPath(url.path());
        }));
  }
  fields["dock"] = std::move(dock);
  fields["dockRevision"] = current.revision;
  fields["catalogRevision"] = shortcuts.mappingSnapshot().applicationCatalogRevision;
}

} // namespace

void registerShortcutsScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("app", appLine);
  registry.addLine("app-plist", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 3, 3, "app-plist PATH FILE");
    context.world().applications().installWithPropertyList(context.diskURL(arguments[1]),
                                                           context.resolveScriptFile(arguments[2]));
  });
  registry.addLine("app-remove", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "app-remove PATH");
    context.world().applications().remove(context.diskURL(arguments[1]));
  });
  registry.addLine("app-move", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 3, 3, "app-move FROM TO");
    context.world().applications().move(context.diskURL(arguments[1]),
                                        context.diskURL(arguments[2]));
  });
  registry.addLine("app-touch", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 2, 2, "app-touch PATH");
    context.world().applications().touch(context.diskURL(arguments[1]));
  });
  registry.addLine("dock", dockLine);
  registry.addLine("dock-notify", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 1, 1, "dock-notify");
    context.world().notificationCenter()->post("com.apple.dock.prefchanged");
  });
  registry.addStateFields(writeState);
}

} // namespace quenby
