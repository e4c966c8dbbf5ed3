#include "tools/check/run_check.h"

#include <cstdlib>
#include <iostream>

#include "tools/check/checker.h"
#include "tools/check/options.h"

namespace {

Findings CheckAll(const CheckOptions& options, const CheckedFolders& built) {
    const bool both = options.game.empty() && options.sources.empty();
    const std::filesystem::path& game = options.game.empty() ? built.game : options.game;
    Findings findings;
    if (both || !options.sources.empty())
        findings = CheckSources(both ? built.sources : options.sources, game);
    if (both || !options.game.empty()) {
        const Findings inGame = CheckGame(game);
        findings.insert(findings.end(), inGame.begin(), inGame.end());
    }
    return findings;
}

}  // namespace

int RunCheck(const std::vector<std::string>& arguments, const CheckedFolders& built) {
    const CheckOptions options = ReadCheckOptions(arguments);
    if (options.help) {
        std::cout << CheckUsage;
        return EXIT_SUCCESS;
    }
    const Findings findings = CheckAll(options, built);
    std::cout << (options.json ? FindingsJson(findings) : FindingsText(findings));
    if (!options.json && !findings.empty())
        std::cerr << findings.size() << (findings.size() == 1 ? " fault\n" : " faults\n");
    return findings.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
