// The native controls: scroll bars, lists and buttons. They show what their records say: what a person does
// to one is sent as an event, and the widget then takes what the game has made of it.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/control_view.h"

class ScrollBarWidget : public QScrollBar, public ControlView {
  public:
    ScrollBarWidget(ScrollBar& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    /// Whole steps only: whatever the wheel reports, the bar rests on a multiple of its small change.
    void wheelEvent(QWheelEvent* event) override;

  private:
    ScrollBar& bar;
    int wheelTurn = 0;  // eighths of a degree not yet scrolled
};

/// The entries of a list, read from its record whenever they are shown.
class EntryModel : public QAbstractListModel {
  public:
    EntryModel(const ComboBox& ofCombo, QObject* parent) : QAbstractListModel(parent), combo(ofCombo) {}

    /// Takes over how many entries the record has.
    void Sync();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    const ComboBox& combo;
    int rows = 0;
};

class ComboWidget : public QComboBox, public ControlView {
  public:
    ComboWidget(ComboBox& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;
    /// The box is filled with its record's colour, which the style would shade.
    void paintEvent(QPaintEvent* event) override;
    /// The wheel doesn't choose: it would change an order in passing.
    void wheelEvent(QWheelEvent* event) override;

  private:
    int ChosenRow() const;
    void SyncColours();

    ComboBox& combo;
    EntryModel* entries;
    std::string shownText;
    Colour shownBack = 0;
    Colour shownFore = 0;
};

class ButtonWidget : public QPushButton, public ControlView {
  public:
    ButtonWidget(Button& shown, QWidget& parent, const EventSink& to);

  protected:
    void SyncContent() override;

  private:
    Button& button;
    std::string shownCaption;
};

/// The widget of a control of a window; `parent` owns it. Throws std::logic_error for a kind that
/// has none.
ControlView* MakeControlView(Control& control, QWidget& parent, const EventSink& to);
