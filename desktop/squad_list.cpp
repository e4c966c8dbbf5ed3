#include "desktop/squad_list.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QPainter>

#include "desktop/scale.h"
#include "platform/picture_file.h"
#include "platform/run_time_error.h"

namespace {

// In the records' pixels, from the row's left top corner.
constexpr int RowHeight = 30;
constexpr int Edge = 3;  // the stripe of who is selected
constexpr int FaceLeft = 7;
constexpr int FaceTop = 2;
constexpr int FaceSide = 26;
constexpr int NameLeft = 39;
constexpr int LineHeight = 14;
constexpr int BarsWidth = 104;  // with their figures
constexpr int BarWidth = 72;
constexpr int BarHeight = 7;
constexpr int SmallLetters = 10;
constexpr int Padding = 6;  // right of the figures

constexpr QRgb Ground = 0xFF0E1A14;
constexpr QRgb Selected = 0xFFFFD24A;
constexpr QRgb SelectedGround = 0xFF2C4636;
constexpr QRgb Time = 0xFFE09A4A;  // as on the panel
constexpr double Faded = 0.35;     // of a dead man's face

struct FitnessColours {
    QRgb words;
    QRgb health;
};

// By Fitness.
constexpr FitnessColours Colours[] = {
    {0xFFA9C7A4, 0xFF5FBF5A},  // ready
    {0xFF8C9C8E, 0xFF5FBF5A},  // spent
    {0xFFFFC060, 0xFFE6D24A},  // wounded
    {0xFFFF8C6E, 0xFFD9503A},  // immobile
    {0xFF6A7A6E, 0xFF4A6755},  // dead
};

const FitnessColours& ColoursOf(Fitness fitness) {
    return Colours[static_cast<std::size_t>(fitness)];
}

QPixmap ReadFace(const std::string& file, int side) {
    try {
        const PictureRef face = ReadPictureFile(file);
        const QImage image(reinterpret_cast<const uchar*>(face->Row(0)), face->Width(), face->Height(),
                           static_cast<qsizetype>(sizeof(Colour)) * face->Width(), QImage::Format_RGB32);
        return QPixmap::fromImage(image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    } catch (const RunTimeError&) {
        return {};  // the personal file is where it is missed
    }
}

// A row's place on the screen, and a painter on it that counts in the records' pixels.
class RowPainter {
  public:
    RowPainter(QPainter& on, const QRect& row) : painter(on), place(row) {}

    QRect At(int left, int top, int width, int height) const {
        return ToScreen(QRect(left, top, width, height)).translated(place.topLeft());
    }

    int Width() const { return static_cast<int>(FromScreen(QPointF(place.width(), 0)).x()); }

    void Words(const QRect& where, const QString& words, QRgb colour, int letters, bool bold, int align) {
        QFont font = QApplication::font();
        font.setPixelSize(ToScreen(letters));
        font.setBold(bold);
        painter.setFont(font);
        painter.setPen(QColor(colour));
        const QString fitting = painter.fontMetrics().elidedText(words, Qt::ElideRight, where.width());
        painter.drawText(where, align | Qt::AlignVCenter | Qt::TextSingleLine, fitting);
    }

    // A bar with its figure, on one of the row's two lines.
    void Bar(int line, int value, int most, QRgb colour, QRgb figure) {
        const int left = Width() - BarsWidth - Padding;
        const int top = 1 + line * LineHeight;
        const int barTop = top + (LineHeight - BarHeight) / 2;
        const int held = std::clamp(value, 0, std::max(most, 0));
        const int filled = most > 0 ? BarWidth * held / most : 0;
        painter.fillRect(At(left, barTop, BarWidth, BarHeight), QColor(Ground));
        painter.fillRect(At(left, barTop, filled, BarHeight), QColor(colour));
        Words(At(left + BarWidth, top, BarsWidth - BarWidth, LineHeight), QString::number(value), figure,
              SmallLetters, false, Qt::AlignRight);
    }

  private:
    QPainter& painter;
    const QRect place;
};

}  // namespace

void SquadModel::Show(std::vector<SquadRow> now) {
    if (now == rows) return;
    if (now.size() != rows.size()) {
        beginResetModel();
        rows = std::move(now);
        return endResetModel();
    }
    const std::vector<SquadRow> before = std::exchange(rows, std::move(now));
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (!(rows[i] == before[i])) {
            const QModelIndex changed = index(static_cast<int>(i));
            Q_EMIT dataChanged(changed, changed);
        }
}

int SquadModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QVariant SquadModel::data(const QModelIndex& index, int role) const {
    const SquadRow& row = Row(index.row());
    if (role == Qt::DisplayRole) return QString::fromStdString(row.name);
    if (role == Qt::AccessibleTextRole) return QString::fromStdString(SpokenRow(row));
    if (role == Qt::ToolTipRole)
        return QString::fromStdString(SpokenRow(row) + ".\n" + FitnessHelp(row.fitness));
    return {};
}

void SquadPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const SquadRow& row = static_cast<const SquadModel&>(*index.model()).Row(index.row());
    const bool lives = row.fitness != Fitness::Dead;
    const FitnessColours& colours = ColoursOf(row.fitness);
    const QRgb lettering = option.palette.color(QPalette::Text).rgb();
    RowPainter on(*painter, option.rect);
    painter->save();
    if (row.isSelected) {
        painter->fillRect(option.rect, QColor(SelectedGround));
        painter->fillRect(on.At(0, 0, Edge, RowHeight), QColor(Selected));
    }
    const QRect face = on.At(FaceLeft, FaceTop, FaceSide, FaceSide);
    painter->setOpacity(lives ? 1 : Faded);
    painter->drawPixmap(face, FaceOf(row, face.width()));
    painter->setOpacity(1);
    const int nameWidth = on.Width() - BarsWidth - Padding - NameLeft - Padding;
    on.Words(on.At(NameLeft, 1, nameWidth, LineHeight), QString::fromStdString(row.name),
             lives ? lettering : colours.words, SmallLetters + 2, row.isSelected, Qt::AlignLeft);
    on.Words(on.At(NameLeft, 1 + LineHeight, nameWidth, LineHeight),
             QString::fromStdString(row.rank + ", " + FitnessWord(row.fitness)), colours.words, SmallLetters,
             false, Qt::AlignLeft);
    if (lives) {
        on.Bar(0, row.health, row.mostHealth, colours.health, lettering);
        on.Bar(1, row.time, row.mostTime, Time, lettering);
    }
    if (option.state & QStyle::State_HasFocus) {
        painter->setPen(option.palette.color(QPalette::BrightText));
        painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
}

QSize SquadPainter::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& /*index*/) const {
    return {ToScreen(NameLeft + 2 * BarsWidth), ToScreen(RowHeight)};
}

const QPixmap& SquadPainter::FaceOf(const SquadRow& row, int side) const {
    const auto found = faces.find(row.face);
    if (found != faces.end() && (found->second.isNull() || found->second.width() == side))
        return found->second;
    return faces[row.face] = ReadFace(row.face, side);
}
