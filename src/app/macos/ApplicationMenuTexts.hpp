#pragma once

#include "app/menu/MenuBarTexts.hpp"
#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kApplicationMenuQuitText{
    "menu.application.quit", "Quit Quenby",
    "Application menu item (shown while a Quenby window is active) that quits Quenby."};

inline constexpr LocalizedText kApplicationMenuCloseText{
    "menu.application.close", "Close Window",
    "Application menu item (Command-W) that closes the active Quenby window."};
inline constexpr LocalizedText kEditMenuText{
    "menu.edit", "Edit", "Title of the Edit menu, shown while a Quenby window is active."};
inline constexpr LocalizedText kEditMenuUndoText{"menu.edit.undo", "Undo",
                                                 "Edit menu item that undoes the last edit."};
inline constexpr LocalizedText kEditMenuRedoText{
    "menu.edit.redo", "Redo", "Edit menu item that redoes the last undone edit."};
inline constexpr LocalizedText kEditMenuCutText{"menu.edit.cut", "Cut",
                                                "Edit menu item that cuts the selected text."};
inline constexpr LocalizedText kEditMenuCopyText{"menu.edit.copy", "Copy",
                                                 "Edit menu item that copies the selected text."};
inline constexpr LocalizedText kEditMenuPasteText{"menu.edit.paste", "Paste",
                                                  "Edit menu item that pastes text."};
inline constexpr LocalizedText kEditMenuSelectAllText{"menu.edit.select-all", "Select All",
                                                      "Edit menu item that selects all text."};

} // namespace quenby
