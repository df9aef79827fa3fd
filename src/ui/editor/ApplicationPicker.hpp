#pragma once

#include "ui/editor/InstalledApplicationCatalog.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// The list of installed applications the editor offers, narrowed by a search. The folders are
/// read when the picker opens, never per keystroke. Main thread only; `catalog` must outlive it.
class ApplicationPicker {
public:
  explicit ApplicationPicker(const InstalledApplicationCatalog& catalog) : catalog_(catalog) {}

  /// Reads the catalog again and clears the search.
  void open();
  void setSearchText(std::string_view text);
  [[nodiscard]] const std::string& searchText() const { return searchText_; }
  /// The applications whose names match the search, by name.
  [[nodiscard]] const std::vector<InstalledApplication>& applications() const { return shown_; }

  /// True when `search` (trimmed) appears anywhere in `name`, ignoring case and the accents of
  /// Latin letters ("cafe" finds "Café"). An empty search matches everything.
  [[nodiscard]] static bool nameMatches(std::string_view name, std::string_view search);

private:
  void filter();

  const InstalledApplicationCatalog& catalog_;
  std::vector<InstalledApplication> all_;
  std::vector<InstalledApplication> shown_;
  std::string searchText_;
};

} // namespace quenby
