#include "desktop/appearance.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QToolTip>

namespace {

constexpr int FontHeight = 12;  // pixels; the controls' sizes are fixed, so is their text

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

// A list unfolds below its box and scrolls, however long a log has grown; buttons carry words alone.
class SteelStyle : public QProxyStyle {
  public:
    SteelStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_ComboBox_Popup || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
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
    QFont font = application.font();
    font.setPixelSize(FontHeight);
    application.setFont(font);
    QToolTip::setFont(font);
}
