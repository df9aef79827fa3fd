#include "data/usage/UsageAnalyticsStoreError.hpp"

#include "base/StringFormatter.hpp"
#include "data/usage/UsageAnalyticsTexts.hpp"

namespace quenby {

namespace {

using Error = UsageAnalyticsStoreError;
using Operation = UsageAnalyticsPersistenceOperation;

constexpr std::string_view kIDPrefix = "usageAnalytics.persistence.";

template <typename... Handlers> struct Overloaded : Handlers... { using Handlers::operator()...; };
template <typename... Handlers> Overloaded(Handlers...) -> Overloaded<Handlers...>;

std::string writeErrorText(const UsageAnalyticsWriteError& error, const Localizer& localizer) {
  return formatLocalized(localizer.localized(kUsageWriteNotKeptText), {error.key});
}

struct OperationTexts {
  const LocalizedText& title;
  const LocalizedText& guidance;
  const LocalizedText& description;
};

OperationTexts texts(Operation operation) {
  switch (operation) {
  case Operation::load:
    return {kUsageLoadFailedTitle, kUsageLoadFailedGuidance, kUsageLoadFailedDescription};
  case Operation::save:
    return {kUsageSaveFailedTitle, kUsageSaveFailedGuidance, kUsageSaveFailedDescription};
  case Operation::prune:
    return {kUsagePruneFailedTitle, kUsagePruneFailedGuidance, kUsagePruneFailedDescription};
  case Operation::reset:
    break;
  }
  return {kUsageResetFailedTitle, kUsageResetFailedGuidance, kUsageResetFailedDescription};
}

} // namespace

std::string_view operationRawValue(UsageAnalyticsPersistenceOperation operation) {
  switch (operation) {
  case Operation::load:
    return "load";
  case Operation::save:
    return "save";
  case Operation::prune:
    return "prune";
  case Operation::reset:
    break;
  }
  return "reset";
}

std::string Error::failureID() const {
  const auto id = [](std::string_view suffix, std::string_view key = {}) {
    std::string text(kIDPrefix);
    text.append(suffix).append(key);
    return text;
  };
  return std::visit(
      Overloaded{
          [&](const CorruptPayloadRecovered&) { return id("corrupt"); },
          [&](const CorruptPayloadRecoveryFailed& e) {
            return id("corrupt-recovery.", e.backupKey);
          },
          [&](const UnsupportedVersionRecovered&) { return id("unsupported-version"); },
          [&](const UnsupportedVersionRecoveryFailed& e) {
            return id("unsupported-version-recovery.", e.backupKey);
          },
          [&](const PersistenceFailed& e) { return id(operationRawValue(e.operation)); },
      },
      case_);
}

std::string Error::localizedDescription(const Localizer& localizer) const {
  const auto format = [&](const LocalizedText& text, std::initializer_list<FormatArgument> args) {
    return formatLocalized(localizer.localized(text), args);
  };
  return std::visit(
      Overloaded{
          [&](const CorruptPayloadRecovered& e) {
            return format(kUsageCorruptRecoveredDescription, {e.backupKey});
          },
          [&](const CorruptPayloadRecoveryFailed& e) {
            const auto error = writeErrorText(e.error, localizer);
            return format(kUsageCorruptRecoveryFailedDescription, {e.backupKey, error});
          },
          [&](const UnsupportedVersionRecovered& e) {
            return format(kUsageUnsupportedRecoveredDescription,
                          {static_cast<long long>(e.version), e.backupKey});
          },
          [&](const UnsupportedVersionRecoveryFailed& e) {
            const auto error = writeErrorText(e.error, localizer);
            return format(kUsageUnsupportedRecoveryFailedDescription,
                          {static_cast<long long>(e.version), e.backupKey, error});
          },
          [&](const PersistenceFailed& e) {
            const auto error = writeErrorText(e.error, localizer);
            return format(texts(e.operation).description, {error});
          },
      },
      case_);
}

ConfigurationFailure Error::configurationFailure(const Localizer& localizer) const {
  const auto text = [&](const LocalizedText& t) { return localizer.localized(t); };
  auto [title, message] = std::visit(
      Overloaded{
          [&](const CorruptPayloadRecovered&) {
            return std::pair{text(kUsageWereResetTitle), text(kUsageCorruptRecoveredMessage)};
          },
          [&](const CorruptPayloadRecoveryFailed& e) {
            const auto error = writeErrorText(e.error, localizer);
            return std::pair{text(kUsageNotRecoveredTitle),
                             formatLocalized(text(kUsageCorruptRecoveryFailedMessage), {error})};
          },
          [&](const UnsupportedVersionRecovered&) {
            return std::pair{text(kUsageWereResetTitle), text(kUsageUnsupportedRecoveredMessage)};
          },
          [&](const UnsupportedVersionRecoveryFailed& e) {
            const auto error = writeErrorText(e.error, localizer);
            return std::pair{text(kUsageNotRecoveredTitle),
                             formatLocalized(text(kUsageUnsupportedRecoveryFailedMessage),
                                             {static_cast<long long>(e.version), error})};
          },
          [&](const PersistenceFailed& e) {
            const auto operationTexts = texts(e.operation);
            return std::pair{text(operationTexts.title), text(operationTexts.guidance)};
          },
      },
      case_);
  return {.id = failureID(), .title = std::move(title), .message = std::move(message)};
}

} // namespace quenby
