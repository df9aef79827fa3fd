#pragma once

#include "app/menu/MenuBarCommand.hpp"

#include <optional>
#include <string>

namespace quenby {

/// One line of the menu. A line without a command is information and can never be chosen.
struct MenuBarItemPresentation {
  std::string title;
  std::optional<MenuBarCommand> command;
  bool isSeparator = false;

  [[nodiscard]] static MenuBarItemPresentation status(std::string title) {
    return {std::move(title), std::nullopt, false};
  }
  [[nodiscard]] static MenuBarItemPresentation action(std::string title, MenuBarCommand command) {
    return {std::move(title), command, false};
  }
  [[nodiscard]] static MenuBarItemPresentation separator() { return {{}, std::nullopt, true}; }

  friend bool operator==(const MenuBarItemPresentation&, const MenuBarItemPresentation&) = default;
};

} // namespace quenby
