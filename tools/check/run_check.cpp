#include "tools/check/run_check.h"

#include <cstdlib>
#include <iostream>
#include <memory>
#include <optional>

#include "tools/check/checker.h"
#include "tools/check/picture_checks.h"

namespace {

namespace fs = std::filesystem;

struct CheckOptions {
    std::optional<fs::path> game;
    std::optional<fs::path> sources;
    bool json = false;
};

Findings CheckAll(const CheckOptions& options, const CheckedFolders& built) {
    const bool both = !options.game && !options.sources;
    const fs::path game = options.game.value_or(built.game);
    Findings findings;
    if (both || options.sources) findings = CheckSources(options.sources.value_or(built.sources), game);
    if (both || options.game) {
        const Findings inGame = CheckGame(game);
        findings.insert(findings.end(), inGame.begin(), inGame.end());
        CheckPictures(game, findings);
    }
    return findings;
}

int Run(const CheckOptions& options, const CheckedFolders& built) {
    const Findings findings = CheckAll(options, built);
    std::cout << (options.json ? FindingsJson(findings) : FindingsText(findings));
    if (!options.json && !findings.empty())
        std::cerr << findings.size() << (findings.size() == 1 ? " fault\n" : " faults\n");
    return findings.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

Work AddCheck(CLI::App& app, const CheckedFolders& built) {
    const auto options = std::make_shared<CheckOptions>();
    app.add_option("--game", options->game, "a game: the folder of dat/, map/, pic/ and wav/")
        ->type_name("FOLDER")
        ->check(HoldsData());
    app.add_option("--sources", options->sources,
                   "the sources of one: the folder of dat/, map/ and campaign/;\n"
                   "their pictures and sounds are those of the game")
        ->type_name("FOLDER")
        ->check(HoldsData());
    app.add_flag("--json", options->json, "for programs: a list of objects");
    return [options, built] { return Run(*options, built); };
}
