// The keys of the windows themselves, on every window and box: they change what is shown and heard, and never
// reach the game. Neither does the release of a key that was pressed in a box.
#pragma once

#include <functional>
#include <set>

#include <QObject>

#include "shell/front_commands.h"

class QKeyEvent;

class FrontKeys : public QObject {
  public:
    /// From now on, until this is gone, for the whole program.
    explicit FrontKeys(std::function<void(FrontCommand)> toDo);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool Press(const QWidget& target, const QKeyEvent& key);
    bool Release(const QWidget& target, const QKeyEvent& key);

    const std::function<void(FrontCommand)> run;
    std::set<int> strangers;  // keys that are down and whose releases aren't the game's
};
