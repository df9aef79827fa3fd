#pragma once

#include "base/FileSystem.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/mapping/KeyboardMappingStore.hpp"
#include "ui/editor/ApplicationPicker.hpp"
#include "ui/editor/MappingEditorFilePanels.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// The mapping editor window: the 26 letters with their applications, the application picker,
/// the question asked before an application moves from one letter to another, and export and
/// import of the letter mappings. It follows the letter store's snapshots, so a change made
/// elsewhere (the HUD, another launch's repair, the catalog finding a moved application) shows at
/// once.
///
/// Main thread only; every collaborator must outlive it.
class MappingEditorViewModel {
public:
  struct Row {
    enum class Status { unassigned, found, missing, ambiguous };

    char letter = 'A';
    /// Empty when unassigned.
    std::string applicationName;
    /// Where the application is, or was last seen; empty when unassigned.
    std::string location;
    Status status = Status::unassigned;
    /// The status in words.
    std::string statusText;

    friend bool operator==(const Row&, const Row&) = default;
  };

  /// Asked before an application leaves the letter it has for another one.
  struct MoveConfirmation {
    std::string message;
    std::string moveButton;
    std::string cancelButton;
  };

  /// Told once, in an alert: what an export or import did.
  struct Notice {
    std::string title;
    std::string message;
  };

  /// Largest file an import reads; an export of 26 records is a few kilobytes.
  static constexpr std::uint64_t kMaximumImportBytes = 1024 * 1024;

  MappingEditorViewModel(KeyboardMappingStore& store,
                         BundleApplicationMetadataReader& metadataReader,
                         const InstalledApplicationCatalog& catalog,
                         MappingEditorFilePanels& filePanels, FileSystem& fileSystem,
                         const Localizer& localizer);
  MappingEditorViewModel(const MappingEditorViewModel&) = delete;
  MappingEditorViewModel& operator=(const MappingEditorViewModel&) = delete;

  /// A to Z.
  [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
  [[nodiscard]] char selectedLetter() const { return selectedLetter_; }
  /// Selects `letter` (upper case, 'A'–'Z'), as the window opens at it.
  void open(char letter) { select(letter); }
  void select(char letter);

  /// Assigns `application` to `letter`. When the application already has another letter, it
  /// asks first: nothing changes until `confirmMove`.
  void assign(char letter, const FileURL& application);
  [[nodiscard]] const std::optional<MoveConfirmation>& moveConfirmation() const {
    return moveConfirmation_;
  }
  void confirmMove();
  void cancelMove();
  void remove(char letter);
  /// Why the last change was refused; empty after one that succeeded.
  [[nodiscard]] const std::string& errorText() const { return errorText_; }

  /// Reads the installed applications afresh for the picker.
  void openPicker() {
    picker_.open();
    changed();
  }
  void setPickerSearchText(std::string_view text) {
    picker_.setSearchText(text);
    changed();
  }
  [[nodiscard]] const ApplicationPicker& picker() const { return picker_; }
  /// Assigns the picker's application at `index` (of those shown) to the selected letter.
  void assignPickedApplication(std::size_t index);
  /// Lets the person pick any application on disk for the selected letter.
  void chooseApplication();

  /// Saves every letter mapping to a file the person chooses.
  void exportMappings();
  /// Adds the letter mappings of a file the person chooses; see `LetterMappingImport`.
  void importMappings();
  [[nodiscard]] const std::optional<Notice>& notice() const { return notice_; }
  void dismissNotice();

  /// `handler` hears of every change to anything above, until the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }
  [[nodiscard]] const Localizer& localizer() const { return localizer_; }

private:
  struct PendingMove {
    char letter;
    FileURL application;
  };

  void rebuildRows(const KeyboardMappingSnapshot& snapshot);
  void apply(char letter, const FileURL& application);
  void exportTo(const FileURL& destination);
  void importFrom(const FileURL& source);
  void refuseImport(std::string why);
  void changed() { observers_.notify(); }

  KeyboardMappingStore& store_;
  BundleApplicationMetadataReader& metadataReader_;
  MappingEditorFilePanels& filePanels_;
  FileSystem& fileSystem_;
  const Localizer& localizer_;
  ApplicationPicker picker_;
  std::vector<Row> rows_;
  char selectedLetter_ = 'A';
  std::optional<PendingMove> pendingMove_;
  std::optional<MoveConfirmation> moveConfirmation_;
  std::string errorText_;
  std::optional<Notice> notice_;
  ObserverList<> observers_;
  ObservationToken storeToken_;
  LifetimeGuard guard_;
};

} // namespace quenby
