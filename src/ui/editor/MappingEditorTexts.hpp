#pragma once

#include "base/Localizer.hpp"

namespace quenby {

// The window.
inline constexpr LocalizedText kMappingEditorWindowTitle{
    "mapping-editor.window.title", "Letter Shortcuts",
    "Title of the window where the user assigns applications to letters."};
inline constexpr LocalizedText kMappingEditorLetterColumn{
    "mapping-editor.column.letter", "Key", "Header of the mapping editor's column of letters."};
inline constexpr LocalizedText kMappingEditorApplicationColumn{
    "mapping-editor.column.application", "Application",
    "Header of the mapping editor's column of assigned applications."};
inline constexpr LocalizedText kMappingEditorStatusColumn{
    "mapping-editor.column.status", "Status",
    "Header of the mapping editor's column saying whether each application was found."};
inline constexpr LocalizedText kMappingEditorAssignButton{
    "mapping-editor.button.assign", "Assign…",
    "Button that opens the list of installed applications for the selected letter."};
inline constexpr LocalizedText kMappingEditorRemoveButton{
    "mapping-editor.button.remove", "Remove",
    "Button that removes the application assigned to the selected letter."};
inline constexpr LocalizedText kMappingEditorExportButton{
    "mapping-editor.button.export", "Export...",
    "Button that saves every letter mapping to a file."};
inline constexpr LocalizedText kMappingEditorImportButton{
    "mapping-editor.button.import", "Import...",
    "Button that reads letter mappings from a file saved by Export."};

// A row's state, in words.
inline constexpr LocalizedText kMappingEditorUnassigned{
    "mapping-editor.row.unassigned", "Not assigned", "Status of a letter with no application."};
inline constexpr LocalizedText kMappingEditorFound{
    "mapping-editor.row.found", "Installed",
    "Status of a letter whose application is installed where expected."};
inline constexpr LocalizedText kMappingEditorMissing{
    "mapping-editor.row.missing", "Not found. Assign it again.",
    "Status of a letter whose application is no longer installed anywhere Quenby can find."};
inline constexpr LocalizedText kMappingEditorAmbiguous{
    "mapping-editor.row.ambiguous", "Several copies found. Assign the one to use.",
    "Status of a letter whose application is installed more than once."};

// Moving an application from one letter to another.
inline constexpr LocalizedText kMappingEditorMoveQuestion{
    "mapping-editor.move.message", "%1$@ is assigned to %2$@. Move it to %3$@?",
    "%1$@ is an application's name, %2$@ the letter it has now, %3$@ the letter the user chose."};
inline constexpr LocalizedText kMappingEditorMoveButton{
    "mapping-editor.move.confirm", "Move",
    "Button that moves an application to the newly chosen letter."};
inline constexpr LocalizedText kMappingEditorCancelButton{
    "mapping-editor.move.cancel", "Cancel",
    "Button that keeps an application on the letter it has."};

// The application picker.
inline constexpr LocalizedText kMappingEditorPickerTitle{
    "mapping-editor.picker.title", "Choose an application for %@",
    "Heading of the list of installed applications. %@ is the letter being assigned."};
inline constexpr LocalizedText kMappingEditorPickerSearch{
    "mapping-editor.picker.search", "Search Applications",
    "Placeholder of the search field above the list of installed applications."};
inline constexpr LocalizedText kMappingEditorPickerChoose{
    "mapping-editor.picker.choose", "Choose...",
    "Button that picks an application anywhere on disk with a file browser."};
inline constexpr LocalizedText kMappingEditorPickerAssign{
    "mapping-editor.picker.assign", "Assign",
    "Button that assigns the application selected in the list."};

// Export and import.
inline constexpr LocalizedText kMappingEditorExportFileName{
    "mapping-editor.export.file-name", "Quenby Letter Mappings.json",
    "File name offered when saving the letter mappings."};
inline constexpr LocalizedText kMappingEditorExportFailedTitle{
    "mapping-editor.export.failed", "The Letter Mappings Could Not Be Exported",
    "Title of the alert shown when the export file could not be written."};
inline constexpr LocalizedText kMappingEditorExportFailedMessage{
    "mapping-editor.export.failed.message", "Quenby could not write %@.",
    "%@ is the path of the file the user chose."};
inline constexpr LocalizedText kMappingEditorImportTitle{
    "mapping-editor.import.title", "Letter Mappings Imported",
    "Title of the report shown after importing letter mappings."};
inline constexpr LocalizedText kMappingEditorImportRefusedTitle{
    "mapping-editor.import.refused", "Nothing Was Imported",
    "Title of the report shown when no letter mapping could be imported."};
inline constexpr LocalizedText kMappingEditorImportSummary{
    "mapping-editor.import.summary", "Imported %lld letter mappings.",
    "%lld is how many letter mappings were imported."};
inline constexpr LocalizedText kMappingEditorImportRejectedHeading{
    "mapping-editor.import.rejected",
    "These records were not imported:", "Heading of the list of records that an import skipped."};
inline constexpr LocalizedText kMappingEditorImportUnchanged{
    "mapping-editor.import.unchanged", "Your letter mappings were not changed.",
    "Said after an import that could not apply anything."};
inline constexpr LocalizedText kMappingEditorImportUnreadable{
    "mapping-editor.import.unreadable", "The file could not be read.",
    "Why an import failed: the file is missing, unreadable or too large."};
inline constexpr LocalizedText kMappingEditorImportNotJSON{
    "mapping-editor.import.not-json", "The file is not JSON.",
    "Why an import failed: the file's text is not JSON."};
inline constexpr LocalizedText kMappingEditorImportNotList{
    "mapping-editor.import.not-list",
    "The file is not a list of letter mappings (a JSON array of objects).",
    "Why an import failed: the JSON has the wrong shape."};

inline constexpr LocalizedText kMappingEditorRejectedRecord{
    "mapping-editor.import.record", "Record %1$lld: %2$@",
    "One skipped record. %1$lld is its position in the file, %2$@ why it was skipped."};
inline constexpr LocalizedText kMappingEditorRejectedRecordWithLetter{
    "mapping-editor.import.record-with-letter", "Record %1$lld (letter \"%2$@\"): %3$@",
    "One skipped record. %1$lld is its position in the file, %2$@ its letter as written, %3$@ "
    "why it was skipped."};
inline constexpr LocalizedText kMappingEditorNoLetter{"mapping-editor.import.no-letter",
                                                      "no letter", "Why a record was skipped."};
inline constexpr LocalizedText kMappingEditorNotALetter{
    "mapping-editor.import.not-a-letter", "not a letter from A to Z", "Why a record was skipped."};
inline constexpr LocalizedText kMappingEditorNoBundleIdentifier{
    "mapping-editor.import.no-bundle-identifier", "no bundle identifier",
    "Why a record was skipped."};
inline constexpr LocalizedText kMappingEditorNoDisplayName{
    "mapping-editor.import.no-display-name", "no application name", "Why a record was skipped."};
inline constexpr LocalizedText kMappingEditorNotAnApplication{
    "mapping-editor.import.not-an-application", "the location is not an application (.app)",
    "Why a record was skipped."};
inline constexpr LocalizedText kMappingEditorDuplicateLetter{
    "mapping-editor.import.duplicate-letter", "the letter is already taken by record %lld",
    "Why a record was skipped. %lld is the position of the earlier record."};
inline constexpr LocalizedText kMappingEditorDuplicateApplication{
    "mapping-editor.import.duplicate-application", "%1$@ is already assigned by record %2$lld",
    "Why a record was skipped. %1$@ is an application's name, %2$lld the position of the "
    "earlier record."};

} // namespace quenby
