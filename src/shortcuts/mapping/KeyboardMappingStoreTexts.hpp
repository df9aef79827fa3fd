#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kMappingInvalidLetterText{
    "diagnostic.mapping.invalid-letter", "%@ is not an A–Z mapping key.",
    "%@ is the key the user tried to assign an application to."};
inline constexpr LocalizedText kMappingInvalidApplicationText{
    "diagnostic.mapping.invalid-application", "%@ is not a readable application bundle.",
    "%@ is the file name of the item the user chose."};
inline constexpr LocalizedText kMappingNotSavedText{
    "diagnostic.mapping.not-saved", "The user defaults did not keep the letter mappings.",
    "Why a change to the letter mappings could not be saved."};

inline constexpr LocalizedText kMappingCleanupNotSavedTitle{
    "diagnostic.mapping.cleanup-not-saved", "Letter Mapping Cleanup Could Not Be Saved",
    "Title of the notice shown when repaired letter mappings could not be written back."};
inline constexpr LocalizedText kMappingUpdateNotSavedTitle{
    "diagnostic.mapping.update-not-saved", "Letter Mapping Update Could Not Be Saved",
    "Title of the notice shown when moved applications could not be recorded in the letter "
    "mappings."};
inline constexpr LocalizedText kMappingWereResetTitle{
    "diagnostic.mapping.were-reset", "Letter Mappings Were Reset",
    "Title of the notice shown when unreadable letter mappings were set aside."};
inline constexpr LocalizedText kMappingCorruptRecoveredMessage{
    "diagnostic.mapping.corrupt-recovered.message",
    "Quenby preserved the unreadable data under %@, reset letter mappings to a safe empty "
    "state, and continued launching. Recreate the affected mappings.",
    "%@ is the user defaults key that holds the preserved data."};
inline constexpr LocalizedText kMappingNotRecoveredTitle{
    "diagnostic.mapping.not-recovered", "Letter Mappings Could Not Be Recovered",
    "Title of the notice shown when unreadable letter mappings could not be set aside."};
inline constexpr LocalizedText kMappingCorruptRecoveryFailedMessage{
    "diagnostic.mapping.corrupt-recovery-failed.message",
    "Quenby could not quarantine unreadable mapping data under %1$@: %2$@",
    "%1$@ is a user defaults key; %2$@ explains what went wrong."};

inline constexpr LocalizedText kMappingBackupNotKeptText{
    "diagnostic.mapping.backup-not-kept", "The user defaults did not keep the copy.",
    "Why unreadable letter mappings could not be copied aside."};
inline constexpr LocalizedText kMappingResetNotKeptText{
    "diagnostic.mapping.reset-not-kept", "The user defaults did not keep the emptied mappings.",
    "Why unreadable letter mappings could not be replaced by an empty list."};
inline constexpr LocalizedText kMappingBackupKeyTakenText{
    "diagnostic.mapping.backup-key-taken", "Another copy is already kept under that key.",
    "Why unreadable letter mappings were not copied over an earlier copy."};

} // namespace quenby
