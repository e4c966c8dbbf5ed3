// The few things that the game asks of the machine at run time. The desktop program answers on real windows;
// the headless host answers for tests and tools. Nothing else in the library knows which one it is talking
// to.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <utility>

struct Control;
struct Form;

/// One sound to be played once. Levels are in hundredths of a decibel.
struct SoundRequest {
    std::string fileName;  // as "\wav\click.wav"; it exists
    int slot = 1;          // 1 to 4: a sound that still plays in this slot is cut
    int volume = 0;        // 0 or below: added to both sides
    int pan = 0;           // above 0 the left side is lowered by it, below 0 the right side by its amount
    int frequency = 0;     // samples a second at which the file is played, whatever it says itself
};

class Host {
  public:
    Host() = default;
    virtual ~Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /// Shows the changes of `control` and of its window now.
    virtual void Refresh(Control& control) = 0;

    /// The number of the innermost pump, wait or modal window that lets events in now, counted from 1 in the
    /// order in which they began; 0 outside them all. With the order of the events it tells where in a run
    /// each came.
    int InnermostPump() const { return innermost; }

    /// How many of them have begun.
    int BegunPumps() const { return begun; }

    /// Counts on from `pumps`, where the run that this host goes on with has come to; 0 for a new one.
    void CountPumpsFrom(int pumps) { begun = pumps; }

    /// Lets the events that wait be handled; each may run a whole order before this returns.
    virtual void PumpEvents() = 0;

    /// Waits by the clock. With `pump` events are handled meanwhile, at least once.
    virtual void Wait(std::chrono::nanoseconds time, bool pump) = 0;

    /// Shows a form that is visible over the others and returns when it has been hidden again.
    virtual void ShowModal(Form& form) = 0;

    /// Shows `text` in a box and returns when it has been read.
    virtual void ShowMessage(const std::string& text) = 0;

    /// Plays a sound, and lets who listens know.
    void PlaySound(const SoundRequest& sound) {
        if (listener) listener(sound);
        Emit(sound);
    }

    /// Every sound that is asked for is passed to `ear` too; an empty one listens no more.
    using Ear = std::function<void(const SoundRequest& sound)>;
    void Listen(Ear ear) { listener = std::move(ear); }

    /// Ends the process at once; nothing of the game runs any more.
    [[noreturn]] virtual void EndProcess(int exitCode) = 0;

  protected:
    virtual void Emit(const SoundRequest& sound) = 0;

    /// Lives for as long as events are let in.
    class Pumping {
      public:
        explicit Pumping(Host& by) : host(by), outer(by.innermost) { host.innermost = ++host.begun; }
        ~Pumping() { host.innermost = outer; }
        Pumping(const Pumping&) = delete;
        Pumping& operator=(const Pumping&) = delete;

      private:
        Host& host;
        int outer;
    };

  private:
    Ear listener;
    int begun = 0;
    int innermost = 0;
};

/// The host of this process; one must have been installed.
Host& TheHost();

/// Makes `host` the host of this process, nullptr for none. It must outlive its use.
void InstallHost(Host* host);
