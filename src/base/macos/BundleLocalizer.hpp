#pragma once

#include "base/Localizer.hpp"

namespace quenby {

/// Looks texts up in the main bundle's Localizable.strings for the user's languages, falling back
/// to the English text. Any thread (NSBundle's lookup is thread-safe); holds no state.
class BundleLocalizer final : public Localizer {
public:
  [[nodiscard]] std::string localized(const LocalizedText& text) const override;
};

} // namespace quenby
