// sarnoth-check: tells every fault in the game's data.
#include <iostream>

#include "tools/check/checker.h"
#include "tools/check/options.h"

namespace {

enum ExitCode { NoFault, Faults, WrongUsage };

Findings CheckAll(const CheckOptions& options) {
    const bool both = options.game.empty() && options.sources.empty();
    const std::filesystem::path game = options.game.empty() ? GAME_FOLDER : options.game;
    Findings findings;
    if (both || !options.sources.empty())
        findings = CheckSources(both ? SOURCES_FOLDER : options.sources, game);
    if (both || !options.game.empty()) {
        const Findings inGame = CheckGame(game);
        findings.insert(findings.end(), inGame.begin(), inGame.end());
    }
    return findings;
}

}  // namespace

int main(int count, char** arguments) try {
    const CheckOptions options = ReadCheckOptions({arguments + 1, arguments + count});
    if (options.help) {
        std::cout << CheckUsage;
        return NoFault;
    }
    const Findings findings = CheckAll(options);
    std::cout << (options.json ? FindingsJson(findings) : FindingsText(findings));
    if (!options.json && !findings.empty())
        std::cerr << findings.size() << (findings.size() == 1 ? " fault\n" : " faults\n");
    return findings.empty() ? NoFault : Faults;
} catch (const UsageError& error) {
    std::cerr << "sarnoth-check: " << error.what() << "\nsarnoth-check --help tells more.\n";
    return WrongUsage;
} catch (const std::exception& error) {
    std::cerr << "sarnoth-check: " << error.what() << "\n";
    return Faults;
}
