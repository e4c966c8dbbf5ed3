// What the tools' command lines share: their help, kinds of values, and how a program follows
// its line.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

/// What a command line asks for once it is read. Gives the exit code: 0 for well, 1 when something was found.
/// A CLI::ParseError is a value that only the game's data show to be wrong.
using Work = std::function<int()>;

/// A program's command line.
class CommandLine : public CLI::App {
  public:
    CommandLine(const char* program, const char* purpose, const char* exitCodes);

    /// Reads the line, with the options that `add` gives it, and does their work. Exit code 0 after --help, 1
    /// for any exception but a ParseError, which is shown, and 2 for a wrong command line.
    int Follow(int count, char** arguments, Work (*add)(CLI::App& app));
};

/// Both included.
struct SeedRange {
    std::uint32_t first;
    std::uint32_t last;
};

// Options that several programs have. What the option sets holds its default beforehand.

/// "--seeds A..B", upward.
CLI::Option* AddSeeds(CLI::App& app, SeedRange& seeds);

/// "--game FOLDER", a folder that holds dat/.
CLI::Option* AddGame(CLI::App& app, std::filesystem::path& game);

/// "--seed N".
CLI::Option* AddSeed(CLI::App& app, std::uint32_t& seed);

/// "--player NAME", one in code: simple, sensible or careless.
CLI::Option* AddPlayer(CLI::App& app, std::string& player);

/// "--turns N", at least one.
CLI::Option* AddTurns(CLI::App& app, int& turns);

/// A file that must be named, without the word of an option before it.
CLI::Option* AddFile(CLI::App& app, const char* name, std::filesystem::path& file, const char* description);

/// A value that is a folder with dat/.
CLI::Validator HoldsData();

/// A whole number within both.
CLI::Validator Within(int least, int most);
