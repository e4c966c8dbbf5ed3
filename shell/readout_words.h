// What the read-out says, in words: whole lines with a tone each, cut to what fits.
#pragma once

#include <string>
#include <vector>

#include "shell/forecast.h"

enum class Tone { Plain, Good, Warning, Danger };

struct ReadoutLine {
    std::string text;
    Tone tone = Tone::Plain;

    bool operator==(const ReadoutLine&) const = default;
};

constexpr std::size_t LineLength = 38;       // letters that fit on a line
constexpr std::size_t ShortLineLength = 30;  // and beside the portrait

/// What the two buttons would come to.
std::vector<ReadoutLine> LinesOf(const Forecast& forecast);

/// How the soldier is, with nothing under the pointer.
std::vector<ReadoutLine> LinesOf(const Unit& soldier);

/// `text` on as many lines as it needs.
std::vector<ReadoutLine> Wrapped(const std::string& text, Tone tone);

/// The first letters of a text that is too long, and dots.
std::string Shortened(const std::string& text, std::size_t longest);

/// As "CPT Marcus Hale", "Turn 5 · 11 of 12 left" and "Burst [3] · 18 of 30 rounds".
std::string NameLine(const Unit& soldier);
std::string TurnLine();
std::string HandLine(const Unit& soldier);
