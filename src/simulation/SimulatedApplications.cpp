#include "simulation/SimulatedApplications.hpp"

#include "simulation/LibplistPropertyListEncoder.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace quenby {
namespace {

namespace fs = std::filesystem;

constexpr const char* kRegistered = "com.apple.LaunchServices.applicationRegistered";
constexpr const char* kUnregistered = "com.apple.LaunchServices.applicationUnregistered";

fs::path infoPath(const FileURL& bundle) {
  return fs::path(bundle.path()) / "Contents" / "Info.plist";
}

void writeFile(const fs::path& path, const std::vector<std::uint8_t>& bytes) {
  // Written beside and renamed over, as installers and editors do: the file is replaced whole.
  const fs::path temporary = path.string() + ".writing";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    if (!out) {
      throw std::runtime_error("cannot write " + path.string());
    }
  }
  fs::rename(temporary, path);
}

std::vector<std::uint8_t> readFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw std::runtime_error("cannot read " + path);
  }
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void makeBundleFolders(const FileURL& bundle) {
  std::error_code error;
  fs::create_directories(fs::path(bundle.path()) / "Contents" / "Resources", error);
  if (error) {
    throw std::runtime_error("cannot create " + bundle.path() + ": " + error.message());
  }
}

} // namespace

SimulatedApplications::SimulatedApplications(std::shared_ptr<const PropertyListDecoding> decoder,
                                             SimulatedLaunchServices& launchServices,
                                             SimulatedDistributedNotificationCenter& notifications)
    : decoder_(std::move(decoder)), launchServices_(launchServices), notifications_(notifications) {
}

void SimulatedApplications::install(const FileURL& bundle, const std::string& bundleIdentifier,
                                    const std::string& name) {
  makeBundleFolders(bundle);
  const PropertyListValue info =
      PropertyListValue::Dictionary{{"CFBundleIdentifier", bundleIdentifier},
                                    {"CFBundleName", name},
                                    {"CFBundleExecutable", name},
                                    {"CFBundlePackageType", "APPL"},
                                    {"CFBundleIconFile", "AppIcon"},
                                    {"CFBundleShortVersionString", "1.0"}};
  writeFile(infoPath(bundle), LibplistPropertyListEncoder::encodeBinary(info));
  registerBundle(bundle);
}

void SimulatedApplications::installWithPropertyList(const FileURL& bundle,
                                                    const std::string& propertyListFile) {
  const auto bytes = readFile(propertyListFile);
  makeBundleFolders(bundle);
  writeFile(infoPath(bundle), bytes);
  registerBundle(bundle);
}

void SimulatedApplications::remove(const FileURL& bundle) {
  std::error_code error;
  if (!fs::exists(bundle.path(), error)) {
    throw std::runtime_error("no bundle at " + bundle.path());
  }
  fs::remove_all(bundle.path(), error);
  launchServices_.unregisterApplications(bundle);
  notifications_.post(kUnregistered);
}

void SimulatedApplications::move(const FileURL& from, const FileURL& to) {
  std::error_code error;
  if (!fs::exists(from.path(), error)) {
    throw std::runtime_error("no bundle at " + from.path());
  }
  fs::create_directories(fs::path(to.path()).parent_path(), error);
  fs::rename(from.path(), to.path(), error);
  if (error) {
    throw std::runtime_error("cannot move " + from.path() + ": " + error.message());
  }
  launchServices_.moveApplications(from, to);
  notifications_.post(kRegistered);
}

void SimulatedApplications::touch(const FileURL& bundle) {
  const fs::path info = infoPath(bundle);
  writeFile(info, readFile(info.string()));
}

std::optional<PropertyListValue>
SimulatedApplications::infoPropertyList(const FileURL& bundle) const {
  std::error_code error;
  if (!fs::is_regular_file(infoPath(bundle), error)) {
    return std::nullopt;
  }
  const auto bytes = readFile(infoPath(bundle).string());
  auto decoded = decoder_->decode(bytes);
  if (!decoded) {
    return std::nullopt;
  }
  return std::move(decoded).value();
}

std::optional<std::string> SimulatedApplications::bundleIdentifier(const FileURL& bundle) const {
  const auto info = infoPropertyList(bundle);
  const PropertyListValue* identifier = info ? info->find("CFBundleIdentifier") : nullptr;
  if (identifier == nullptr || identifier->string() == nullptr || identifier->string()->empty()) {
    return std::nullopt;
  }
  return *identifier->string();
}

std::optional<std::string> SimulatedApplications::bundleName(const FileURL& bundle) const {
  const auto info = infoPropertyList(bundle);
  for (const char* key : {"CFBundleDisplayName", "CFBundleName"}) {
    const PropertyListValue* name = info ? info->find(key) : nullptr;
    if (name != nullptr && name->string() != nullptr && !name->string()->empty()) {
      return *name->string();
    }
  }
  return std::nullopt;
}

void SimulatedApplications::registerBundle(const FileURL& bundle) {
  if (const auto identifier = bundleIdentifier(bundle)) {
    launchServices_.registerApplication(*identifier, bundle);
  }
  notifications_.post(kRegistered);
}

} // namespace quenby
