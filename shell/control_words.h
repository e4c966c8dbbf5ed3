// What is read and heard about a control: its name for a screen reader, its tip, its key.
#pragma once

#include <string>
#include <string_view>

#include "platform/controls.h"

/// What a screen reader says for a control: what it is and its tip, as "Pocket 3: Smoke grenade"; or its
/// caption, its tip alone, or its name in words, as "Enemy Count".
std::string SpokenName(const Control& control);

/// What a control without a tip of its own is for, the same at all times; empty where there is nothing to
/// say.
std::string_view PurposeOf(const Control& control);

/// What the pointer reads on it: the record's tip, or what it is for.
std::string TipOf(const Control& control);

/// The key that uses it at once, as "Alt+E"; empty for none.
std::string ShortcutWords(const Control& control);

/// What is read beside a stop that the keyboard has come to, by who has no pointer to look around with: its
/// tip, or its name, and its key.
std::string TipBeside(const Control& stop);
