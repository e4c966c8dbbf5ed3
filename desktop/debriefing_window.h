// The debriefing in a box, before the game's last message.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

/// Writes the recording of the game to a file; the result is why it couldn't, empty when it could.
using SaveRecording = std::function<std::string(const std::filesystem::path& file)>;

/// Shows a page of HTML, and offers to save the recording, unless `save` is empty; returns when it is closed.
void ShowDebriefing(const std::string& page, const SaveRecording& save);
