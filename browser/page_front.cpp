#include "browser/page_front.h"

#include "browser/json.h"
#include "shell/help_pages.h"
#include "shell/squad_rows.h"

namespace {

std::string RowJson(const SquadRow& row) {
    JsonObject object;
    object.Add("unit", row.unit).Add("name", row.name).Add("rank", row.rank).Add("face", row.face);
    object.Add("health", row.health).Add("mostHealth", row.mostHealth);
    object.Add("time", row.time).Add("mostTime", row.mostTime);
    object.Add("fitness", FitnessWord(row.fitness)).Add("help", FitnessHelp(row.fitness));
    return object.Add("selected", row.isSelected).Add("spoken", SpokenRow(row)).Text();
}

std::string EntryJson(const ChronicleEntry& entry) {
    static constexpr const char* Kinds[] = {"turn", "sighting", "hit", "death", "refusal"};
    JsonObject object;
    object.Add("kind", Kinds[static_cast<std::size_t>(entry.kind)]).Add("text", entry.text);
    return object.Add("ours", entry.ours).Text();
}

}  // namespace

PageFront::PageFront(BrowserHost& onHost, Page& onPage, Companion& whoseGame, SettingsFile& ofPlayer)
    : host(onHost), page(onPage), companion(whoseGame), settings(ofPlayer) {
    host.AtKey([this](const KeyInput& key) { return TakeKey(key); });
    host.AtLine([this](const std::string& word, std::istream& rest) { TakeLine(word, rest); });
    host.AtShown([this] { Show(); });
    host.LetAmbience(settings.Now().ambience);
}

void PageFront::ShowFirstCard() {
    Settings changed = settings.Now();
    if (changed.firstCardSeen) return;
    changed.firstCardSeen = true;
    settings.Change(changed);
    Run(FrontCommand::FirstSteps);
}

bool PageFront::TakeKey(const KeyInput& key) {
    const std::optional<FrontKey> front = FrontKeyOf(key);
    if (!front) return false;
    if (!key.isRepeat || front->repeats) Run(front->command);
    return true;
}

void PageFront::TakeLine(const std::string& word, std::istream& rest) {
    std::size_t number = 0;
    rest >> number;
    if (!rest) return;
    if (word == "command" && number < FrontMenu().size()) return Run(FrontMenu()[number].command);
    if (word == "squad" && number < SquadRows().size()) {
        const auto unit = static_cast<int>(number);
        const std::optional<InputEvent> selection = SelectionOf(unit);
        return host.Receive(selection ? *selection : LookAt({UnitTable[unit].cellX, UnitTable[unit].cellY}));
    }
    const std::vector<ChronicleEntry>& entries = companion.TheChronicle().Entries();
    if (word == "entry" && number < entries.size() && !(entries[number].cell == Spot{}))
        host.Receive(LookAt(entries[number].cell));
}

void PageFront::Run(FrontCommand command) {
    switch (command) {
        case FrontCommand::Help:
            return ShowHelp("Keys and mouse", KeysPage());
        case FrontCommand::FirstSteps:
            return ShowHelp("First steps", FirstCardPage());
        case FrontCommand::Larger:
            return page.Post(R"({"is":"size","step":1})");
        case FrontCommand::Smaller:
            return page.Post(R"({"is":"size","step":-1})");
        case FrontCommand::Fit:
            return page.Post(R"({"is":"size","step":0})");
        case FrontCommand::FullScreen:
            return page.Post(R"({"is":"fullScreen"})");
        default:
            break;
    }
    settings.Change(AfterCommand(command, settings.Now()));
    host.LetAmbience(settings.Now().ambience);
    if (SetsLoudness(command))
        page.Post(JsonObject().Add("is", "note").Add("text", LoudnessNote(settings.Now())).Text());
    Show();
}

void PageFront::ShowHelp(const std::string& title, const std::string& html) {
    page.Post(JsonObject().Add("is", "help").Add("title", title).Add("page", html).Text());
}

void PageFront::Show() {
    ShowMenu();
    if (companion.IsFilming() || companion.TheScreening() != nullptr) return;
    ShowSquad();
    ShowLog();
}

void PageFront::Send(std::string& sent, std::string message) {
    if (message == sent) return;
    page.Post(message);
    sent = std::move(message);
}

void PageFront::ShowMenu() {
    const Settings& now = settings.Now();
    const auto entryJson = [&now](const FrontEntry& entry) {
        JsonObject object;
        object.Add("caption", entry.caption).Add("keys", entry.keys).Add("endsGroup", entry.endsGroup);
        object.Add("isTick", entry.tick != nullptr);
        return object.Add("ticked", entry.tick != nullptr && now.*entry.tick).Text();
    };
    JsonObject message;
    message.Add("is", "settings").Add("loudness", now.Loudness()).Add("squad", now.squadWindowShown);
    Send(sentMenu, message.AddRaw("menu", JsonArray(FrontMenu(), entryJson)).Text());
}

void PageFront::ShowSquad() {
    Send(sentSquad, JsonObject().Add("is", "squad").AddRaw("rows", JsonArray(SquadRows(), RowJson)).Text());
}

void PageFront::ShowLog() {
    const Chronicle& chronicle = companion.TheChronicle();
    if (chronicle.Revision() == sentRevision) return;
    sentRevision = chronicle.Revision();
    page.Post(
        JsonObject().Add("is", "log").AddRaw("entries", JsonArray(chronicle.Entries(), EntryJson)).Text());
}
