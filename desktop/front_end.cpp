#include "desktop/front_end.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "desktop/desktop_host.h"
#include "desktop/squad_window.h"
#include "shell/help_pages.h"

namespace {

constexpr int VolumeStep = 10;
constexpr int FullVolume = 100;
constexpr std::chrono::milliseconds NoteTime(1200);

// In pixels of the records.
constexpr int NoteTop = 24;
constexpr int NoteMargin = 6;
constexpr int KeysWidth = 700;
constexpr int KeysMost = 600;
constexpr int CardWidth = 560;

}  // namespace

FrontEnd::FrontEnd(DesktopHost& onHost, FormWindow& ofMain, const std::vector<const Form*>& forms,
                   SettingsFile& ofPlayer)
    : host(onHost),
      window(ofMain),
      settings(ofPlayer),
      note(&ofMain),
      sizes(ofMain, forms, ofPlayer, [this] { Resized(); }),
      keys([this](FrontCommand command) { Run(command); }) {
    note.hide();
    note.setAutoFillBackground(true);
    note.setBackgroundRole(QPalette::ToolTipBase);
    note.setForegroundRole(QPalette::ToolTipText);
    note.setFrameShape(QFrame::Box);
    note.setAttribute(Qt::WA_TransparentForMouseEvents);
    noteEnd.setSingleShot(true);
    noteEnd.setInterval(NoteTime);
    noteEnd.callOnTimeout(&note, &QWidget::hide);
    if (auto* const bar = window.findChild<QMenuBar*>()) FillMenu(*bar->addMenu(tr("&Help")));
    host.Sounds().SetLoudness(settings.Now().Loudness());
    host.Sounds().LetAmbience(settings.Now().ambience);
    KeepSquadWindow();
}

void FrontEnd::FillMenu(QMenu& menu) {
    AddEntry(menu, "&Keys", FrontCommand::Help);
    connect(menu.addAction(tr("&First steps")), &QAction::triggered, this, [this] { ShowCard(); });
    menu.addSeparator();
    AddEntry(menu, "&Larger", FrontCommand::Larger);
    AddEntry(menu, "&Smaller", FrontCommand::Smaller);
    AddEntry(menu, "As large as f&its", FrontCommand::Fit);
    AddEntry(menu, "Full s&creen", FrontCommand::FullScreen, &Settings::fullScreen);
    menu.addSeparator();
    AddEntry(menu, "Sound &off", FrontCommand::Mute, &Settings::muted);
    AddEntry(menu, "Lo&uder", FrontCommand::Louder);
    AddEntry(menu, "Sof&ter", FrontCommand::Softer);
    connect(AddTick(menu, tr("&Water, wind and birds"), &Settings::ambience), &QAction::triggered, this,
            [this](bool on) { host.Sounds().LetAmbience(on); });
    menu.addSeparator();
    if (SquadWindow* const squad = host.Squad())
        connect(AddTick(menu, tr("S&quad and log\tCtrl+B"), &Settings::squadWindowShown), &QAction::triggered,
                squad, &SquadWindow::SetShown);
    AddTick(menu, tr("&End Turn asks"), &Settings::askBeforeEndTurn);
    connect(&menu, &QMenu::aboutToShow, this, [this] { SyncMenu(); });
}

// The key stands in the column of shortcuts but makes none: it is taken before the menu could.
void FrontEnd::AddEntry(QMenu& menu, const char* caption, FrontCommand command, bool Settings::*shown) {
    QAction* const action = menu.addAction(QStringLiteral("%1\t%2").arg(tr(caption), KeyWords(command)));
    connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    if (shown == nullptr) return;
    action->setCheckable(true);
    ticks.push_back({action, shown});
}

QAction* FrontEnd::AddTick(QMenu& menu, const QString& caption, bool Settings::*shown) {
    QAction* const action = menu.addAction(caption);
    action->setCheckable(true);
    ticks.push_back({action, shown});
    connect(action, &QAction::triggered, this, [this, shown](bool on) { Set(shown, on); });
    return action;
}

void FrontEnd::Set(bool Settings::*what, bool on) {
    Settings changed = settings.Now();
    changed.*what = on;
    settings.Change(changed);
}

void FrontEnd::KeepSquadWindow() {
    SquadWindow* const squad = host.Squad();
    if (squad == nullptr) return;
    squad->SetShown(settings.Now().squadWindowShown);
    squad->AtToggle([this](bool shown) { Set(&Settings::squadWindowShown, shown); });
}

void FrontEnd::SyncMenu() {
    for (const Tick& tick : ticks)
        tick.action->setChecked(settings.Now().*tick.shown);
}

void FrontEnd::Run(FrontCommand command) {
    const Settings& now = settings.Now();
    switch (command) {
        case FrontCommand::Help:
            return ShowHelp(tr("Keys and mouse"), KeysPage(), KeysWidth, KeysMost);
        case FrontCommand::FullScreen:
            return sizes.ToggleFullScreen();
        case FrontCommand::Larger:
            return Say(
                (sizes.Step(+1) ? tr("Size %1") : tr("Size %1: no larger one fits")).arg(ScaleFactor()));
        case FrontCommand::Smaller:
            return Say((sizes.Step(-1) ? tr("Size %1") : tr("Size %1: the smallest")).arg(ScaleFactor()));
        case FrontCommand::Fit:
            sizes.Fit();
            return Say(tr("Size %1, as large as fits").arg(ScaleFactor()));
        case FrontCommand::Mute:
            return SetLoudness(now.volume, !now.muted);
        case FrontCommand::Louder:
            return SetLoudness(now.volume + VolumeStep, false);
        case FrontCommand::Softer:
            return SetLoudness(now.volume - VolumeStep, now.muted);
    }
}

void FrontEnd::SetLoudness(int volume, bool muted) {
    Settings changed = settings.Now();
    changed.volume = std::clamp(volume, 0, FullVolume);
    changed.muted = muted;
    settings.Change(changed);
    host.Sounds().SetLoudness(changed.Loudness());
    Say(muted ? tr("Sound off") : tr("Volume %1 %").arg(changed.volume));
}

void FrontEnd::Resized() {
    host.Sync();
    note.hide();
    if (help) help->Rescale();
}

void FrontEnd::ShowFirstCard() {
    Settings changed = settings.Now();
    if (changed.firstCardSeen) return;
    changed.firstCardSeen = true;
    settings.Change(changed);
    ShowCard();
}

void FrontEnd::ShowCard() {
    ShowHelp(tr("First steps"), FirstCardPage(), CardWidth, KeysMost);
}

void FrontEnd::ShowHelp(const QString& title, const std::string& page, int width, int most) {
    if (help) return;
    QWidget* const active = QApplication::activeWindow();
    help = new HelpWindow(active != nullptr ? *active : window, title, page, width, most);
    help->show();
}

void FrontEnd::Say(const QString& words) {
    const int margin = ToScreen(NoteMargin);
    note.setFont(QApplication::font());  // it may just have changed
    note.setText(words);
    note.setContentsMargins(margin, margin, margin, margin);
    note.adjustSize();
    note.move((window.width() - note.width()) / 2, ToScreen(MenuHeight + NoteTop));
    note.raise();
    note.show();
    noteEnd.start();
}
