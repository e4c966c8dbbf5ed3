// The page around the module, by calls of its scripts.
#pragma once

#include "browser/page.h"

class WasmPage : public Page {
  public:
    void Post(const std::string& message) override;
    void PostPixels(const PixelBlock& block) override;
    std::optional<std::string> Next() override;
    void Wait(std::chrono::nanoseconds longest) override;
    void End(int exitCode) override;
};
