// The log for people as a list: those entries of the chronicle that a filter lets through, the newest last.
#pragma once

#include <vector>

#include <QAbstractListModel>
#include <QHash>
#include <QStyledItemDelegate>

#include "shell/log_filter.h"

class LogModel : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    /// Takes over what has changed. Cheap when nothing has.
    void Show(const Chronicle& chronicle, const LogFilter& filter);

    const ChronicleEntry& Entry(int row) const { return entries.at(static_cast<std::size_t>(row)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    std::vector<ChronicleEntry> entries;
    std::size_t shownRevision = 0;
    LogFilter shownFilter;
};

/// Paints the entries over several lines where they are long. A list asks for all sizes whenever one entry is
/// new, so each is worked out once.
class EntryPainter : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    mutable QHash<QString, QSize> sizes;  // by text, at that width and font height
    mutable int width = 0;
    mutable int height = 0;
};
