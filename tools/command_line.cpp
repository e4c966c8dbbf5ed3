#include "tools/command_line.h"

#include <charconv>
#include <cstdlib>
#include <iostream>
#include <limits>

namespace {

constexpr int WrongUsage = 2;

bool ReadSeed(std::string_view text, std::uint32_t& seed) {
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    return error == std::errc() && stop == text.data() + text.size();
}

bool ReadSeeds(std::string_view text, SeedRange& seeds) {
    const std::size_t dots = text.find("..");
    return dots != std::string_view::npos && ReadSeed(text.substr(0, dots), seeds.first) &&
           ReadSeed(text.substr(dots + 2), seeds.last) && seeds.first <= seeds.last;
}

class HelpFormatter : public CLI::Formatter {
  public:
    std::string make_usage(const CLI::App* app, std::string name) const override {
        return "\n" + CLI::Formatter::make_usage(app, std::move(name));
    }
    // What kind of value it takes, and which without it.
    std::string make_option_opts(const CLI::Option* option) const override {
        const std::string kind = option->get_type_name(), otherwise = option->get_default_str();
        return (kind.empty() ? "" : " " + kind) + (otherwise.empty() ? "" : " (" + otherwise + ")");
    }
};

}  // namespace

CommandLine::CommandLine(const char* program, const char* purpose, const char* exitCodes)
    : CLI::App(purpose, program) {
    const auto help = std::make_shared<HelpFormatter>();
    help->label("Positionals", "Files");
    formatter(help);
    footer(exitCodes);
}

int CommandLine::Follow(int count, char** arguments, Work (*add)(CLI::App& app)) try {
    const Work work = add(*this);
    parse(count, arguments);
    return work();
} catch (const CLI::ParseError& error) {
    return exit(error) == EXIT_SUCCESS ? EXIT_SUCCESS : WrongUsage;
} catch (const std::exception& error) {
    std::cerr << get_name() << ": " << error.what() << "\n";
    return EXIT_FAILURE;
}

CLI::Option* AddSeeds(CLI::App& app, SeedRange& seeds) {
    const auto read = [&seeds](const std::string& text) {
        if (!ReadSeeds(text, seeds))
            throw CLI::ValidationError("--seeds", text + " isn't A..B, counting upward, as 1..1000");
    };
    return app.add_option_function<std::string>("--seeds", read, "the seeds, both included")
        ->type_name("A..B")
        ->default_str(std::to_string(seeds.first) + ".." + std::to_string(seeds.last));
}

CLI::Option* AddGame(CLI::App& app, std::filesystem::path& game) {
    return app
        .add_option("--game", game,
                    "the game: the folder of dat/, map/, pic/ and wav/\n(the one built with this)")
        ->type_name("FOLDER")
        ->check(HoldsData());
}

CLI::Option* AddSeed(CLI::App& app, std::uint32_t& seed) {
    return app.add_option("--seed", seed, "where chance begins")->type_name("N")->capture_default_str();
}

CLI::Option* AddPlayer(CLI::App& app, std::string& player) {
    return app
        .add_option("--player", player,
                    "simple: knows where the enemy is, walks there and fires;\n"
                    "sensible: searches in short bounds, fires when the odds are fair, takes cover;\n"
                    "careless: searches at a run, runs at the enemy, fires whoever is in the way")
        ->type_name("NAME")
        ->check(CLI::IsMember({"simple", "sensible", "careless"}).description(""))
        ->capture_default_str();
}

CLI::Option* AddTurns(CLI::App& app, int& turns) {
    return app.add_option("--turns", turns, "the squad leaves the field after so many turns")
        ->type_name("N")
        ->check(Within(1, std::numeric_limits<int>::max()))
        ->capture_default_str();
}

CLI::Option* AddFile(CLI::App& app, const char* name, std::filesystem::path& file, const char* description) {
    return app.add_option(name, file, description)->type_name("")->required();
}

CLI::Validator HoldsData() {
    const auto fault = [](const std::string& folder) {
        return std::filesystem::is_directory(std::filesystem::path(folder) / "dat")
                   ? std::string()
                   : "no folder with dat/: " + folder;
    };
    return CLI::Validator(fault, "");
}

CLI::Validator Within(int least, int most) {
    return CLI::Range(least, most).description("");
}
