#pragma once

#include "shortcuts/mapping/AppMapping.hpp"

#include <vector>

namespace quenby {

/// Hides the application in front when it is the mapped one.
class AppHiding {
public:
  virtual ~AppHiding() = default;
  /// True when the mapped application was in front and agreed to hide.
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
