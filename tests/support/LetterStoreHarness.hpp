#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/mapping/KeyboardMappingStore.hpp"
#include "support/ScriptedApplicationCatalogMonitor.hpp"
#include "support/ScriptedApplicationResolver.hpp"
#include "support/WriteDroppingKeyValueStore.hpp"

#include <memory>
#include <string>
#include <vector>

namespace quenby {

/// A Dock provider whose snapshots the test publishes.
class ScriptedNumberMappingProvider final : public NumberMappingProviding {
public:
  void start() override {}
  void stop() override {}
  [[nodiscard]] const NumberMappingSnapshot& current() const override { return current_; }
  void setOnSnapshotChanged(SnapshotHandler handler) override { handler_ = std::move(handler); }

  void publish(NumberMappingSnapshot snapshot) {
    current_ = std::move(snapshot);
    if (handler_) {
      handler_(current_);
    }
  }
  [[nodiscard]] bool isHeard() const { return static_cast<bool>(handler_); }

private:
  NumberMappingSnapshot current_ = NumberMappingSnapshot::placeholder(EnglishLocalizer());
  SnapshotHandler handler_;
};

/// Keeps every failure it is handed, repeats included.
class RecordingConfigurationReporter final : public ConfigurationFailureReporting {
public:
  void report(const ConfigurationFailure& failure) override { failures.push_back(failure); }
  std::vector<ConfigurationFailure> failures;
};

class FixedWallClock final : public WallClock {
public:
  [[nodiscard]] WallTime now() const override { return time; }
  WallTime time = WallTime(std::chrono::milliseconds(1'772'874'000'123));
};

/// Everything a letter store needs, scripted, with user defaults that can refuse writes.
struct LetterStoreHarness {
  [[nodiscard]] std::unique_ptr<KeyboardMappingStore> makeStore() {
    return std::make_unique<KeyboardMappingStore>(numberProvider, defaults, clock, resolver,
                                                  metadataReader, &catalogMonitor, reporter,
                                                  localizer);
  }
  /// Stores `document` as the letter mappings' data, as an earlier launch would have.
  void presetDocument(std::string_view document) {
    defaults.preset("letterMappings.v1", PropertyListValue::Data(document.begin(), document.end()));
  }
  /// The letter mappings' stored data as text; empty when there is none or it is not data.
  [[nodiscard]] std::string storedDocument() const {
    const auto value = defaults.object("letterMappings.v1");
    const auto* bytes = value ? value->data() : nullptr;
    return bytes ? std::string(bytes->begin(), bytes->end()) : std::string();
  }
  [[nodiscard]] std::vector<std::string> failureIds() const {
    std::vector<std::string> ids;
    for (const auto& failure : reporter.failures) {
      ids.push_back(failure.id);
    }
    return ids;
  }

  ScriptedNumberMappingProvider numberProvider;
  WriteDroppingKeyValueStore defaults;
  FixedWallClock clock;
  ScriptedApplicationResolver resolver;
  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader metadataReader{fileSystem, decoder};
  ScriptedApplicationCatalogMonitor catalogMonitor;
  RecordingConfigurationReporter reporter;
  EnglishLocalizer localizer;
};

} // namespace quenby
