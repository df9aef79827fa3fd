// Threading: main thread only.
//
// Lifetime: the returned window keeps a reference to the view model, which must outlive it. The
// factory keeps nothing.
//
// Guarantee: nothing AppKit is made until the window first opens.

#include "ui/editor/macos/SystemMappingEditorWindowFactory.hpp"

#include "ui/editor/macos/SystemMappingEditorWindow.hpp"

namespace quenby {

std::unique_ptr<MappingEditorPresenting>
SystemMappingEditorWindowFactory::makeMappingEditorWindow(MappingEditorViewModel& viewModel) {
  return std::make_unique<SystemMappingEditorWindow>(viewModel);
}

} // namespace quenby
