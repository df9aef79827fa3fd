#pragma once

#include "simulation/ScenarioEventRecorder.hpp"
#include "ui/editor/MappingEditorWindowMaking.hpp"

#include <memory>
#include <string>

namespace quenby {

/// Opens the mapping editor by printing an `editor` effect with its letter.
class SimulatedMappingEditor final : public MappingEditorPresenting {
public:
  explicit SimulatedMappingEditor(const ScenarioEventRecorder& recorder) : recorder_(recorder) {}

  void open(char letter) override {
    recorder_.emit("editor", {{"letter", std::string(1, letter)}});
  }
  void close() override {}

private:
  const ScenarioEventRecorder& recorder_;
};

/// Builds the simulated mapping editor; the recorder must outlive what it builds.
class SimulatedMappingEditorFactory final : public MappingEditorWindowMaking {
public:
  explicit SimulatedMappingEditorFactory(const ScenarioEventRecorder& recorder)
      : recorder_(recorder) {}

  [[nodiscard]] std::unique_ptr<MappingEditorPresenting>
  makeMappingEditorWindow(MappingEditorViewModel&) override {
    return std::make_unique<SimulatedMappingEditor>(recorder_);
  }

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
