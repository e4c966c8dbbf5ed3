#include "desktop/appearance.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

#include "desktop/scale.h"

namespace {

constexpr int FontHeight = 12;  // in the records' pixels; the controls' sizes are fixed, so is their text

constexpr QRgb Engraving = 0xFF0E1A14;
constexpr QRgb Armour = 0xFF18291F;
constexpr QRgb Plate = 0xFF24392C;
constexpr QRgb Steel = 0xFF334D3D;
constexpr QRgb Edge = 0xFF4A6755;
constexpr QRgb Sheen = 0xFF718C79;
constexpr QRgb Lettering = 0xFFC8D6C4;
constexpr QRgb Glow = 0xFFF4FFE8;
constexpr QRgb Signal = 0xFF2F7A38;

struct RoleColour {
    QPalette::ColorRole role;
    QRgb colour;
    QRgb disabled;
};

constexpr RoleColour Colours[] = {
    // clang-format off
    // role                      colour     disabled
    {QPalette::Window,          Plate,     Plate},
    {QPalette::WindowText,      Lettering, Sheen},
    {QPalette::Base,            Armour,    Plate},
    {QPalette::AlternateBase,   Plate,     Plate},
    {QPalette::Text,            Lettering, Sheen},
    {QPalette::PlaceholderText, Sheen,     Edge},
    {QPalette::Button,          Steel,     Plate},
    {QPalette::ButtonText,      Lettering, Sheen},
    {QPalette::BrightText,      Glow,      Sheen},
    {QPalette::Highlight,       Signal,    Edge},
    {QPalette::HighlightedText, Glow,      Lettering},
    {QPalette::ToolTipBase,     Armour,    Armour},
    {QPalette::ToolTipText,     Lettering, Lettering},
    {QPalette::Light,           Sheen,     Edge},
    {QPalette::Midlight,        Edge,      Edge},
    {QPalette::Mid,             Plate,     Plate},
    {QPalette::Dark,            Armour,    Armour},
    {QPalette::Shadow,          Engraving, Engraving},
    // clang-format on
};

// The style sizes its arrows and frames by the resolution of the font that an option comes with: this is the
// option at the resolution that goes with the windows' scale.
template <typename Option>
Option AtScale(const Option& option, const QFont& font) {
    constexpr double InchesInMetre = 1 / 0.0254;
    const int resolution = qRound(PlainResolution * ScaleFactor() * InchesInMetre);
    QImage device(1, 1, QImage::Format_RGB32);
    device.setDotsPerMeterX(resolution);
    device.setDotsPerMeterY(resolution);
    Option scaled = option;
    scaled.fontMetrics = QFontMetrics(font, &device);
    return scaled;
}

// Does `what` with the option at scale: lists and scroll bars have parts of a fixed size.
template <typename Routine>
auto WithScaled(const QStyleOptionComplex* option, const QWidget* widget, const Routine& what) {
    const QFont font = widget != nullptr ? widget->font() : QApplication::font();
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        const QStyleOptionSlider scaled = AtScale(*bar, font);
        return what(&scaled);
    }
    if (const auto* const box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        const QStyleOptionComboBox scaled = AtScale(*box, font);
        return what(&scaled);
    }
    return what(option);
}

// A list unfolds below its box and scrolls, however long a log has grown; buttons carry words alone.
class SteelStyle : public QProxyStyle {
  public:
    SteelStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const bool isPart =
            metric == PM_IndicatorWidth || metric == PM_IndicatorHeight || metric == PM_ScrollBarExtent;
        if (option != nullptr && !isPart) return QProxyStyle::pixelMetric(metric, option, widget);
        const QStyleOption scaled = AtScale(QStyleOption(), QApplication::font());
        return QProxyStyle::pixelMetric(metric, &scaled, widget);
    }

    // A tick's box is as dark as what it lies on: it gets a light edge.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element != PE_IndicatorCheckBox) return;
        painter->setPen(option->palette.color(QPalette::Light));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override {
        WithScaled(option, widget, [&](const QStyleOptionComplex* scaled) {
            QProxyStyle::drawComplexControl(control, scaled, painter, widget);
        });
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        return WithScaled(option, widget, [&](const QStyleOptionComplex* scaled) {
            return QProxyStyle::subControlRect(control, scaled, part, widget);
        });
    }
};

}  // namespace

void SetAppearance(QApplication& application) {
    application.setStyle(new SteelStyle);
    QPalette palette;
    for (const RoleColour& row : Colours) {
        palette.setColor(row.role, QColor(row.colour));
        palette.setColor(QPalette::Disabled, row.role, QColor(row.disabled));
    }
    application.setPalette(palette);
    QToolTip::setPalette(palette);
    ScaleFonts();
}

// What the style has painted for another scale isn't taken again.
void ScaleFonts() {
    QPixmapCache::clear();
    QFont font = QApplication::font();
    font.setPixelSize(ToScreen(FontHeight));
    QApplication::setFont(font);
    QToolTip::setFont(font);
}
