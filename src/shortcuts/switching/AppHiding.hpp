#pragma once

#include "shortcuts/mapping/AppMapping.hpp"

#include <vector>

namespace quenby {

/// Hides the frontmost application when it is the mapped one.
class AppHiding {
public:
  virtual ~AppHiding() = default;
  /// Checks again, at the moment of hiding, that the frontmost application is `mapping`'s, so a
  /// change of frontmost application since the caller looked never hides the wrong one. True
  /// when it was hidden.
  virtual bool hideIfFrontmost(const AppMapping& mapping) = 0;
};

/// Hides nothing; remembers every request.
class InertAppHider final : public AppHiding {
public:
  bool hideIfFrontmost(const AppMapping& mapping) override {
    hiddenMappings_.push_back(mapping);
    return false;
  }
  [[nodiscard]] const std::vector<AppMapping>& hiddenMappings() const { return hiddenMappings_; }

private:
  std::vector<AppMapping> hiddenMappings_;
};

} // namespace quenby
