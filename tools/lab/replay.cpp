#include "tools/lab/replay.h"

#include <algorithm>
#include <sstream>
#include <string_view>
#include <utility>

#include "platform/blit.h"
#include "platform/hash.h"
#include "platform/run_time_error.h"
#include "state/state.h"
#include "tools/lab/cell_looks.h"
#include "tools/png_file.h"
#include "view/field_form.h"

namespace {

// Lets recorded events in, each where it came.
class ReplayHost : public HeadlessHost {
  public:
    explicit ReplayHost(Replay& ofReplay) : HeadlessHost(nullptr), replay(ofReplay) {}

    void PumpEvents() override {
        const Pumping pumping(*this);
        replay.LetIn(InnermostPump());
    }

    void Wait(std::chrono::nanoseconds /*time*/, bool pump) override {
        if (pump) PumpEvents();
    }

    void ShowModal(Form& /*form*/) override {
        const Pumping pumping(*this);
        replay.LetIn(InnermostPump());
    }

  private:
    Replay& replay;
};

constexpr std::string_view SquareMark = "  area ";
constexpr int LinesBeforeEvents = 3;

bool IsIndented(const std::string& line) {
    return line.starts_with("  ");
}

bool IsSquare(const std::string& line) {
    return line.starts_with(SquareMark);
}

// The number in "event 7 ..." and "after 7 ..."; 0 in any other line.
int EventOf(const std::string& line) {
    std::istringstream text(line);
    std::string word;
    int number = 0;
    text >> word >> number;
    return word == "event" || word == "after" ? number : 0;
}

std::string TextOfEvent(const Recording& recording, int number) {
    for (const RecordedEvent& recorded : recording.events)
        if (recorded.number == number) return " (" + EventText(recorded.event) + ")";
    return " (the start)";
}

// A square that nothing is known of.
Picture Hatched() {
    Picture square(CellSize, CellSize);
    for (int y = 0; y < CellSize; ++y)
        for (int x = 0; x < CellSize; ++x)
            square.SetPixel(x, y, (x + y) % 4 < 2 ? Rgb(255, 0, 255) : Rgb(0, 0, 0));
    return square;
}

Picture RecordedLook(int x, int y, const std::string& sum, const ShownWatch& shown) {
    if (const Picture* look = shown.LookWith(sum)) return *look;
    for (const Picture& look : CellLooks(x, y))
        if (Fnv::Text(HashOfPicture(look)) == sum) return look;
    return Hatched();
}

// Goes on by so much at each look that nothing is left waiting.
Moment ClockOfMoments() {
    static Moment now;
    return now += std::chrono::milliseconds(100);
}

// Puts the square of a line "  area LEFT,TOP 20x20 SUM" into a picture of the field.
void PaintRecorded(Picture& field, const std::string& line, const ShownWatch& shown) {
    int left = 0;
    int top = 0;
    char comma = 0;
    std::istringstream(line.substr(SquareMark.size())) >> left >> comma >> top;
    const std::string sum = line.substr(line.rfind(' ') + 1);
    const Picture look = RecordedLook(left / CellSize, top / CellSize, sum, shown);
    BitBlt(field, left, top, CellSize, CellSize, look, 0, 0, RasterOp::SRCCOPY);
}

}  // namespace

Replay::Replay(const Recording& ofRecording, Companion& whoGoesAlong, std::filesystem::path pictureFolder)
    : recording(ofRecording),
      pictures(std::move(pictureFolder)),
      companion(whoGoesAlong),
      recorder([this](const std::string& line) { Compare(line); }) {}

void Replay::Start() {
    recorder.Start(recording.seed);
}

bool Replay::LetIn(int pump) {
    const std::size_t before = next;
    while (!Done() && recording.events[next].pump == pump && (pump != 0 || next == before)) {
        const InputEvent& event = recording.events[next++].event;
        companion.Pass(event, [&] { recorder.Dispatch(event); });
        companion.Look();  // forecasts...
        companion.Look();  // ...and counts the odds
    }
    return next != before;
}

void Replay::Compare(const std::string& line) {
    if (!difference.empty()) return;
    if (!IsIndented(line)) CompareBlock();
    block.push_back(line);
}

Replay::Lines Replay::RecordedBlock() const {
    Lines lines;
    for (std::size_t i = compared; i < recording.lines.size(); ++i) {
        if (!lines.empty() && !IsIndented(recording.lines[i])) break;
        lines.push_back(recording.lines[i]);
    }
    return lines;
}

void Replay::CompareBlock() {
    if (block.empty() || !difference.empty()) return;
    const Lines recorded = RecordedBlock();
    // A window's process ends before its last line is told.
    const bool bothEnd = recorded.empty() && block[0].starts_with("end ");
    if (block != recorded && !bothEnd) return Differ(recorded);
    compared += recorded.size();
    block.clear();
    if (!pictures.empty()) agreed = frmField.area.canvas;
}

// The line with the sums differs whenever one under it does, and says less.
void Replay::Differ(const Lines& recorded) {
    std::size_t at = 1;
    while (at < block.size() && at < recorded.size() && block[at] == recorded[at])
        ++at;
    if (at >= block.size() && at >= recorded.size()) at = 0;
    if (recorded.empty() || EventOf(recorded[0]) != EventOf(block[0])) at = 0;
    const auto lineOf = [at](const Lines& lines) { return at < lines.size() ? lines[at] : "(nothing)"; };
    difference = "event " + std::to_string(EventOf(block[0])) + TextOfEvent(recording, EventOf(block[0])) +
                 ", line " + std::to_string(compared + at + LinesBeforeEvents + 1) +
                 ":\n  recorded: " + lineOf(recorded) + "\n  replayed: " + lineOf(block);
    const std::string square = DifferingSquare(recorded);
    if (square.empty()) return;
    difference += "\n  first picture rectangle that differs: " + square;
    if (!pictures.empty()) PaintDifference(recorded);
}

std::string Replay::DifferingSquare(const Lines& recorded) const {
    for (const auto& [lines, others] : {std::pair(&recorded, &block), std::pair(&block, &recorded)})
        for (const std::string& line : *lines)
            if (IsSquare(line) && std::find(others->begin(), others->end(), line) == others->end())
                return line.substr(SquareMark.size(), line.rfind(' ') - SquareMark.size());
    return "";
}

// What was recorded is known by its sum alone. Nearly always the field has looked like that before in this
// run, or the state says that it should now; what is neither stays a hatched square.
void Replay::PaintDifference(const Lines& recorded) const {
    Picture was = agreed;
    for (const std::string& line : recorded)
        if (IsSquare(line)) PaintRecorded(was, line, recorder.Shown());
    std::filesystem::create_directories(pictures);
    WritePng(pictures / "recorded.png", was);
    WritePng(pictures / "replayed.png", frmField.area.canvas);
}

ReplayResult Replay::Result() {
    CompareBlock();
    ReplayResult result{next, difference};
    if (difference.empty() && compared < recording.lines.size())
        result.difference = "it ended before line " + std::to_string(compared + LinesBeforeEvents + 1) +
                            ": " + recording.lines[compared];
    return result;
}

ReplayResult ReplayHeadless(const Recording& recording, const std::filesystem::path& pictureFolder) {
    Companion companion(ClockOfMoments);
    Replay replay(recording, companion, pictureFolder);
    const ReplayHost host(replay);
    try {
        replay.Start();
        while (replay.LetIn(0)) {
        }
    } catch (const ProcessEnded&) {
        return replay.Result();
    } catch (const RunTimeError&) {
        return replay.Result();
    }
    return replay.Result();
}
