#pragma once

#include "ui/editor/MappingEditorFilePanels.hpp"

namespace quenby {

/// The system's open and save panels, each run on its own (not as a sheet). Main thread only.
class SystemMappingEditorFilePanels final : public MappingEditorFilePanels {
public:
  void chooseApplication(Answer answer) override;
  void chooseExportDestination(const std::string& suggestedName, Answer answer) override;
  void chooseImportFile(Answer answer) override;
};

} // namespace quenby
