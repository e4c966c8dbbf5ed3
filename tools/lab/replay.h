// Replays a recording, without a window or in one, and finds where it went another way.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "platform/headless_host.h"
#include "tools/lab/recorder.h"
#include "tools/lab/recording.h"

struct ReplayResult {
    std::size_t events = 0;  // that were replayed
    std::string difference;  // empty when everything went as recorded
};

/// Gives the recorded events to the game where they came, and compares the lines.
class Replay {
  public:
    explicit Replay(const Recording& ofRecording);

    /// Starts the game; the host must have been installed.
    void Start();

    /// Dispatches the events that came in this pump, as far as they are next. 0 is outside all pumps.
    void LetIn(int pump);

    /// The game has ended the process; for a host that doesn't throw then.
    void Ended(int exitCode) { Compare("end " + std::to_string(exitCode)); }

    bool Done() const { return next == recording.events.size() || !difference.empty(); }
    ReplayResult Result() const;

  private:
    void Compare(const std::string& line);

    const Recording& recording;
    Recorder recorder;
    std::size_t next = 0;      // event
    std::size_t compared = 0;  // lines
    std::string event;         // the one last given
    std::string difference;
};

/// All of it without a window, with the data of the program's folder.
ReplayResult ReplayHeadless(const Recording& recording);
