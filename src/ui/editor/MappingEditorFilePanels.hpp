#pragma once

#include "base/FileURL.hpp"

#include <functional>
#include <optional>
#include <string>

namespace quenby {

/// The system's file dialogs, as the mapping editor uses them. Each answers once, on the main
/// thread, with the chosen location or nothing when the person cancelled; it may answer before
/// returning.
class MappingEditorFilePanels {
public:
  using Answer = std::function<void(std::optional<FileURL>)>;

  virtual ~MappingEditorFilePanels() = default;
  /// An application bundle anywhere on disk.
  virtual void chooseApplication(Answer answer) = 0;
  /// Where to save a JSON file, offering `suggestedName`.
  virtual void chooseExportDestination(const std::string& suggestedName, Answer answer) = 0;
  /// A JSON file to read.
  virtual void chooseImportFile(Answer answer) = 0;
};

/// Every dialog is cancelled at once.
class InertMappingEditorFilePanels final : public MappingEditorFilePanels {
public:
  void chooseApplication(Answer answer) override { answer(std::nullopt); }
  void chooseExportDestination(const std::string&, Answer answer) override { answer(std::nullopt); }
  void chooseImportFile(Answer answer) override { answer(std::nullopt); }
};

} // namespace quenby
