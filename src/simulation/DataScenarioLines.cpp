// Preferences and the screens their placement rule reads.

#include "app/AppRuntime.hpp"
#include "simulation/PropertyListJSON.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

namespace quenby {
namespace {

using Arguments = ScenarioLineRegistry::Arguments;

void screenLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 5, 10, "screen X Y W H [VX VY VW VH] [main]");
  Arguments numbers(arguments.begin() + 1, arguments.end());
  const bool isMain = numbers.back() == "main";
  if (isMain) {
    numbers.pop_back();
  }
  if (numbers.size() != 4 && numbers.size() != 8) {
    throw ScenarioLineError{"usage: screen X Y W H [VX VY VW VH] [main]"};
  }
  const Rect frame{parseReal(numbers[0]), parseReal(numbers[1]), parseReal(numbers[2]),
                   parseReal(numbers[3])};
  const Rect visible = numbers.size() == 8 ? Rect{parseReal(numbers[4]), parseReal(numbers[5]),
                                                  parseReal(numbers[6]), parseReal(numbers[7])}
                                           : frame;
  if (frame.width <= 0 || frame.height <= 0) {
    throw ScenarioLineError{"a screen needs a positive width and height"};
  }
  SimulatedWorld& world = context.world();
  auto& screens = world.screens();
  if (world.screensAreDefault() && !context.isLaunched()) {
    screens.clear();
  }
  world.markScreensCustomised();
  if (isMain) {
    for (auto& screen : screens) {
      screen.isMain = false;
    }
  }
  screens.push_back({frame, visible, isMain || screens.empty()});
}

void prefLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 3, "pref NAME VALUE");
  const auto runtime = context.requireRuntime("pref");
  const auto changed = runtime->data().preferences().setRaw(arguments[1], arguments[2]);
  if (!changed) {
    throw ScenarioLineError{changed.error()};
  }
}

} // namespace

void registerDataScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("screen", screenLine);
  registry.addLine("mouse", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 3, 3, "mouse X Y");
    context.world().mouse() = Point{parseReal(arguments[1]), parseReal(arguments[2])};
  });
  registry.addLine("pref", prefLine);
  registry.addLine("reset-usage", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 1, 1, "reset-usage");
    context.requireRuntime("reset-usage")->data().usage().reset();
  });
  registry.addStateFields(
      [](const ScenarioContext&, AppRuntime* runtime, nlohmann::ordered_json& fields) {
        if (runtime == nullptr) {
          fields["preferences"] = nullptr;
          return;
        }
        const UsageTotals& totals = runtime->data().usage().lifetimeTotals();
        auto usage = nlohmann::ordered_json::object();
        for (const UsageCategory category : kUsageCategories) {
          usage[std::string(usageCategoryRawValue(category))] = totals[category];
        }
        fields["usage"] = std::move(usage);
        auto preferences = nlohmann::ordered_json::object();
        for (const auto& [name, value] : runtime->data().preferences().rawValues()) {
          preferences[name] = propertyListJSON(value);
        }
        fields["preferences"] = std::move(preferences);
      });
}

} // namespace quenby
