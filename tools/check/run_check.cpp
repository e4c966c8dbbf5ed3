#include "tools/check/run_check.h"

#include <cstdlib>
#include <iostream>

#include "tools/arguments.h"
#include "tools/check/checker.h"
#include "tools/check/picture_checks.h"

namespace {

constexpr const char* Usage = R"(usage: sarnoth-check [--game FOLDER] [--sources FOLDER] [--json]

Reads the data of the game and tells every fault in it: the file, the place, what is wrong and what was
expected. Without a folder it checks the sources and the game that were built with it.

  --game FOLDER     a game: the folder of dat/, map/, pic/ and wav/
  --sources FOLDER  the sources of one: the folder of dat/, map/ and campaign/; their pictures and sounds are
                    those of the game
  --json            for programs: a list of objects

Exit code 0: no fault; 1: faults; 2: a wrong command line.
)";

Findings CheckAll(const Arguments& given, const CheckedFolders& built) {
    const bool both = !given.Has("--game") && !given.Has("--sources");
    const std::filesystem::path game = given.DataFolder("--game", built.game);
    const std::filesystem::path sources = given.DataFolder("--sources", built.sources);
    Findings findings;
    if (both || given.Has("--sources")) findings = CheckSources(sources, game);
    if (both || given.Has("--game")) {
        const Findings inGame = CheckGame(game);
        findings.insert(findings.end(), inGame.begin(), inGame.end());
        CheckPictures(game, findings);
    }
    return findings;
}

}  // namespace

int RunCheck(const std::vector<std::string>& arguments, const CheckedFolders& built) {
    const Arguments given(arguments, {"--game", "--sources"}, {"--json", "--help"});
    const bool json = given.Has("--json");
    if (given.Has("--help")) {
        std::cout << Usage;
        return EXIT_SUCCESS;
    }
    const Findings findings = CheckAll(given, built);
    std::cout << (json ? FindingsJson(findings) : FindingsText(findings));
    if (!json && !findings.empty())
        std::cerr << findings.size() << (findings.size() == 1 ? " fault\n" : " faults\n");
    return findings.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
