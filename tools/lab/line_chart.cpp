#include "tools/lab/line_chart.h"

#include <array>
#include <iomanip>
#include <sstream>

#include "tools/xml_text.h"

namespace {

// Of the picture, in pixels.
constexpr double Width = 860;
constexpr double Height = 440;
constexpr double Left = 66;
constexpr double Right = 600;
constexpr double Top = 52;
constexpr double Bottom = 376;
constexpr double LegendLeft = 622;
constexpr double LegendStep = 24;
constexpr double MarkSize = 4;

struct LineStyle {
    const char* colour;
    const char* dashes;
    const char* mark;  // a path around its middle, `MarkSize` to each side
};

constexpr const char* Dot = "M-4 0a4 4 0 1 0 8 0a4 4 0 1 0 -8 0z";
constexpr const char* Box = "M-3.5 -3.5h7v7h-7z";
constexpr const char* Diamond = "M0 -5L5 0L0 5L-5 0z";
constexpr const char* Triangle = "M0 -5L5 4H-5z";

// clang-format off
constexpr std::array<LineStyle, 8> Styles = {{
    // colour    dashes    mark
    {"#0072b2", "none",    Dot},
    {"#d55e00", "none",    Box},
    {"#009e73", "none",    Diamond},
    {"#333333", "7 4",     Triangle},
    {"#cc79a7", "none",    Triangle},
    {"#b37400", "7 4",     Dot},
    {"#56b4e9", "7 4",     Box},
    {"#7f3c8d", "2 3",     Diamond},
}};
// clang-format on

std::string Short(double value) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << value;
    std::string written = text.str();
    if (written.ends_with(".0")) written.resize(written.size() - 2);
    return written;
}

double PlaceAcross(const LineChart& chart, double x) {
    return Left + x / chart.across.last * (Right - Left);
}

double PlaceUp(const LineChart& chart, double y) {
    return Bottom - y / chart.up.last * (Bottom - Top);
}

void AppendLabel(pugi::xml_node svg, double x, double y, const char* anchor, const std::string& text) {
    AppendElement(svg, "text", {{"x", Short(x)}, {"y", Short(y)}, {"text-anchor", anchor}}, text);
}

void AppendGridLine(pugi::xml_node svg, double x1, double y1, double x2, double y2) {
    AppendElement(
        svg, "path",
        {{"class", "grid"}, {"d", "M" + Short(x1) + " " + Short(y1) + "L" + Short(x2) + " " + Short(y2)}});
}

void AppendAxes(pugi::xml_node svg, const LineChart& chart) {
    constexpr double LabelGap = 8;
    constexpr double LabelDrop = 19;
    constexpr double HalfLetter = 4.5;
    constexpr double TitleDrop = 44;
    for (double x = 0; x <= chart.across.last; x += chart.across.step) {
        const double at = PlaceAcross(chart, x);
        AppendGridLine(svg, at, Top, at, Bottom);
        AppendLabel(svg, at, Bottom + LabelDrop, "middle", Short(x));
    }
    for (double y = 0; y <= chart.up.last; y += chart.up.step) {
        const double at = PlaceUp(chart, y);
        AppendGridLine(svg, Left, at, Right, at);
        AppendLabel(svg, Left - LabelGap, at + HalfLetter, "end", Short(y));
    }
    AppendElement(svg, "path",
                  {{"class", "axis"},
                   {"d", "M" + Short(Left) + " " + Short(Top) + "V" + Short(Bottom) + "H" + Short(Right)}});
    AppendLabel(svg, (Left + Right) / 2, Bottom + TitleDrop, "middle", chart.across.title);
    AppendElement(svg, "text",
                  {{"transform", "translate(20 " + Short((Top + Bottom) / 2) + ") rotate(-90)"},
                   {"text-anchor", "middle"}},
                  chart.up.title);
}

void AppendMark(pugi::xml_node svg, const LineStyle& style, double x, double y) {
    AppendElement(svg, "path",
                  {{"transform", "translate(" + Short(x) + " " + Short(y) + ")"},
                   {"d", style.mark},
                   {"fill", style.colour}});
}

void AppendStroke(pugi::xml_node svg, const LineStyle& style, const std::string& path) {
    AppendElement(
        svg, "path",
        {{"class", "line"}, {"d", path}, {"stroke", style.colour}, {"stroke-dasharray", style.dashes}});
}

void AppendLine(pugi::xml_node svg, const LineChart& chart, const ChartLine& line, const LineStyle& style) {
    std::string path;
    for (const ChartPoint& point : line.points)
        path += (path.empty() ? "M" : "L") + Short(PlaceAcross(chart, point.x)) + " " +
                Short(PlaceUp(chart, point.y));
    AppendStroke(svg, style, path);
    for (const ChartPoint& point : line.points)
        AppendMark(svg, style, PlaceAcross(chart, point.x), PlaceUp(chart, point.y));
}

void AppendLegendEntry(pugi::xml_node svg, const ChartLine& line, const LineStyle& style, double y) {
    constexpr double Sample = 34;
    constexpr double TextGap = 9;
    AppendStroke(svg, style, "M" + Short(LegendLeft) + " " + Short(y) + "h" + Short(Sample));
    AppendMark(svg, style, LegendLeft + Sample / 2, y);
    AppendLabel(svg, LegendLeft + Sample + TextGap, y + MarkSize, "start", line.name);
}

pugi::xml_node AppendPage(pugi::xml_document& document, const std::string& title) {
    const pugi::xml_node svg = AppendElement(document.root(), "svg",
                                             {{"xmlns", "http://www.w3.org/2000/svg"},
                                              {"viewBox", "0 0 " + Short(Width) + " " + Short(Height)},
                                              {"width", Short(Width)},
                                              {"height", Short(Height)},
                                              {"font-family", "DejaVu Sans, Verdana, sans-serif"},
                                              {"font-size", "13"},
                                              {"fill", "#222222"}});
    AppendElement(svg, "style", {},
                  ".grid{stroke:#d9d6cc}.axis{stroke:#555555;fill:none}.line{fill:none;stroke-width:2}");
    AppendElement(svg, "rect", {{"width", "100%"}, {"height", "100%"}, {"rx", "6"}, {"fill", "#fbfaf5"}});
    AppendElement(svg, "title", {}, title);
    AppendElement(svg, "text",
                  {{"x", Short(Left)}, {"y", "30"}, {"font-size", "16"}, {"font-weight", "bold"}}, title);
    return svg;
}

}  // namespace

std::string ChartSvg(const LineChart& chart) {
    pugi::xml_document document;
    const pugi::xml_node svg = AppendPage(document, chart.title);
    AppendAxes(svg, chart);
    double legendY = Top + MarkSize;
    for (std::size_t i = 0; i < chart.lines.size(); ++i) {
        const LineStyle& style = Styles.at(i);
        AppendLine(svg, chart, chart.lines[i], style);
        AppendLegendEntry(svg, chart.lines[i], style, legendY);
        legendY += LegendStep;
    }
    return XmlText(document, "");
}
