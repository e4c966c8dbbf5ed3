// A page that writes down what it is told, and says what the test has written.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "browser/page.h"

class WrittenPage : public Page {
  public:
    struct Ended {
        int exitCode;
    };

    void Post(const std::string& message) override { messages.push_back(message); }

    void PostPixels(const PixelBlock& block) override {
        messages.push_back("pixels " + block.picture + " " + std::to_string(block.left) + "," +
                           std::to_string(block.top) + " " + std::to_string(block.width) + "x" +
                           std::to_string(block.height));
        lastBytes.assign(block.bytes, block.bytes + 4 * block.width * block.height);
    }

    std::optional<std::string> Next() override {
        if (lines.empty()) return {};
        std::string line = lines.front();
        lines.pop_front();
        return line;
    }

    /// Takes the time. Where nothing moves, `idle` is asked for what comes next.
    void Wait(std::chrono::nanoseconds longest) override {
        ++waits;
        if (longest < std::chrono::seconds(1)) return std::this_thread::sleep_for(longest);
        idle();
    }

    void End(int exitCode) override { throw Ended{exitCode}; }

    /// What was told since the last call.
    std::vector<std::string> News() {
        const auto from = static_cast<std::ptrdiff_t>(told);
        told = messages.size();
        return {messages.begin() + from, messages.end()};
    }

    /// Whether a message since the last News says so.
    bool Says(const std::string& part) const {
        for (std::size_t i = told; i < messages.size(); ++i)
            if (messages[i].find(part) != std::string::npos) return true;
        return false;
    }

    std::vector<std::string> messages;
    std::vector<std::uint8_t> lastBytes;  // of the newest block of pixels
    std::deque<std::string> lines;
    std::function<void()> idle = [] {};
    int waits = 0;

  private:
    std::size_t told = 0;
};
