#include "ui/editor/MappingEditorViewModel.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"
#include "ui/editor/LetterMappingImport.hpp"
#include "ui/editor/MappingEditorTexts.hpp"

#include <algorithm>
#include <cctype>

namespace quenby {
namespace {

bool sameApplication(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

} // namespace

MappingEditorViewModel::MappingEditorViewModel(KeyboardMappingStore& store,
                                               BundleApplicationMetadataReader& metadataReader,
                                               const InstalledApplicationCatalog& catalog,
                                               MappingEditorFilePanels& filePanels,
                                               FileSystem& fileSystem, const Localizer& localizer)
    : store_(store), metadataReader_(metadataReader), filePanels_(filePanels),
      fileSystem_(fileSystem), localizer_(localizer), picker_(catalog) {
  rebuildRows(store_.snapshot());
  storeToken_ = store_.observe([this](const KeyboardMappingSnapshot& snapshot) {
    rebuildRows(snapshot);
    changed();
  });
}

void MappingEditorViewModel::rebuildRows(const KeyboardMappingSnapshot& snapshot) {
  rows_.clear();
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    Row row;
    row.letter = letter;
    const auto found = snapshot.letterMappings.find(letter);
    if (found == snapshot.letterMappings.end()) {
      row.statusText = localizer_.localized(kMappingEditorUnassigned);
      rows_.push_back(std::move(row));
      continue;
    }
    const AppMapping& mapping = found->second;
    row.applicationName = mapping.displayName;
    const auto* resolved = mapping.resolution.resolvedURLIfAny();
    row.location = resolved ? resolved->path() : mapping.lastKnownURL.path();
    switch (mapping.resolution.kind()) {
    case ApplicationResolution::Kind::resolved:
      row.status = Row::Status::found;
      row.statusText = localizer_.localized(kMappingEditorFound);
      break;
    case ApplicationResolution::Kind::notFound:
      row.status = Row::Status::missing;
      row.statusText = localizer_.localized(kMappingEditorMissing);
      break;
    case ApplicationResolution::Kind::ambiguous:
      row.status = Row::Status::ambiguous;
      row.statusText = localizer_.localized(kMappingEditorAmbiguous);
      break;
    }
    rows_.push_back(std::move(row));
  }
}

void MappingEditorViewModel::select(char letter) {
  if (letter < 'A' || letter > 'Z' || letter == selectedLetter_) {
    return;
  }
  selectedLetter_ = letter;
  changed();
}

void MappingEditorViewModel::assign(char letter, const FileURL& application) {
  errorText_.clear();
  moveConfirmation_.reset();
  pendingMove_.reset();
  // The store moves silently; the person is asked here, before anything changes. A bundle that
  // cannot be read goes on to the store, which says why it is refused.
  if (const auto metadata = metadataReader_.readMetadata(application)) {
    for (const auto& [other, mapping] : store_.snapshot().letterMappings) {
      if (other == letter ||
          !sameApplication(mapping.bundleIdentifier,
                           LetterMappingRecord::trimmed(metadata->bundleIdentifier))) {
        continue;
      }
      auto name = std::string(LetterMappingRecord::trimmed(metadata->displayName));
      pendingMove_ = PendingMove{letter, application};
      moveConfirmation_ = MoveConfirmation{
          .message = formatLocalized(localizer_.localized(kMappingEditorMoveQuestion),
                                     {name.empty() ? mapping.displayName : name,
                                      std::string(1, other), std::string(1, letter)}),
          .moveButton = localizer_.localized(kMappingEditorMoveButton),
          .cancelButton = localizer_.localized(kMappingEditorCancelButton),
      };
      changed();
      return;
    }
  }
  apply(letter, application);
}

void MappingEditorViewModel::confirmMove() {
  if (!pendingMove_) {
    return;
  }
  const PendingMove move = *pendingMove_;
  pendingMove_.reset();
  moveConfirmation_.reset();
  apply(move.letter, move.application);
}

void MappingEditorViewModel::cancelMove() {
  if (!pendingMove_) {
    return;
  }
  pendingMove_.reset();
  moveConfirmation_.reset();
  changed();
}

void MappingEditorViewModel::apply(char letter, const FileURL& application) {
  const auto assigned = store_.setLetterMapping(std::string(1, letter), application);
  errorText_ = assigned ? std::string() : assigned.error().message(localizer_);
  changed();
}

void MappingEditorViewModel::remove(char letter) {
  const auto removed = store_.removeLetterMapping(std::string(1, letter));
  errorText_ = removed ? std::string() : removed.error().message(localizer_);
  changed();
}

void MappingEditorViewModel::assignPickedApplication(std::size_t index) {
  const auto& shown = picker_.applications();
  if (index < shown.size()) {
    assign(selectedLetter_, shown[index].url);
  }
}

void MappingEditorViewModel::chooseApplication() {
  const char letter = selectedLetter_;
  filePanels_.chooseApplication(guard_.weak([this, letter](std::optional<FileURL> chosen) {
    if (chosen) {
      assign(letter, *chosen);
    }
  }));
}

void MappingEditorViewModel::exportMappings() {
  filePanels_.chooseExportDestination(localizer_.localized(kMappingEditorExportFileName),
                                      guard_.weak([this](std::optional<FileURL> destination) {
                                        if (destination) {
                                          exportTo(*destination);
                                        }
                                      }));
}

void MappingEditorViewModel::exportTo(const FileURL& destination) {
  if (fileSystem_.writeFileAtomically(destination.path(),
                                      LetterMappingDocument::encode(store_.records()))) {
    return;
  }
  notice_ = Notice{
      .title = localizer_.localized(kMappingEditorExportFailedTitle),
      .message = formatLocalized(localizer_.localized(kMappingEditorExportFailedMessage),
                                 {destination.path()}),
  };
  changed();
}

void MappingEditorViewModel::importMappings() {
  filePanels_.chooseImportFile(guard_.weak([this](std::optional<FileURL> source) {
    if (source) {
      importFrom(*source);
    }
  }));
}

void MappingEditorViewModel::importFrom(const FileURL& source) {
  const auto bytes = fileSystem_.readFile(source.path(), kMaximumImportBytes);
  if (!bytes) {
    refuseImport(
        LetterMappingImport::message(LetterMappingImport::FileProblem::unreadable, localizer_));
    return;
  }
  const auto records = LetterMappingImport::read(*bytes);
  if (!records) {
    refuseImport(LetterMappingImport::message(records.error(), localizer_));
    return;
  }
  std::string rejected;
  if (!records->rejected.empty()) {
    rejected = localizer_.localized(kMappingEditorImportRejectedHeading);
    for (const auto& rejection : records->rejected) {
      rejected += "\n" + rejection.message(localizer_);
    }
  }
  if (records->accepted.empty()) {
    refuseImport(rejected);
    return;
  }
  const auto merged = store_.mergeLetterMappings(records->accepted);
  if (!merged) {
    refuseImport(merged.error().message(localizer_));
    return;
  }
  auto message = formatLocalized(localizer_.localized(kMappingEditorImportSummary),
                                 {static_cast<long long>(*merged)});
  if (!rejected.empty()) {
    message += "\n\n" + rejected;
  }
  notice_ = Notice{.title = localizer_.localized(kMappingEditorImportTitle),
                   .message = std::move(message)};
  changed();
}

void MappingEditorViewModel::refuseImport(std::string why) {
  notice_ = Notice{
      .title = localizer_.localized(kMappingEditorImportRefusedTitle),
      .message = why.empty() ? localizer_.localized(kMappingEditorImportUnchanged)
                             : why + "\n\n" + localizer_.localized(kMappingEditorImportUnchanged),
  };
  changed();
}

void MappingEditorViewModel::dismissNotice() {
  if (notice_) {
    notice_.reset();
    changed();
  }
}

} // namespace quenby
