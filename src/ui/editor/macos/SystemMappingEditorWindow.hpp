#pragma once

#include "base/ObservationToken.hpp"
#include "ui/editor/MappingEditorPresenting.hpp"
#include "ui/editor/MappingEditorViewModel.hpp"

#include <memory>

namespace quenby {

/// The mapping editor as an AppKit window: a table of the 26 letters, the picker as a sheet, the
/// move question and the export and import reports as alert sheets. It shows the view model and
/// forwards every click to it. Main thread only; the view model must outlive it.
class SystemMappingEditorWindow final : public MappingEditorPresenting {
public:
  explicit SystemMappingEditorWindow(MappingEditorViewModel& viewModel);
  SystemMappingEditorWindow(const SystemMappingEditorWindow&) = delete;
  SystemMappingEditorWindow& operator=(const SystemMappingEditorWindow&) = delete;
  ~SystemMappingEditorWindow() override;

  void open(char letter) override;
  void close() override;

private:
  /// The Objective-C objects, kept out of this header.
  struct Objects;

  MappingEditorViewModel& viewModel_;
  std::unique_ptr<Objects> objects_;
  ObservationToken changes_;
};

} // namespace quenby
