#include "tools/lab/recording.h"

#include <fstream>
#include <sstream>

#include "platform/run_time_error.h"

namespace {

constexpr const char* FirstLine = "sarnoth recording 1";

[[noreturn]] void Fail(const std::string& name, std::size_t line, const std::string& expected) {
    throw RunTimeError(Fault::BadData, name + ":" + std::to_string(line) + ": expected " + expected);
}

// What follows `word` and a blank in `line`.
std::string After(const std::string& word, const std::string& line, const std::string& name,
                  std::size_t number) {
    if (!line.starts_with(word + " ")) Fail(name, number, "\"" + word + " ...\"");
    return line.substr(word.size() + 1);
}

std::uint32_t SeedFrom(const std::string& text, const std::string& name) {
    std::istringstream stream(text);
    std::uint32_t seed = 0;
    std::string rest;
    if (!(stream >> seed) || stream >> rest) Fail(name, 3, "a seed, 0 to 4294967295");
    return seed;
}

RecordedEvent EventFrom(const std::string& line, const std::string& name, std::size_t number) {
    try {
        return RecordedEventFromText(line);
    } catch (const RunTimeError& error) {
        throw RunTimeError(Fault::BadData, name + ":" + std::to_string(number) + ": " + error.About());
    }
}

bool IsKnownLine(const std::string& line) {
    for (const char* start : {"after ", "event ", "  ", "end ", "error "})
        if (line.starts_with(start)) return true;
    return false;
}

}  // namespace

Recording ReadRecording(const std::filesystem::path& file) {
    std::ifstream text(file);
    if (!text) throw RunTimeError(Fault::FileMissing, file.string());
    return ReadRecording(text, file.string());
}

Recording ReadRecording(std::istream& text, const std::string& name) {
    Recording recording;
    std::string line;
    std::size_t number = 0;
    while (std::getline(text, line)) {
        ++number;
        if (number == 1 && line != FirstLine) Fail(name, number, std::string("\"") + FirstLine + "\"");
        if (number == 2) recording.build = After("build", line, name, number);
        if (number == 3) recording.seed = SeedFrom(After("seed", line, name, number), name);
        if (number <= 3) continue;
        if (!IsKnownLine(line)) Fail(name, number, "an event, what it changed, or the end");
        if (line.starts_with("event ")) recording.events.push_back(EventFrom(line, name, number));
        recording.lines.push_back(line);
    }
    if (number < 4) Fail(name, number + 1, "a seed and the state after the start");
    return recording;
}

std::string RecordingHead(std::uint32_t seed) {
    return std::string(FirstLine) + "\nbuild " + SARNOTH_VERSION + " " + SARNOTH_COMPILER + "\nseed " +
           std::to_string(seed);
}
