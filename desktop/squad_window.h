// A window beside the main one: the squad, of which a press selects a soldier, and under it the log for
// people. What is chosen there goes into the game by the same events as a press on the field or the mini map.
// The keyboard stays the game's: a press of the mouse gives it back, F6 takes it over and back.
#pragma once

#include <functional>

#include <QWidget>

#include "desktop/control_view.h"
#include "shell/log_filter.h"

class Companion;
class EntryModel;
class LogModel;
class QCheckBox;
class QListView;
class QModelIndex;
class SquadModel;

class SquadWindow : public QWidget {
  public:
    /// Beside `owner`, the main window, which owns it. It comes on the screen with the owner where there is
    /// room for both. Events go to `to`.
    SquadWindow(QWidget& owner, Companion& companion, EventSink to);

    /// Whether it is on the screen, or is to be when the main window is.
    bool IsShown() const { return wanted; }
    void SetShown(bool shows);

    /// `whoKnows` learns when the player opens or closes it.
    void AtToggle(std::function<void(bool shown)> whoKnows) { atToggle = std::move(whoKnows); }

    /// Brings it in line with the game and the windows' scale. Nothing changes while the computer's turn is
    /// still to be seen.
    void Sync();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Build();
    QCheckBox* AddTick(const QString& words, bool on, int row, int column);
    void AddKeys();
    void Toggle();
    void TakeKeys();
    void GiveKeysBack();
    void Choose(const QModelIndex& row);
    void GoTo(const QModelIndex& row);
    void ChangeFilter();
    void SyncLog();
    void FollowLog();
    void Open();
    void Close();
    void Place();
    void NoteFullScreen();
    void Rescale();
    bool HasRoom() const;
    void PlaceBeside();

    QWidget& owner;
    Companion& companion;
    const EventSink sink;
    std::function<void(bool shown)> atToggle;
    SquadModel* squad;
    LogModel* log;
    EntryModel* everything;  // of the main window's own log
    QListView* squadList;
    QListView* logList;
    QCheckBox* hits;
    QCheckBox* sightings;
    QCheckBox* refusals;
    QCheckBox* all;
    bool wanted = true;
    bool follows = true;    // the log's newest line stays in view
    bool givesWay = false;  // it is hidden for as long as the main window fills the screen
    bool placed = false;    // it was decided whether it comes by itself
    double shownScale = 0;
    double lastScale = 0;
    QRect lastPlace;  // when it was closed: where its frame began, and its inside's size
};
