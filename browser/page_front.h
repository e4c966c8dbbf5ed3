// What the page has round the game for its player: the windows' own keys and menu, settings, help, the squad
// at a glance and the log for people. It is sent as messages like everything else; none of it reaches the
// game.
#pragma once

#include <istream>
#include <string>

#include "browser/browser_host.h"
#include "shell/companion.h"
#include "shell/front_commands.h"
#include "shell/settings.h"

class PageFront {
  public:
    /// All must outlive it. Takes over the host's keys, lines and what is shown beside the game.
    PageFront(BrowserHost& onHost, Page& onPage, Companion& whoseGame, SettingsFile& ofPlayer);

    /// Shows the card for the first start, once in a player's life.
    void ShowFirstCard();

  private:
    bool TakeKey(const KeyInput& key);
    void TakeLine(const std::string& word, std::istream& rest);
    void Run(FrontCommand command);
    void ShowHelp(const std::string& title, const std::string& html);
    void Show();
    void ShowMenu();
    void ShowSquad();
    void ShowLog();
    void Send(std::string& sent, std::string message);

    BrowserHost& host;
    Page& page;
    Companion& companion;
    SettingsFile& settings;
    std::string sentMenu;
    std::string sentSquad;
    std::size_t sentRevision = 0;  // of the chronicle; 0: none was sent
};
