// All windows of the game.
#pragma once

#include <string_view>
#include <vector>

struct Form;

/// The windows besides the main one that come on the screen.
std::vector<Form*> OtherForms();

/// The window of this name; nullptr for none.
Form* FormByName(std::string_view name);

/// Puts the windows back to what they are at program start, and makes them what the rules show the game on.
void ResetForms();
