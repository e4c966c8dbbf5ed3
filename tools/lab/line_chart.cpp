#include "tools/lab/line_chart.h"

#include <array>
#include <iomanip>
#include <sstream>

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

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text)
        escaped += c == '&' ? "&amp;" : c == '<' ? "&lt;" : std::string(1, c);
    return escaped;
}

double PlaceAcross(const LineChart& chart, double x) {
    return Left + x / chart.across.last * (Right - Left);
}

double PlaceUp(const LineChart& chart, double y) {
    return Bottom - y / chart.up.last * (Bottom - Top);
}

std::string Label(double x, double y, const char* anchor, const std::string& text) {
    return "<text x=\"" + Short(x) + "\" y=\"" + Short(y) + "\" text-anchor=\"" + anchor + "\">" +
           Escaped(text) + "</text>\n";
}

std::string GridLine(double x1, double y1, double x2, double y2) {
    return "<path class=\"grid\" d=\"M" + Short(x1) + " " + Short(y1) + "L" + Short(x2) + " " + Short(y2) +
           "\"/>\n";
}

std::string Axes(const LineChart& chart) {
    constexpr double LabelGap = 8;
    constexpr double LabelDrop = 19;
    constexpr double HalfLetter = 4.5;
    constexpr double TitleDrop = 44;
    std::string axes;
    for (double x = 0; x <= chart.across.last; x += chart.across.step) {
        const double at = PlaceAcross(chart, x);
        axes += GridLine(at, Top, at, Bottom) + Label(at, Bottom + LabelDrop, "middle", Short(x));
    }
    for (double y = 0; y <= chart.up.last; y += chart.up.step) {
        const double at = PlaceUp(chart, y);
        axes += GridLine(Left, at, Right, at) + Label(Left - LabelGap, at + HalfLetter, "end", Short(y));
    }
    axes += "<path class=\"axis\" d=\"M" + Short(Left) + " " + Short(Top) + "V" + Short(Bottom) + "H" +
            Short(Right) + "\"/>\n";
    axes += Label((Left + Right) / 2, Bottom + TitleDrop, "middle", chart.across.title);
    axes += "<text transform=\"translate(20 " + Short((Top + Bottom) / 2) +
            ") rotate(-90)\" text-anchor=\"middle\">" + Escaped(chart.up.title) + "</text>\n";
    return axes;
}

std::string Mark(const LineStyle& style, double x, double y) {
    return "<path transform=\"translate(" + Short(x) + " " + Short(y) + ")\" d=\"" + style.mark +
           "\" fill=\"" + style.colour + "\"/>\n";
}

std::string Stroke(const LineStyle& style, const std::string& path) {
    return "<path class=\"line\" d=\"" + path + "\" stroke=\"" + style.colour + "\" stroke-dasharray=\"" +
           style.dashes + "\"/>\n";
}

std::string Drawn(const LineChart& chart, const ChartLine& line, const LineStyle& style) {
    std::string path;
    std::string marks;
    for (const ChartPoint& point : line.points) {
        const double x = PlaceAcross(chart, point.x);
        const double y = PlaceUp(chart, point.y);
        path += (path.empty() ? "M" : "L") + Short(x) + " " + Short(y);
        marks += Mark(style, x, y);
    }
    return Stroke(style, path) + marks;
}

std::string LegendEntry(const ChartLine& line, const LineStyle& style, double y) {
    constexpr double Sample = 34;
    constexpr double TextGap = 9;
    return Stroke(style, "M" + Short(LegendLeft) + " " + Short(y) + "h" + Short(Sample)) +
           Mark(style, LegendLeft + Sample / 2, y) +
           Label(LegendLeft + Sample + TextGap, y + MarkSize, "start", line.name);
}

}  // namespace

std::string ChartSvg(const LineChart& chart) {
    std::string svg =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + Short(Width) + " " + Short(Height) +
        "\" width=\"" + Short(Width) + "\" height=\"" + Short(Height) +
        "\" font-family=\"DejaVu Sans, Verdana, sans-serif\" font-size=\"13\" fill=\"#222222\">\n"
        "<style>.grid{stroke:#d9d6cc}.axis{stroke:#555555;fill:none}"
        ".line{fill:none;stroke-width:2}</style>\n"
        "<rect width=\"100%\" height=\"100%\" rx=\"6\" fill=\"#fbfaf5\"/>\n<title>" +
        Escaped(chart.title) +
        "</title>\n"
        "<text x=\"" +
        Short(Left) + "\" y=\"30\" font-size=\"16\" font-weight=\"bold\">" + Escaped(chart.title) +
        "</text>\n" + Axes(chart);
    double legendY = Top + MarkSize;
    for (std::size_t i = 0; i < chart.lines.size(); ++i) {
        const LineStyle& style = Styles.at(i);
        svg += Drawn(chart, chart.lines[i], style) + LegendEntry(chart.lines[i], style, legendY);
        legendY += LegendStep;
    }
    return svg + "</svg>\n";
}
