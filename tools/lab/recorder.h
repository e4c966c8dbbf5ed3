// Runs the game and tells what happens as the lines of a recording, as they come.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/input_event.h"
#include "tools/lab/shown_watch.h"
#include "tools/lab/state_watch.h"

class Recorder {
  public:
    using Sink = std::function<void(const std::string& line)>;

    /// Lines go to `sink`; with none the game only runs, at its full speed.
    explicit Recorder(Sink sink);
    ~Recorder();

    /// Starts a game. The host must have been installed.
    void Start(std::uint32_t seed);

    /// Gives an event to the game. What the game throws comes through, told as the last line.
    void Dispatch(const InputEvent& event);

    /// How many events there were.
    int Events() const { return events; }

    /// What was last seen and heard; the game must have started with a sink.
    const ShownWatch& Shown() const { return *shown; }

    /// The most processor time that an event took for itself, without those that it let in.
    std::chrono::nanoseconds LongestEvent() const { return longest; }

  private:
    void TellEvent(int number, const InputEvent& event) const;
    void TellState(int event);
    void TellEnd(const std::string& line);
    void Run(const std::function<void()>& piece);

    const Sink sink;
    std::unique_ptr<StateWatch> watch;
    std::unique_ptr<ShownWatch> shown;
    int events = 0;
    bool ended = false;
    std::chrono::nanoseconds inner{0};  // what events within the running one took
    std::chrono::nanoseconds longest{0};
};
