// WAV files as the sound device plays them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/host.h"

constexpr int DeviceFrequency = 44100;
constexpr int DeviceSides = 2;

using Samples = std::vector<std::int16_t>;  // left and right in turn

/// The WAV file `content` at the device's frequency, with the rate and the levels that `sound` asks for; its
/// file's name stands in messages. Throws RunTimeError (BadData).
Samples DecodeSound(std::string_view content, const SoundRequest& sound);

/// The WAV file `content` as one channel at the device's frequency and at its own pace, such that its end
/// goes over into its beginning. Throws RunTimeError (BadData), with `fileName` in the message.
Samples DecodeLoop(std::string_view content, const std::string& fileName);
