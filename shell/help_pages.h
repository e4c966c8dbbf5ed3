// What the game says about itself: the keys, a card for who plays for the first time, and tips. Pages are
// simple HTML of headings, paragraphs and tables, which any front end can show.
#pragma once

#include <string>
#include <string_view>

/// All keys, and what the mouse does.
std::string KeysPage();

/// The goal, the mouse and the first keys.
std::string FirstCardPage();

/// What a control is for, named as "frmField.cmdNextTurn"; empty where there is nothing to say. For controls
/// whose own tip is empty.
std::string_view HelpTip(std::string_view control);
