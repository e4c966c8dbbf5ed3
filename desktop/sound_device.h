// Sounds on the machine's sound device, one in each slot at once, and the loops of the valley below them.
// Where there is no device nothing is heard and nobody is troubled.
#pragma once

#include <array>
#include <vector>

#include "desktop/loop_mixer.h"
#include "platform/host.h"
#include "platform/run_time_error.h"
#include "shell/ambience.h"

class SoundDevice {
  public:
    SoundDevice();
    ~SoundDevice();
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Starts a sound and returns. Opens the device if need be. Throws RunTimeError (BadData) for a file that
    /// isn't a sound, as long as there is a device.
    void Play(const SoundRequest& sound);

    /// The same, but that a broken file is a line on standard error, the first one.
    void PlayIfSound(const SoundRequest& sound);

    /// Of all sounds, in hundredths, from now on. At 0 no sound is begun.
    void SetLoudness(int hundredths);

    /// Fades to what the valley sounds like, and opens the device if need be. A loop whose file is missing or
    /// broken isn't heard.
    void SetAmbience(const AmbienceLevels& levels);

    /// Whether the valley is heard at all.
    void LetAmbience(bool on);

    /// A sound, ambience aside.
    bool Playing() const;

    bool IsOpen() const { return state == State::Open; }

    /// Whether the device is open but plays nothing, or has gone away.
    bool Idle() const;

    /// Cuts what plays and gives the device back until the next Play.
    void Close();

  private:
    enum class State { Closed, Open, Missing };

    struct Slot;

    bool Open();
    void Complain(const RunTimeError& error);
    void ApplyAmbience();
    void LoadLoop(std::size_t loop);

    State state = State::Closed;
    int loudness = 100;
    std::vector<Slot> slots;  // by the request's slot
    LoopMixer loops{AmbienceLoopCount};
    AmbienceLevels ambience = {};
    std::array<bool, AmbienceLoopCount> loaded = {};
    bool hasAmbience = true;
    bool complained = false;
};
