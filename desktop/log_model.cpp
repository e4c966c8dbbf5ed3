#include "desktop/log_model.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QColor>
#include <QFont>

namespace {

constexpr QRgb Heading = 0xFFF4FFE8;
constexpr QRgb Loss = 0xFFFF8C6E;  // of one of ours
constexpr QRgb Success = 0xFF9FDB8F;
constexpr QRgb Sighted = 0xFFFFE08A;
constexpr QRgb Quiet = 0xFF9DB09F;

QColor ColourOf(const ChronicleEntry& entry) {
    switch (entry.kind) {
        case EntryKind::Turn:
            return QColor(Heading);
        case EntryKind::Hit:
        case EntryKind::Death:
            return QColor(entry.ours ? Loss : Success);
        case EntryKind::Sighting:
            return QColor(Sighted);
        case EntryKind::Refusal:
            return QColor(Quiet);
    }
    return QColor(Quiet);
}

bool StandsOut(const ChronicleEntry& entry) {
    return entry.kind == EntryKind::Turn || entry.kind == EntryKind::Death;
}

}  // namespace

// What stood before and still stands keeps its rows; all after the first difference are new.
void LogModel::Show(const Chronicle& chronicle, const LogFilter& filter) {
    if (shownRevision == chronicle.Revision() && shownFilter == filter) return;
    shownRevision = chronicle.Revision();
    shownFilter = filter;
    std::vector<ChronicleEntry> now;
    for (const std::size_t place : Filtered(chronicle.Entries(), filter))
        now.push_back(chronicle.Entries()[place]);
    const auto differing = std::mismatch(entries.begin(), entries.end(), now.begin(), now.end()).first;
    const int kept = static_cast<int>(differing - entries.begin());
    if (differing != entries.end()) {
        beginRemoveRows({}, kept, static_cast<int>(entries.size()) - 1);
        entries.erase(differing, entries.end());
        endRemoveRows();
    }
    if (now.size() == entries.size()) return;
    beginInsertRows({}, kept, static_cast<int>(now.size()) - 1);
    entries = std::move(now);
    endInsertRows();
}

int LogModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries.size());
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
    const ChronicleEntry& entry = Entry(index.row());
    if (role == Qt::DisplayRole) return QString::fromStdString(entry.text);
    if (role == Qt::ForegroundRole) return ColourOf(entry);
    if (role == Qt::FontRole && StandsOut(entry)) {
        QFont font = QApplication::font();
        font.setBold(true);
        return font;
    }
    return {};
}

QSize EntryPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int fontHeight = option.fontMetrics.height();
    if (width != option.rect.width() || height != fontHeight) sizes.clear();
    width = option.rect.width();
    height = fontHeight;
    QSize& size = sizes[index.data().toString()];
    if (!size.isValid()) size = QStyledItemDelegate::sizeHint(option, index);
    return size;
}
