// Sounds on the machine's sound device, up to four at once. Where there is no device nothing is heard and
// nobody is troubled.
#pragma once

#include <vector>

#include "platform/host.h"

class SoundDevice {
  public:
    SoundDevice();
    ~SoundDevice();
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;

    /// Starts a sound and returns. Opens the device if need be. Throws RunTimeError (BadData) for a file that
    /// isn't a sound, as long as there is a device.
    void Play(const SoundRequest& sound);

    /// Of all sounds, in hundredths, from now on. At 0 no sound is begun.
    void SetLoudness(int hundredths);

    bool Playing() const;

    /// Cuts what plays and gives the device back until the next Play.
    void Close();

  private:
    enum class State { Closed, Open, Missing };

    struct Slot;

    bool Open();

    State state = State::Closed;
    int loudness = 100;
    std::vector<Slot> slots;  // by the request's slot
};
