// The page as the host sees it. What is shown goes to it as messages, each one JSON object; pixels go beside
// them; what a person does comes back as lines. browser/README.md has them all.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// Pixels of a picture as canvases take them, four bytes each: red, green, blue, alpha; row after row.
struct PixelBlock {
    std::string picture;  // a control's or form's name
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    const std::uint8_t* bytes = nullptr;
};

class Page {
  public:
    Page() = default;
    virtual ~Page() = default;
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    virtual void Post(const std::string& message) = 0;

    /// The block is used before this returns.
    virtual void PostPixels(const PixelBlock& block) = 0;

    /// The next line that has come; nothing when none waits.
    virtual std::optional<std::string> Next() = 0;

    /// Lets the browser work, so that it paints and takes events; returns when a line has come, or after
    /// `longest`. The one place where the game waits.
    virtual void Wait(std::chrono::nanoseconds longest) = 0;

    /// The game has ended, with an exit code as processes have them.
    virtual void End(int exitCode) = 0;
};
