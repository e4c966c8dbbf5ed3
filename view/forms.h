// All windows of the game.
#pragma once

#include <string_view>
#include <vector>

class Audience;
struct Form;

/// The windows besides the main one that come on the screen.
std::vector<Form*> OtherForms();

/// The window of this name; nullptr for none.
Form* FormByName(std::string_view name);

/// Puts the windows back to what they are at program start, and makes them what the rules show the game on.
void ResetForms();

/// From the next ResetForms on the rules report to `watcher` instead of the windows' own audience, which it
/// passes everything on to; nullptr for the windows' own. It must outlive its use.
void WatchThrough(Audience* watcher);
