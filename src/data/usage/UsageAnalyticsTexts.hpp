#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kUsageCalendarDayFailedText{
    "diagnostic.usage.calendar-day-failed", "Could not derive the current local calendar day.",
    "Logged when the user's calendar cannot say which day it is, so usage analytics keep their "
    "history as it is."};

inline constexpr LocalizedText kUsageWereResetTitle{
    "diagnostic.usage.were-reset", "Usage Analytics Were Reset",
    "Title of the notice shown once when unreadable or newer-format usage analytics data was set "
    "aside and counting started again from zero."};
inline constexpr LocalizedText kUsageNotRecoveredTitle{
    "diagnostic.usage.not-recovered", "Usage Analytics Could Not Be Recovered",
    "Title of the notice shown when unreadable usage analytics data could not be set aside."};

inline constexpr LocalizedText kUsageCorruptRecoveredMessage{
    "diagnostic.usage.corrupt-recovered.message",
    "Quenby reset unreadable usage analytics data to a safe empty state and kept running. You can "
    "continue using Quenby; the Usage tab will rebuild totals from new activity.",
    "Message of the notice shown when unreadable usage analytics data was set aside."};
inline constexpr LocalizedText kUsageCorruptRecoveryFailedMessage{
    "diagnostic.usage.corrupt-recovery-failed.message",
    "Quenby could not quarantine unreadable usage analytics data automatically. Fix the "
    "underlying storage problem, then relaunch Quenby or reset usage analytics. %@",
    "Message of the notice shown when unreadable usage analytics data could not be set aside. "
    "%@ is the storage error."};
inline constexpr LocalizedText kUsageUnsupportedRecoveredMessage{
    "diagnostic.usage.unsupported-recovered.message",
    "Quenby found usage analytics data from a newer unsupported format, reset it to a safe empty "
    "state, and kept running. Update Quenby if you expected to keep that history; the Usage tab "
    "will rebuild totals from new activity.",
    "Message of the notice shown when usage analytics data written by a newer version of Quenby "
    "was set aside."};
inline constexpr LocalizedText kUsageUnsupportedRecoveryFailedMessage{
    "diagnostic.usage.unsupported-recovery-failed.message",
    "Quenby found unsupported usage analytics format version %1$lld but could not quarantine it "
    "automatically. Fix the underlying storage problem, then relaunch Quenby or reset usage "
    "analytics. %2$@",
    "Message of the notice shown when usage analytics data of a newer format could not be set "
    "aside. %1$lld is the format version found, %2$@ the storage error."};

inline constexpr LocalizedText kUsageLoadFailedTitle{
    "diagnostic.usage.load-failed.title", "Usage Analytics Could Not Be Loaded",
    "Title of the notice shown when stored usage analytics could not be read."};
inline constexpr LocalizedText kUsageLoadFailedGuidance{
    "diagnostic.usage.load-failed.guidance",
    "Quenby fell back to a safe empty usage view. Fix the underlying storage problem, then "
    "relaunch Quenby or reset usage analytics.",
    "Message of the notice shown when stored usage analytics could not be read."};
inline constexpr LocalizedText kUsageSaveFailedTitle{
    "diagnostic.usage.save-failed.title", "Usage Analytics Could Not Be Saved",
    "Title of the notice shown when a counted switch could not be saved."};
inline constexpr LocalizedText kUsageSaveFailedGuidance{
    "diagnostic.usage.save-failed.guidance",
    "Quenby kept the last saved usage analytics state in memory and on disk. Fix the underlying "
    "storage problem, then try the action again.",
    "Message of the notice shown when a counted switch could not be saved."};
inline constexpr LocalizedText kUsagePruneFailedTitle{
    "diagnostic.usage.prune-failed.title", "Usage Analytics Cleanup Could Not Be Saved",
    "Title of the notice shown when removing usage history older than 90 days could not be "
    "saved."};
inline constexpr LocalizedText kUsagePruneFailedGuidance{
    "diagnostic.usage.prune-failed.guidance",
    "Quenby kept the last saved usage analytics history because the daily cleanup could not be "
    "saved. Fix the underlying storage problem, then relaunch Quenby or wait for the next usage "
    "analytics refresh.",
    "Message of the notice shown when removing usage history older than 90 days could not be "
    "saved."};
inline constexpr LocalizedText kUsageResetFailedTitle{
    "diagnostic.usage.reset-failed.title", "Usage Analytics Reset Could Not Be Saved",
    "Title of the notice shown when the user's reset of usage analytics could not be saved."};
inline constexpr LocalizedText kUsageResetFailedGuidance{
    "diagnostic.usage.reset-failed.guidance",
    "Quenby kept the existing usage analytics state because the reset could not be saved. Fix "
    "the underlying storage problem, then try resetting again.",
    "Message of the notice shown when the user's reset of usage analytics could not be saved."};

inline constexpr LocalizedText kUsageLoadFailedDescription{
    "diagnostic.usage.load-failed.description", "Usage analytics load failed: %@",
    "Shown on the Usage page after stored usage analytics could not be read. %@ is the storage "
    "error."};
inline constexpr LocalizedText kUsageSaveFailedDescription{
    "diagnostic.usage.save-failed.description", "Usage analytics save failed: %@",
    "Shown on the Usage page after a counted switch could not be saved. %@ is the storage error."};
inline constexpr LocalizedText kUsagePruneFailedDescription{
    "diagnostic.usage.prune-failed.description", "Usage analytics prune failed: %@",
    "Shown on the Usage page after removing old usage history could not be saved. %@ is the "
    "storage error."};
inline constexpr LocalizedText kUsageResetFailedDescription{
    "diagnostic.usage.reset-failed.description", "Usage analytics reset failed: %@",
    "Shown on the Usage page after a reset of usage analytics could not be saved. %@ is the "
    "storage error."};
inline constexpr LocalizedText kUsageCorruptRecoveredDescription{
    "diagnostic.usage.corrupt-recovered.description",
    "Usage analytics data was unreadable, quarantined under %@",
    "Shown on the Usage page after unreadable data was set aside. %@ is the user-defaults key "
    "that holds the copy."};
inline constexpr LocalizedText kUsageCorruptRecoveryFailedDescription{
    "diagnostic.usage.corrupt-recovery-failed.description",
    "Usage analytics data was unreadable and could not be quarantined under %1$@: %2$@",
    "Shown on the Usage page when unreadable data could not be set aside. %1$@ is the "
    "user-defaults key meant for the copy, %2$@ the storage error."};
inline constexpr LocalizedText kUsageUnsupportedRecoveredDescription{
    "diagnostic.usage.unsupported-recovered.description",
    "Usage analytics data used unsupported version %1$lld, was quarantined under %2$@",
    "Shown on the Usage page after newer-format data was set aside. %1$lld is the format "
    "version, %2$@ the user-defaults key that holds the copy."};
inline constexpr LocalizedText kUsageUnsupportedRecoveryFailedDescription{
    "diagnostic.usage.unsupported-recovery-failed.description",
    "Usage analytics data used unsupported version %1$lld and could not be quarantined under "
    "%2$@: %3$@",
    "Shown on the Usage page when newer-format data could not be set aside. %1$lld is the format "
    "version, %2$@ the user-defaults key meant for the copy, %3$@ the storage error."};

inline constexpr LocalizedText kUsageWriteNotKeptText{
    "diagnostic.usage.write-not-kept", "The user defaults did not keep the data written under %@.",
    "The storage error of a usage analytics notice: the system's settings storage refused or "
    "overrode a write. %@ is the user-defaults key."};

} // namespace quenby
