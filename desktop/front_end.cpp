#include "desktop/front_end.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "desktop/desktop_host.h"
#include "desktop/squad_window.h"
#include "shell/help_pages.h"

namespace {

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
    for (const FrontEntry& entry : FrontMenu()) {
        if (entry.command == FrontCommand::SquadWindow && host.Squad() == nullptr) continue;
        AddEntry(menu, entry);
        if (entry.endsGroup) menu.addSeparator();
    }
    connect(&menu, &QMenu::aboutToShow, this, [this] { SyncMenu(); });
}

// The key stands in the column of shortcuts but makes none: it is taken before the menu could.
void FrontEnd::AddEntry(QMenu& menu, const FrontEntry& entry) {
    QAction* const action = menu.addAction(QStringLiteral("%1\t%2").arg(tr(entry.caption), entry.keys));
    connect(action, &QAction::triggered, this, [this, command = entry.command] { Run(command); });
    if (entry.tick == nullptr) return;
    action->setCheckable(true);
    ticks.push_back({action, entry.tick});
}

void FrontEnd::KeepSquadWindow() {
    SquadWindow* const squad = host.Squad();
    if (squad == nullptr) return;
    squad->SetShown(settings.Now().squadWindowShown);
    squad->AtToggle([this](bool shown) {
        Settings changed = settings.Now();
        changed.squadWindowShown = shown;
        settings.Change(changed);
    });
}

void FrontEnd::SyncMenu() {
    for (const Tick& tick : ticks)
        tick.action->setChecked(settings.Now().*tick.shown);
}

void FrontEnd::Run(FrontCommand command) {
    switch (command) {
        case FrontCommand::Help:
            return ShowHelp(tr("Keys and mouse"), KeysPage(), KeysWidth, KeysMost);
        case FrontCommand::FirstSteps:
            return ShowCard();
        case FrontCommand::FullScreen:
            return sizes.ToggleFullScreen();
        case FrontCommand::Larger:
            return Say(SizeNote(sizes.Step(+1) ? SizeRemark::None : SizeRemark::Largest, ScaleFactor()));
        case FrontCommand::Smaller:
            return Say(SizeNote(sizes.Step(-1) ? SizeRemark::None : SizeRemark::Smallest, ScaleFactor()));
        case FrontCommand::Fit:
            sizes.Fit();
            return Say(SizeNote(SizeRemark::Fits, ScaleFactor()));
        default:
            return Take(command);
    }
}

// What is only set; the device, the squad's window and the questions go by it.
void FrontEnd::Take(FrontCommand command) {
    const Settings before = settings.Now();
    const Settings now = AfterCommand(command, before);
    settings.Change(now);
    if (now.Loudness() != before.Loudness()) host.Sounds().SetLoudness(now.Loudness());
    if (now.ambience != before.ambience) host.Sounds().LetAmbience(now.ambience);
    if (now.squadWindowShown != before.squadWindowShown) host.Squad()->SetShown(now.squadWindowShown);
    if (SetsLoudness(command)) Say(LoudnessNote(now));
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

void FrontEnd::Say(const std::string& words) {
    const int margin = ToScreen(NoteMargin);
    note.setFont(QApplication::font());  // it may just have changed
    note.setText(QString::fromStdString(words));
    note.setContentsMargins(margin, margin, margin, margin);
    note.adjustSize();
    note.move((window.width() - note.width()) / 2, ToScreen(MenuHeight + NoteTop));
    note.raise();
    note.show();
    noteEnd.start();
}
