// Replays a recording, without a window or in one, and finds where it went another way.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/headless_host.h"
#include "shell/companion.h"
#include "tools/lab/recorder.h"
#include "tools/lab/recording.h"

struct ReplayResult {
    std::size_t events = 0;  // that were replayed
    std::string difference;  // empty when everything went as recorded
};

/// Gives the recorded events to the game where they came, and compares the lines. A companion goes along, as
/// with a person who plays, and must not change any.
class Replay {
  public:
    /// `whoGoesAlong` must outlive it. With `pictureFolder` the field as recorded and as replayed is painted
    /// into it where they first differ.
    Replay(const Recording& ofRecording, Companion& whoGoesAlong, std::filesystem::path pictureFolder = {});

    /// Starts the game; the host must have been installed.
    void Start();

    /// Dispatches the events that came in this pump, as far as they are next; outside all pumps, for which
    /// `pump` is 0, one at a time. Whether there was one.
    bool LetIn(int pump);

    /// The game has ended the process; for a host that doesn't throw then.
    void Ended(int exitCode) { Compare("end " + std::to_string(exitCode)); }

    bool Done() const { return next == recording.events.size() || !difference.empty(); }
    ReplayResult Result();

  private:
    using Lines = std::vector<std::string>;

    void Compare(const std::string& line);
    void CompareBlock();
    Lines RecordedBlock() const;
    void Differ(const Lines& recorded);
    std::string DifferingSquare(const Lines& recorded) const;
    void PaintDifference(const Lines& recorded) const;

    const Recording& recording;
    const std::filesystem::path pictures;  // empty for none
    Companion& companion;
    Recorder recorder;
    std::size_t next = 0;      // event
    std::size_t compared = 0;  // lines
    Lines block;     // the replay's newest lines that belong together: one and those indented under it
    Picture agreed;  // the field after the last block in which both agreed
    std::string difference;
};

/// All of it without a window, with the data of the program's folder.
ReplayResult ReplayHeadless(const Recording& recording, const std::filesystem::path& pictureFolder = {});
