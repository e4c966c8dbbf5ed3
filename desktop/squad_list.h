// The squad as a list of rows: face, name and fitness, health and time as bars with their figures. It shows
// what it is given and is spoken as whole sentences.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <QAbstractListModel>
#include <QPixmap>
#include <QStyledItemDelegate>

#include "shell/squad_rows.h"

class SquadModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows `now`; what differs is painted with the window's next paint.
    void Show(std::vector<SquadRow> now);

    const SquadRow& Row(int place) const { return rows.at(static_cast<std::size_t>(place)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<SquadRow> rows;
};

/// Paints the rows of a SquadModel.
class SquadPainter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    const QPixmap& FaceOf(const SquadRow& row, int side) const;

    mutable std::map<std::string, QPixmap> faces;  // by file; empty for one that can't be read
};
