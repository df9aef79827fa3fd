#include "data/usage/StoredUsageState.hpp"

#include <limits>
#include <nlohmann/json.hpp>

namespace quenby {

namespace {

using Json = nlohmann::json;
using Failure = StoredUsageState::DecodeFailure;
constexpr auto kLargestCount = std::numeric_limits<std::int64_t>::max();

void increment(std::int64_t& count) {
  if (count < kLargestCount) {
    ++count;
  }
}

/// Whether `bytes` nest arrays and objects no deeper than `limit`. Brackets inside strings do
/// not count; whether the text is JSON at all is the parser's business.
bool nestsWithin(std::string_view bytes, int limit) {
  int depth = 0;
  bool inString = false;
  bool escaped = false;
  for (const char c : bytes) {
    if (inString) {
      if (escaped) {
        escaped = false;
      } else if (c == '\\') {
        escaped = true;
      } else if (c == '"') {
        inString = false;
      }
    } else if (c == '"') {
      inString = true;
    } else if (c == '{' || c == '[') {
      if (++depth > limit) {
        return false;
      }
    } else if (c == '}' || c == ']') {
      --depth;
    }
  }
  return true;
}

/// A key that may be left out; null counts as left out.
const Json* optionalMember(const Json& object, std::string_view key) {
  const auto found = object.find(key);
  if (found == object.end() || found->is_null()) {
    return nullptr;
  }
  return &*found;
}

std::optional<std::int64_t> count(const Json& value) {
  if (!value.is_number_unsigned()) {
    return std::nullopt;
  }
  const auto number = value.get<std::uint64_t>();
  if (number > static_cast<std::uint64_t>(kLargestCount)) {
    return std::nullopt;
  }
  return static_cast<std::int64_t>(number);
}

/// A whole number that fits 64 bits signed: what the format's integers may be.
std::optional<std::int64_t> integer(const Json& value) {
  if (value.is_number_unsigned()) {
    return count(value);
  }
  if (value.is_number_integer()) {
    return value.get<std::int64_t>();
  }
  return std::nullopt;
}

bool readTotals(const Json& json, UsageTotals& totals) {
  if (!json.is_object()) {
    return false;
  }
  for (const auto& [key, value] : json.items()) {
    const auto category = usageCategory(key);
    const auto number = count(value);
    if (!category || !number) {
      return false;
    }
    totals.counts[static_cast<std::size_t>(*category)] = *number;
  }
  return true;
}

bool readApp(const Json& json, StoredAppUsage& app) {
  if (!json.is_object()) {
    return false;
  }
  const auto name = json.find("displayName");
  const auto successes = json.find("successCount");
  const auto failures = json.find("failureCount");
  if (name == json.end() || !name->is_string() || successes == json.end() ||
      failures == json.end()) {
    return false;
  }
  const auto successCount = count(*successes);
  const auto failureCount = count(*failures);
  if (!successCount || !failureCount) {
    return false;
  }
  app = {.displayName = name->get<std::string>(),
         .successCount = *successCount,
         .failureCount = *failureCount};
  return true;
}

bool readApps(const Json& json, StoredAppUsages& apps) {
  if (!json.is_object()) {
    return false;
  }
  for (const auto& [bundleIdentifier, value] : json.items()) {
    if (!readApp(value, apps[bundleIdentifier])) {
      return false;
    }
  }
  return true;
}

bool readDaily(const Json& json, std::map<UsageDayKey, StoredDailyUsage>& daily) {
  if (!json.is_object()) {
    return false;
  }
  for (const auto& [day, value] : json.items()) {
    if (!value.is_object()) {
      return false;
    }
    auto& entry = daily[UsageDayKey(day)];
    if (const auto* totals = optionalMember(value, "totals");
        totals != nullptr && !readTotals(*totals, entry.totals)) {
      return false;
    }
  }
  return true;
}

bool readAppDaily(const Json& json, std::map<UsageDayKey, StoredAppUsages>& appDaily) {
  if (!json.is_object()) {
    return false;
  }
  for (const auto& [day, value] : json.items()) {
    if (!readApps(value, appDaily[UsageDayKey(day)])) {
      return false;
    }
  }
  return true;
}

Json totalsJson(const UsageTotals& totals) {
  Json json = Json::object();
  for (const auto category : kUsageCategories) {
    json[usageCategoryRawValue(category)] = totals[category];
  }
  return json;
}

Json appsJson(const StoredAppUsages& apps) {
  Json json = Json::object();
  for (const auto& [bundleIdentifier, app] : apps) {
    json[bundleIdentifier] = {{"displayName", app.displayName},
                              {"successCount", app.successCount},
                              {"failureCount", app.failureCount}};
  }
  return json;
}

} // namespace

void StoredAppUsage::record(StoredAppOutcome outcome, std::string_view name) {
  increment(outcome == StoredAppOutcome::success ? successCount : failureCount);
  if (displayName != name) {
    displayName = name;
  }
}

double StoredUsageState::referenceDateSeconds(WallTime time) {
  constexpr WallTime referenceDate{std::chrono::sys_days{std::chrono::year{2001} / 1 / 1}};
  return std::chrono::duration<double>(time - referenceDate).count();
}

std::string StoredUsageState::encode() const {
  Json daily = Json::object();
  for (const auto& [day, entry] : this->daily) {
    daily[day.rawValue()] = {{"totals", totalsJson(entry.totals)}};
  }
  Json appDaily = Json::object();
  for (const auto& [day, apps] : this->appDaily) {
    appDaily[day.rawValue()] = appsJson(apps);
  }
  Json document = {{"version", kFormatVersion},
                   {"totals", totalsJson(totals)},
                   {"daily", std::move(daily)},
                   {"apps", appsJson(apps)},
                   {"appDaily", std::move(appDaily)}};
  if (startedOn) {
    document["startedOn"] = *startedOn;
  }
  return document.dump(-1, ' ', false, Json::error_handler_t::replace);
}

PropertyListValue StoredUsageState::encodedValue() const {
  const auto text = encode();
  return PropertyListValue(PropertyListValue::Data(text.begin(), text.end()));
}

Expected<StoredUsageState, Failure> StoredUsageState::decode(std::string_view bytes) {
  if (!nestsWithin(bytes, kMaximumNesting)) {
    return Unexpected{Failure{}};
  }
  const Json document = Json::parse(bytes, nullptr, /*allow_exceptions=*/false);
  if (!document.is_object()) {
    return Unexpected{Failure{}};
  }
  // The version decides how to read the rest, so it is checked before anything else.
  const auto versionMember = document.find("version");
  if (versionMember == document.end()) {
    return Unexpected{Failure{}};
  }
  const auto version = integer(*versionMember);
  if (!version) {
    return Unexpected{Failure{}};
  }
  if (*version > kFormatVersion) {
    return Unexpected{Failure{.unsupportedVersion = *version}};
  }

  StoredUsageState state;
  const auto* totals = optionalMember(document, "totals");
  const auto* daily = optionalMember(document, "daily");
  const auto* apps = optionalMember(document, "apps");
  const auto* appDaily = optionalMember(document, "appDaily");
  const auto* startedOn = optionalMember(document, "startedOn");
  if ((totals != nullptr && !readTotals(*totals, state.totals)) ||
      (daily != nullptr && !readDaily(*daily, state.daily)) ||
      (apps != nullptr && !readApps(*apps, state.apps)) ||
      (appDaily != nullptr && !readAppDaily(*appDaily, state.appDaily)) ||
      (startedOn != nullptr && !startedOn->is_number())) {
    return Unexpected{Failure{}};
  }
  if (startedOn != nullptr) {
    state.startedOn = startedOn->get<double>();
  }
  return state;
}

} // namespace quenby
