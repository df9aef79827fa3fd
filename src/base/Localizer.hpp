#pragma once

#include <string>
#include <string_view>

namespace quenby {

/// One user-facing text: its localisation key, the English text (which is also the fallback when
/// no translation exists) and the note for translators. Declare each as an `inline constexpr`
/// constant beside the code that shows it; resources/en.lproj/Localizable.strings is generated
/// from these declarations (scripts/update-strings) and a test keeps the two in step.
struct LocalizedText {
  std::string_view key;
  std::string_view english;
  std::string_view comment;
};

/// Turns a text into the user's language.
class Localizer {
public:
  virtual ~Localizer() = default;
  [[nodiscard]] virtual std::string localized(const LocalizedText& text) const = 0;
};

/// The inert localiser: every text in English.
class EnglishLocalizer final : public Localizer {
public:
  [[nodiscard]] std::string localized(const LocalizedText& text) const override {
    return std::string(text.english);
  }
};

} // namespace quenby
