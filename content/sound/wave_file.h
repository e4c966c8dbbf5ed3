#pragma once

#include <filesystem>

#include "signal.h"

/// Writes a signal as a 16-bit mono PCM file of `rate` samples a second; makes its folder. Throws
/// std::runtime_error.
void WriteWave(const std::filesystem::path& path, const Signal& signal, int rate = SampleRate);
