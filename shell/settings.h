// What the player has set, in a small text file of his, "settings.txt": one "name = value" a line. What is
// broken there has its usual value, and is reported once; it never ends the game.
#pragma once

#include <string>
#include <string_view>

constexpr const char* SettingsFileName = "\\settings.txt";

struct Settings {
    int halves = 0;  // of the windows' scale: 3 is one and a half; 0 the largest that fits the screen
    bool fullScreen = false;
    int volume = 100;  // hundredths
    bool muted = false;
    bool ambience = true;
    bool askBeforeEndTurn = true;
    bool firstCardSeen = false;
    bool squadWindowShown = true;

    /// What sounds are multiplied by, in hundredths.
    int Loudness() const { return muted ? 0 : volume; }

    bool operator==(const Settings&) const = default;
};

/// A file's text, every setting on a line.
std::string SettingsText(const Settings& settings);

/// Takes over what `text` sets. The result is about the first line that can't be understood, as "line 3:
/// expected volume = 0 to 100, found ..."; empty where there is none.
std::string TakeSettings(std::string_view text, Settings& settings);

/// The settings of the player who plays, and their file.
class SettingsFile {
  public:
    /// Reads the file from the player's folder, which must be set. Trouble is a line on standard error and
    /// the result, a sentence for the player; empty where there is none, or no file.
    std::string Load();

    const Settings& Now() const { return now; }

    /// Takes other settings, and writes the file when they differ; not before Load. The first time that it
    /// can't be written is a line on standard error.
    void Change(const Settings& to);

  private:
    Settings now;
    bool kept = false;     // in the player's folder, and no longer in memory alone
    bool refused = false;  // the file couldn't be written
};
