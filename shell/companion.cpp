#include "shell/companion.h"

#include <algorithm>

#include "shell/watching.h"
#include "view/field_form.h"

namespace {

using std::chrono::milliseconds;

constexpr milliseconds AnnounceTime(1600);  // of a new turn
constexpr std::size_t LongestReport = 5;    // lines

constexpr Colour Plate = 0xD0101A14;
constexpr Colour Lettering = Rgb(230, 240, 222);
constexpr Colour EnemysLettering = Rgb(255, 140, 110);
constexpr Colour Quiet = Rgb(170, 186, 168);

constexpr float Middle = ViewWidth / 2.0F;

// A plate of that size in the middle of the view, and its frame.
void DrawPlate(float top, float width, float height, double share, Sketch& sketch) {
    const float left = Middle - width / 2;
    sketch.push_back(Box(left, top, width, height, Faded(Plate, share)));
    sketch.push_back(Outline(left, top, width, height, 1, Faded(Rgb(74, 103, 85), share)));
}

ViewPlace ViewNow() {
    return {frmField.HScrollArea.Value, frmField.VScrollArea.Value};
}

}  // namespace

Companion::Companion(Clock whichClock)
    : clock(whichClock), onlooker([this](const Happening& happening) { Witness(happening); }) {}

void Companion::Witness(const Happening& happening) {
    if (happening.kind == HappeningKind::MissionBegins) {
        chronicle.Clear();
        effects.Clear();
        cues.Clear();
        film.Clear();
        report.clear();
    }
    if (happening.kind == HappeningKind::TurnBegins && happening.unit == EnemyTeam) BeginFilm();
    chronicle.Note(happening);
    Sound(impacts.Of(happening));
    if (film.IsRunning())
        film.Keep(happening);
    else
        Show(happening);
    if (happening.kind == HappeningKind::TurnBegins && happening.unit == SquadTeam) EndFilm();
}

void Companion::Show(const Happening& happening) {
    effects.Add(happening, clock());
    Sound(cues.Of(happening, clock()));
}

void Companion::Sound(const std::optional<SoundRequest>& sound) const {
    if (sound && soundOut) soundOut(*sound);
}

void Companion::BeginFilm() {
    enemysFirst = chronicle.Entries().size();
    if (!filmsTurns) return;
    filmedFrom = ViewNow();
    film.Begin(frmField.area.canvas, {&frmField.imgBlowup, &frmField.imgCover});
}

// The computer's turn is over. What can't be seen of it isn't screened.
void Companion::EndFilm() {
    film.NoteTurnOver();
    turnBegan = clock();
    if (film.IsWorthSeeing({filmedFrom.left, filmedFrom.top, ViewWidth, ViewHeight})) return;
    film.End();
    film.Clear();
    Report();
    Sound(Cues::YourTurn());
}

bool Companion::BeginScreening(const Screening::PlaySound& play) {
    film.End();
    if (film.Frames().empty() || frmField.bigMapShown) {
        EndScreening();
        return false;
    }
    screening.emplace(film, filmedFrom, ViewNow(), clock(), play,
                      [this](const Happening& happening) { Show(happening); });
    Sound(Cues::EnemysTurn());
    return true;
}

void Companion::EndScreening() {
    screening.reset();
    film.Clear();
    turnBegan = clock();
    Report();
    if (missionVerdict.empty()) Sound(Cues::YourTurn());
}

void Companion::ForgetUnseen() {
    effects.Clear();
    film.End();
    film.Clear();
}

// What became of somebody is said once: who was hit and then killed was killed.
void Companion::Report() {
    report.clear();
    const std::vector<ChronicleEntry>& entries = chronicle.Entries();
    for (std::size_t i = enemysFirst; i < entries.size(); ++i)
        if (entries[i].kind == EntryKind::Death || (entries[i].kind == EntryKind::Hit && entries[i].ours))
            report.push_back(entries[i].text);
    if (report.size() <= LongestReport) return;
    const std::size_t more = report.size() - LongestReport + 1;
    report.resize(LongestReport - 1);
    report.push_back("and " + std::to_string(more) + " more: see the log");
}

bool Companion::IsMoving() const {
    return screening.has_value() || effects.Any(clock()) || guide.IsWaiting() ||
           clock() - turnBegan < AnnounceTime;
}

void Companion::Pass(const InputEvent& event, const std::function<void()>& door) {
    if (IsDeed(event)) report.clear();
    const Refusal refusal = guide.Pass(event, clock(), door);
    const auto& entries = chronicle.Entries();
    const std::string words = WordsOf(refusal);
    // A person who presses again and again is told once.
    const bool repeats = !entries.empty() && entries.back().text == words;
    if (refusal && !IsPartial(refusal.why) && !repeats) chronicle.NoteRefusal(words);
}

void Companion::Look() {
    onField.clear();
    onView.clear();
    onMap.clear();
    if (screening || film.IsRunning())
        guide.LookAway();
    else
        guide.Look(clock(), onField);
    effects.Draw(clock(), onField, onMap);
    DrawBanner();
    if (!screening) DrawReport();
}

void Companion::DrawBanner() {
    if (!watched.empty()) {
        DrawPlate(ViewHeight - 50, 300, 42, 1, onView);
        onView.push_back(
            Words(Middle, ViewHeight - 37, 15, Lettering, "Watching, turn " + std::to_string(squadTurns)));
        onView.push_back(Words(Middle, ViewHeight - 20, 11, Quiet, watched));
    }
    if (screening) {
        DrawPlate(8, 220, 40, 1, onView);
        onView.push_back(Words(Middle, 21, 16, EnemysLettering, "Enemy's turn"));
        onView.push_back(Words(Middle, 38, 11, Quiet, "any key or click skips it"));
        return;
    }
    const double left = 1 - std::chrono::duration<double>(clock() - turnBegan) / AnnounceTime;
    if (left <= 0 || squadTurns == 0) return;
    DrawPlate(8, 180, 28, 2 * left, onView);
    onView.push_back(
        Words(Middle, 22, 16, Faded(Lettering, 2 * left), "Your turn: " + std::to_string(squadTurns)));
}

void Companion::DrawReport() {
    if (report.empty()) return;
    constexpr float LineHeight = 18;
    constexpr float Top = 44;
    std::size_t longest = 0;
    for (const std::string& line : report)
        longest = std::max(longest, line.size());
    DrawPlate(Top, 40 + 7.2F * static_cast<float>(longest),
              12 + LineHeight * static_cast<float>(report.size()), 1, onView);
    float y = Top + 6 + LineHeight / 2;
    for (const std::string& line : report) {
        onView.push_back(Words(Middle, y, 12, Lettering, line));
        y += LineHeight;
    }
}
