#pragma once

#include "ui/editor/MappingEditorPresenting.hpp"

#include <memory>

namespace quenby {

class MappingEditorViewModel;

/// Builds the mapping editor window over its view model (which outlives it), once per runtime.
class MappingEditorWindowMaking {
public:
  virtual ~MappingEditorWindowMaking() = default;
  [[nodiscard]] virtual std::unique_ptr<MappingEditorPresenting>
  makeMappingEditorWindow(MappingEditorViewModel& viewModel) = 0;
};

/// Builds an editor that never opens.
class InertMappingEditorWindowFactory final : public MappingEditorWindowMaking {
public:
  [[nodiscard]] std::unique_ptr<MappingEditorPresenting>
  makeMappingEditorWindow(MappingEditorViewModel&) override {
    return std::make_unique<InertMappingEditorPresenter>();
  }
};

} // namespace quenby
