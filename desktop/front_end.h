// What the player sets at the windows, and what helps him: their size, the sound, the pages of help. He
// reaches it by the windows' own keys and by the menu "Help"; none of it reaches the game.
#pragma once

#include <vector>

#include <QLabel>
#include <QPointer>
#include <QTimer>

#include "desktop/front_keys.h"
#include "desktop/help_window.h"
#include "desktop/window_sizes.h"
#include "shell/settings.h"

class DesktopHost;
class QAction;
class QMenu;

class FrontEnd : public QObject {
  public:
    /// For the windows of `onHost`, of which `ofMain` isn't on the screen yet; `forms` are all of them.
    FrontEnd(DesktopHost& onHost, FormWindow& ofMain, const std::vector<const Form*>& forms,
             SettingsFile& ofPlayer);

    /// Shows the card for the first start, once in a player's life.
    void ShowFirstCard();

    void Run(FrontCommand command);

  private:
    struct Tick {
        QAction* action;
        bool Settings::*shown;
    };

    void KeepSquadWindow();
    void FillMenu(QMenu& menu);
    void AddEntry(QMenu& menu, const FrontEntry& entry);
    void SyncMenu();
    void Resized();
    void Take(FrontCommand command);
    void ShowHelp(const QString& title, const std::string& page, int width, int most);
    void ShowCard();
    void Say(const std::string& words);

    DesktopHost& host;
    FormWindow& window;
    SettingsFile& settings;
    std::vector<Tick> ticks;
    QPointer<HelpWindow> help;
    QLabel note;  // over the main window's inside, for a moment
    QTimer noteEnd;
    WindowSizes sizes;
    FrontKeys keys;
};
