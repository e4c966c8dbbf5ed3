// The game's command line: it takes "--help" and "--version" alone.
#pragma once

#include <optional>

/// Answers main's arguments, without a display. The result is the exit code; nothing when the game shall
/// start.
std::optional<int> AnswerArguments(int count, const char* const* arguments);
