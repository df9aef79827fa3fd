#include "shortcuts/mapping/NumberMappingSnapshot.hpp"

namespace quenby {

NumberMappingSnapshot NumberMappingSnapshot::placeholder(const Localizer& localizer) {
  NumberMappingSnapshot snapshot;
  const auto entry = NumberMappingEntry::unavailable(
      NumberMappingProblem::preferencesUnavailable(localizer.localized(kDockNotLoadedText)));
  for (int position = NumberMappingEntries::kFirstPosition;
       position <= NumberMappingEntries::kLastPosition; ++position) {
    snapshot.entries.set(position, entry);
  }
  return snapshot;
}

} // namespace quenby
