#pragma once

#include "ui/editor/MappingEditorWindowMaking.hpp"

namespace quenby {

/// Makes the AppKit mapping editor window over the view model. Main thread only; no state.
class SystemMappingEditorWindowFactory final : public MappingEditorWindowMaking {
public:
  [[nodiscard]] std::unique_ptr<MappingEditorPresenting>
  makeMappingEditorWindow(MappingEditorViewModel& viewModel) override;
};

} // namespace quenby
