#include "browser/browser_host.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

#include "browser/json.h"
#include "shell/own_sounds.h"
#include "shell/sound_gains.h"
#include "view/field_form.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds FrameTime(14);    // the rules ask to be shown far more often than an eye follows
constexpr milliseconds MotionTime(33);   // of what the companion draws
constexpr milliseconds ShortestWait(4);  // a browser's own; shorter ones are saved up
constexpr milliseconds LongestDebt(100);
constexpr milliseconds LongestWait(60'000);

std::string StrokeJson(const Stroke& stroke) {
    static constexpr const char* Kinds[] = {"line", "disc", "ring", "box", "frame", "words", "piece"};
    JsonObject object;
    object.Add("kind", Kinds[static_cast<std::size_t>(stroke.kind)]);
    object.Add("x", double{stroke.x}).Add("y", double{stroke.y});
    object.Add("toX", double{stroke.toX}).Add("toY", double{stroke.toY});
    object.Add("breadth", double{stroke.breadth}).Add("colour", stroke.colour & 0xFFFFFFU);
    object.Add("alpha", (stroke.colour >> 24) / 255.0);
    if (!stroke.text.empty()) object.Add("text", stroke.text);
    return object.Text();
}

// "\wav\bump\step1.wav" as the page's pack names it.
std::string PackedName(std::string fileName) {
    std::replace(fileName.begin(), fileName.end(), '\\', '/');
    return fileName.substr(1);
}

std::string FormOf(const std::string& id) {
    return id.substr(0, id.find('.'));
}

}  // namespace

BrowserHost::BrowserHost(Form& mainForm, const std::vector<Form*>& others, Page& onPage,
                         EventSink dispatchRoutine)
    : FrontHost(mainForm, std::move(dispatchRoutine)),
      page(onPage),
      receive([this](const InputEvent& event) { Receive(event); }) {
    std::vector<Form*> forms = {&mainForm};
    forms.insert(forms.end(), others.begin(), others.end());
    for (Form* form : forms) {
        views.push_back(std::make_unique<FormView>(*form, page));
        windows.push_back(std::make_unique<PageWindow>(*form, page, receive));
    }
}

void BrowserHost::Accompany(Companion& whoGoesAlong) {
    FrontHost::Accompany(whoGoesAlong);
    readout = std::make_unique<FormView>(whoGoesAlong.Readout(), page, MainForm().name);
    const auto inside = [](const Control& control) { return Rectangle{0, 0, control.Width, control.Height}; };
    sketches = {{&frmField.area, inside(frmField.area), &whoGoesAlong.OnField(), ""},
                {&frmField, {ViewLeft, ViewTop, ViewWidth, ViewHeight}, &whoGoesAlong.OnView(), ""},
                {&frmField.picAreaMap, inside(frmField.picAreaMap), &whoGoesAlong.OnMap(), ""}};
}

void BrowserHost::Run(const std::function<void()>& begin) {
    Enter(begin);
    for (;;)
        AwaitEvent();
}

PageWindow* BrowserHost::WindowOf(const std::string& id) const {
    for (const auto& window : windows)
        if (window->Shown().name == FormOf(id)) return window.get();
    return nullptr;
}

// The one that lies over the others.
PageWindow& BrowserHost::Foremost() const {
    for (std::size_t i = windows.size(); i-- > 1;)
        if (windows[i]->Shown().Visible) return *windows[i];
    return *windows[0];
}

void BrowserHost::TakeLines() {
    while (const std::optional<std::string> line = page.Next())
        Take(*line);
}

void BrowserHost::Take(const std::string& line) {
    static const std::set<std::string> OfForms = {"mouse",  "focus",  "click", "choose",
                                                  "scroll", "change", "close", "use"};
    std::istringstream rest(line);
    std::string word;
    rest >> word;
    if (word == "answer") return answers.push_back(line);
    if (boxes > 0) return;  // the page behind it is inert; this came before it was
    if (OfForms.contains(word)) return TakeOfForm(word, rest);
    if (word == "key") return TakeKey(rest);
    if (word == "letgo") return Foremost().LetGo();
    if (word == "leave") {
        if (TheCompanion() != nullptr) TheCompanion()->ForgetPointer();
        return Sync();
    }
    if (atLine) atLine(word, rest);
}

void BrowserHost::TakeOfForm(const std::string& word, std::istringstream& rest) {
    const auto begin = rest.tellg();
    std::string id;
    rest >> id;
    if (word == "mouse") rest >> id;  // after what it does
    PageWindow* const window = WindowOf(id);
    if (window == nullptr) return;
    rest.clear();
    rest.seekg(begin);
    if (word == "focus")
        window->TakeFocus(id);
    else if (word == "mouse")
        window->TakeMouse(rest);
    else
        window->TakeControl(word, rest);
    window->SyncFrame();
}

void BrowserHost::TakeKey(std::istream& rest) {
    std::string what;
    KeyInput key;
    int sign = 0;
    rest >> what >> key.code >> sign >> key.shift >> key.isMetaHeld >> key.isRepeat >> key.time;
    if (!rest) return;
    key.sign = static_cast<char>(sign);
    const bool down = what == "down";
    if (down && atKey && atKey(key)) return;
    PageWindow& window = Foremost();
    window.TakeKey(key, down);
    window.SyncFrame();
}

void BrowserHost::ShowWindows() {
    stale = true;
    if (InnermostPump() == 0 || boxes > 0) return Show();
    ShowIfDue();
}

void BrowserHost::ShowIfDue() {
    if (stale && steady_clock::now() - shown >= FrameTime) Show();
}

void BrowserHost::Show() {
    shown = steady_clock::now();
    stale = false;
    for (const auto& view : views)
        view->Sync();
    for (const auto& window : windows)
        window->SyncFrame();
    ShowSketches();
    if (atShown) atShown();
}

void BrowserHost::ShowNow(Form& /*form*/) {
    stale = true;
    ShowIfDue();
}

void BrowserHost::ShowSketches() {
    if (TheCompanion() == nullptr) return;
    TheCompanion()->Look();
    readout->Sync();
    for (Shown& one : sketches) {
        std::string strokes = JsonArray(*one.sketch, StrokeJson);
        if (strokes == one.sent) continue;
        JsonObject message;
        message.Add("is", "sketch").Add("over", ControlId(*one.over));
        message.Add("left", one.place.left).Add("top", one.place.top);
        message.Add("width", one.place.width).Add("height", one.place.height);
        page.Post(message.AddRaw("strokes", strokes).Text());
        one.sent = std::move(strokes);
    }
    SoundValley();
}

void BrowserHost::SoundValley() {
    const AmbienceLevels& levels = TheCompanion()->AmbienceNow();
    std::string loops = "[";
    for (std::size_t i = 0; i < levels.size(); ++i)
        loops += (i > 0 ? "," : "") + JsonObject()
                                          .Add("file", PackedName(AmbienceFile(i)))
                                          .Add("level", hasAmbience ? levels[i] : 0)
                                          .Text();
    loops += "]";
    if (loops == sentLoops) return;
    page.Post(JsonObject().Add("is", "loops").AddRaw("loops", loops).Text());
    sentLoops = std::move(loops);
}

void BrowserHost::Yield(std::chrono::nanoseconds longest) {
    page.Wait(std::max<std::chrono::nanoseconds>(longest, milliseconds(0)));
    yielded = steady_clock::now();
}

// The browser works no more often than an eye follows.
void BrowserHost::HandleEvents() {
    if (steady_clock::now() - yielded >= FrameTime) Yield({});
    TakeLines();
    Tick();
}

void BrowserHost::AwaitEvent() {
    TakeLines();
    Tick();
    if (!answers.empty()) return;
    ShowIfDue();
    Yield(NextChange() - steady_clock::now());
    TakeLines();
    if (TheCompanion() != nullptr && TheCompanion()->IsMoving()) Sync();
}

void BrowserHost::Tick() {
    if (boxes > 0) return;
    for (const auto& window : windows)
        window->Tick(steady_clock::now());
    if (!pace || steady_clock::now() - stepped < *pace) return;
    stepped = steady_clock::now();
    LetInAtPace();
}

Moment BrowserHost::NextChange() const {
    Moment next = steady_clock::now() + LongestWait;
    if (stale) next = shown + FrameTime;
    if (TheCompanion() != nullptr && TheCompanion()->IsMoving()) next = std::min(next, shown + MotionTime);
    if (pace) next = std::min(next, stepped + *pace);
    for (const auto& window : windows)
        next = std::min(next, window->NextTick());
    return next;
}

void BrowserHost::HandleEventsUntil(Moment end) {
    for (Moment now = steady_clock::now(); now < end; now = steady_clock::now()) {
        ShowIfDue();
        Yield(std::min<std::chrono::nanoseconds>(end - now, MotionTime));
        TakeLines();
        Tick();
    }
}

void BrowserHost::SleepUntil(Moment end) {
    for (Moment now = steady_clock::now(); now < end; now = steady_clock::now()) {
        ShowSketches();
        Yield(std::min<std::chrono::nanoseconds>(end - now, MotionTime));
    }
}

// Short waits are saved up and paid together.
Moment BrowserHost::EndOfWait(std::chrono::nanoseconds time) {
    const Moment now = steady_clock::now();
    due = std::max(due, now - LongestDebt) + time;
    return due - now < ShortestWait ? now : due;
}

bool BrowserHost::BeginModal(Form& /*form*/) {
    windows[0]->LetGo();
    return true;
}

void BrowserHost::EndModal(Form& /*form*/) {}

bool BrowserHost::ShowsWantedView() const {
    return views[0]->IsInPlace(frmField.area);
}

void BrowserHost::ShowScreening(Screening& screening, Moment now) {
    const ViewPlace view = screening.View(now);
    views[0]->ShowInstead(frmField.area, &screening.Field(), ViewLeft - view.left, ViewTop - view.top);
    Show();
}

void BrowserHost::EndScreening() {
    views[0]->ShowInstead(frmField.area, nullptr, 0, 0);
}

void BrowserHost::ShowText(const std::string& text) {
    Ask({.title = GameName, .text = text, .page = "", .buttons = {"OK"}, .atEscape = 0, .tick = ""});
}

PageAnswer BrowserHost::Ask(const PageBox& box) {
    JsonObject message;
    message.Add("is", "box").Add("title", box.title).Add("text", box.text).Add("page", box.page);
    message.AddRaw("buttons", JsonArray(box.buttons, JsonQuoted)).Add("atEscape", box.atEscape);
    page.Post(message.Add("tick", box.tick).Text());
    ++boxes;
    Foremost().LetGo();
    while (answers.empty())
        AwaitEvent();
    --boxes;
    std::istringstream line(answers.front());
    answers.pop_front();
    std::string word;
    PageAnswer answer;
    line >> word >> answer.button >> answer.ticked;
    return answer;
}

void BrowserHost::Play(const SoundRequest& sound) {
    const SideGains gains = GainsOf(sound);
    JsonObject message;
    message.Add("is", "sound").Add("slot", sound.slot).Add("file", PackedName(sound.fileName));
    message.Add("left", gains.left).Add("right", gains.right).Add("rate", sound.frequency);
    page.Post(message.Text());
}

void BrowserHost::EndProcess(int exitCode) {
    exitCode = AtLast(exitCode);
    if (!HasFailed()) Show();
    page.End(exitCode);
    for (;;)  // nothing of the game runs any more; the page starts another one
        page.Wait(LongestWait);
}
