#include "support/ApplicationBundleFixture.hpp"

#include "simulation/LibplistPropertyListEncoder.hpp"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace quenby {

namespace fs = std::filesystem;

ApplicationBundleFixture::ApplicationBundleFixture()
    : directory_("quenby-bundles-"), root_(FileURL::fromPath(directory_.path())) {}

FileURL ApplicationBundleFixture::url(std::string_view path) const {
  return FileURL::fromPath(absolute(path));
}

std::string ApplicationBundleFixture::absolute(std::string_view path) const {
  if (path.starts_with('/')) {
    return std::string(path);
  }
  return root_.path() + "/" + std::string(path);
}

FileURL ApplicationBundleFixture::createBundle(std::string_view path,
                                               std::string_view bundleIdentifier,
                                               std::string_view name) {
  writeInfoPropertyList(path, PropertyListValue::Dictionary{
                                  {"CFBundleIdentifier", bundleIdentifier},
                                  {"CFBundleName", name},
                                  {"CFBundleIconFile", kIconFileName},
                                  {"CFBundlePackageType", "APPL"},
                              });
  writeFile(std::string(path) + "/Contents/Resources/" + std::string(kIconFileName), "icns");
  return url(path);
}

void ApplicationBundleFixture::writeInfoPropertyList(std::string_view bundlePath,
                                                     const PropertyListValue& infoPropertyList) {
  const auto bytes = LibplistPropertyListEncoder::encodeBinary(infoPropertyList);
  writeFile(std::string(bundlePath) + "/Contents/Info.plist",
            std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

void ApplicationBundleFixture::writeFile(std::string_view path, std::string_view contents) {
  const fs::path file = absolute(path);
  fs::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream.write(contents.data(), static_cast<std::streamsize>(contents.size()));
  if (!stream) {
    throw std::runtime_error("cannot write " + file.string());
  }
}

void ApplicationBundleFixture::touch(std::string_view path) {
  const fs::path file = absolute(path);
  fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(1));
}

void ApplicationBundleFixture::remove(std::string_view path) { fs::remove_all(absolute(path)); }

void ApplicationBundleFixture::move(std::string_view from, std::string_view to) {
  const fs::path destination = absolute(to);
  fs::create_directories(destination.parent_path());
  fs::rename(absolute(from), destination);
}

} // namespace quenby
