#include "shell/journal.h"

#include <array>
#include <charconv>
#include <fstream>
#include <iterator>

#include "platform/files.h"
#include "platform/game_folders.h"
#include "platform/hash.h"
#include "platform/quoted.h"
#include "platform/run_time_error.h"

namespace {

constexpr std::string_view FirstLine = "sarnoth journal 1";
constexpr int HeadLines = 5;
constexpr int MostTries = 2;

constexpr const char* StoreFile = "\\dat\\apc.dat";
constexpr std::array<const char*, 8> DataFiles = {
    "\\dat\\weapons.dat", "\\dat\\countries.dat", "\\dat\\ori.dat", "\\dat\\save.dat",
    "\\map\\491.map",     "\\map\\492.map",       "\\map\\493.map", "\\map\\49g.map"};

void AddFile(Fnv& sum, const char* name) {
    try {
        sum.Add(ReadWholeFile(name, MaxDataFile));
    } catch (const RunTimeError&) {
        sum.Add(name);
    }
}

// The program stays what it is while it runs, so it is summed up once.
std::string BuildSum() {
    static const std::string sum = [] {
        std::ifstream file(OwnProgram(), std::ios::binary);
        Fnv fnv;
        fnv.Add(std::string(std::istreambuf_iterator<char>(file), {}));
        return Fnv::Text(fnv.Sum());
    }();
    return sum;
}

// What follows `word` and a blank in `line`.
std::string After(const std::string& word, std::string_view line) {
    if (!line.starts_with(word + " "))
        throw RunTimeError(Fault::BadData, "expected \"" + word + " ...\", found " + Quoted(line));
    return std::string(line.substr(word.size() + 1));
}

std::uint32_t SeedFrom(const std::string& text) {
    std::uint32_t seed = 0;
    const char* const end = text.data() + text.size();
    if (const auto read = std::from_chars(text.data(), end, seed); read.ec != std::errc() || read.ptr != end)
        throw RunTimeError(Fault::BadData, "expected a seed, 0 to 4294967295, found " + Quoted(text));
    return seed;
}

constexpr std::string_view StoreWord = "things";
constexpr std::string_view HexDigits = "0123456789abcdef";

std::string HexOf(std::string_view bytes) {
    std::string hex;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += HexDigits[value >> 4];
        hex += HexDigits[value & 15U];
    }
    return hex;
}

std::string BytesFrom(std::string_view hex) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2) {
        const std::size_t high = HexDigits.find(hex[i]);
        const std::size_t low = HexDigits.find(hex[i + 1]);
        if (high == std::string_view::npos || low == std::string_view::npos)
            throw RunTimeError(Fault::BadData, "expected bytes as pairs of hexadecimal digits");
        bytes += static_cast<char>(high << 4 | low);
    }
    return bytes;
}

class JournalReader {
  public:
    JournalReader(std::string_view of, std::string called) : text(of), name(std::move(called)) {}

    Journal Read() {
        for (;;) {
            const std::size_t end = text.find('\n', journal.length);
            if (end == std::string_view::npos) break;
            ++number;
            const std::string line(text.substr(journal.length, end - journal.length));
            const bool isLast = text.find('\n', end + 1) == std::string_view::npos;
            if (!Take(line, isLast)) break;
            journal.length = end + 1;
        }
        journal.isStuck = tries >= MostTries;
        return std::move(journal);
    }

  private:
    // False for a spoilt last line.
    bool Take(const std::string& line, bool isLast) {
        try {
            if (number <= HeadLines)
                TakeHead(line);
            else
                TakeRun(line);
        } catch (const RunTimeError& error) {
            if (isLast && number > HeadLines) return false;
            throw RunTimeError(Fault::BadData, name + ":" + std::to_string(number) + ": " + error.About());
        }
        return true;
    }

    void TakeHead(const std::string& line) {
        JournalHead& head = journal.head;
        if (number == 1 && line != FirstLine)
            throw RunTimeError(Fault::BadData, "expected " + Quoted(FirstLine) + ", found " + Quoted(line));
        if (number == 2) head.build = After("build", line);
        if (number == 3) head.data = After("data", line);
        if (number == 4) head.store = After("store", line);
        if (number == HeadLines) head.seed = SeedFrom(After("seed", line));
    }

    void TakeRun(const std::string& line) {
        if (line + "\n" == TryingLine) {
            ++tries;
        } else if (line + "\n" == PlayingLine) {
            tries = 0;
        } else if (line + "\n" == FailedLine) {
            tries = MostTries;
        } else if (line.starts_with(StoreWord)) {
            journal.store = BytesFrom(After(std::string(StoreWord), line));
        } else {
            journal.events.push_back(RecordedEventFromText(line));
            journal.places.push_back(journal.length);
        }
    }

    const std::string_view text;
    const std::string name;
    Journal journal;
    int number = 0;  // of the line
    int tries = 0;   // replays that began and didn't end
};

}  // namespace

JournalHead HeadOfGame(std::uint32_t seed) {
    Fnv data;
    for (const char* name : DataFiles)
        AddFile(data, name);
    Fnv store;
    AddFile(store, StoreFile);
    return {BuildSum(), Fnv::Text(data.Sum()), Fnv::Text(store.Sum()), seed};
}

std::string HeadText(const JournalHead& head) {
    return std::string(FirstLine) + "\nbuild " + head.build + "\ndata " + head.data + "\nstore " +
           head.store + "\nseed " + std::to_string(head.seed) + "\n";
}

std::string StoreText() {
    try {
        return std::string(StoreWord) + " " + HexOf(ReadWholeFile(StoreFile, MaxDataFile)) + "\n";
    } catch (const RunTimeError&) {
        return "";
    }
}

std::string DifferenceOfGames(const JournalHead& was, const JournalHead& now) {
    if (was.build != now.build) return "was played with another build of the program";
    if (was.data != now.data) return "was played with other data";
    return "";
}

Journal ReadJournal(std::string_view text, const std::string& name) {
    return JournalReader(text, name).Read();
}

void DropLastOrder(Journal& journal) {
    bool dropped = false;
    while (!journal.events.empty() && !dropped) {
        dropped = journal.events.back().pump == 0;
        journal.length = journal.places.back();
        journal.events.pop_back();
        journal.places.pop_back();
    }
    journal.isStuck = false;
}
