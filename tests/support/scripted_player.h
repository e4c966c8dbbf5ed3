// A simple player in code, who gives his orders through the door for input like any other: soldiers that see
// an enemy fire at the nearest, the others walk toward him.
#pragma once

#include <string>

/// Plays the running mission for at most `turns` turns and then leaves by the menu. Does not return: the
/// mission's end comes as the host's end of the process.
[[noreturn]] void PlayMission(int turns);
