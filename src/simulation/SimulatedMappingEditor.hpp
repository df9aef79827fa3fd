#pragma once

#include "simulation/ScenarioEventRecorder.hpp"
#include "ui/editor/MappingEditorPresenting.hpp"

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

} // namespace quenby
