#include "tools/lab/state_watch.h"

#include <initializer_list>
#include <map>
#include <string_view>

#include "personal/info_form.h"
#include "platform/random.h"
#include "tools/lab/hash.h"
#include "tools/lab/state_fields.h"
#include "view/field_form.h"

namespace {

using Values = std::map<std::string, std::string>;

std::string TextOf(const std::string& text) {
    return "\"" + text + "\"";
}
template <typename Number>
std::string TextOf(const Number& number) {
    return std::to_string(static_cast<int>(number));
}

std::uint64_t HashOf(std::string_view text) {
    Fnv hash;
    hash.Add(text);
    return hash.Sum();
}

std::string Joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

std::uint64_t HashOfField(const std::string& name, const std::string& value) {
    return HashOf(Joined({name, "=", value}));
}

// What the windows hold of the game's state beside the records, and how far chance has come.
Values WindowValues() {
    return {{"chance.draws", std::to_string(RandomDraws())},
            {"frmField.HScrollArea.Value", std::to_string(frmField.HScrollArea.Value)},
            {"frmField.VScrollArea.Value", std::to_string(frmField.VScrollArea.Value)},
            {"frmField.imgStop.Tag", TextOf(std::string(game.fireInMotion ? "on" : "off"))},
            {"frmField.bigMapShown", std::to_string(frmField.bigMapShown ? 1 : 0)},
            {"frmField.enemyCount", TextOf(game.enemyCount)},
            {"frmField.lastSeenEnemy", TextOf(game.lastSeenEnemy)},
            {"frmField.area.ToolTipText", TextOf(frmField.area.ToolTipText)},
            {"frmInfo.Visible", std::to_string(frmInfo.Visible ? 1 : 0)},
            {"frmInfo.dragSlot", TextOf(frmInfo.dragSlot)},
            {"frmInfo.arrowCode", TextOf(frmInfo.arrowCode)},
            {"frmInfo.timerArrow.Interval", std::to_string(frmInfo.timerArrow.Interval)}};
}

// Gathers fields under a common name.
auto Into(Values& values, const std::string& prefix) {
    return [&values, prefix](const std::string& name, const auto& value) {
        values[prefix + name] = TextOf(value);
    };
}

Values ItemValues(const InvItem& item, const std::string& name) {
    Values values;
    VisitFields(item, Into(values, name + "."));
    return values;
}

}  // namespace

struct StateWatch::Seen {
    GameState state;
    Values values;         // of the windows and those that stand alone
    std::size_t told = 0;  // lines of the log
};

namespace {

// Sums up two states, and tells their differences.
class Comparison {
  public:
    explicit Comparison(std::uint64_t& sum) : hash(sum) {}

    // One record's fields as they were and are.
    void Add(const Values& before, const Values& now) {
        for (const auto& [name, value] : now) {
            const auto old = before.find(name);
            if (old != before.end() && old->second == value) continue;
            const std::string was = old == before.end() ? "" : old->second;
            if (old != before.end()) hash -= HashOfField(name, was);
            hash += HashOfField(name, value);
            lines.push_back(Joined({name, " ", was, " -> ", value}));
        }
    }

    // Of records the earlier one becomes the later. `makeName` is asked only for one that differs.
    template <typename MakeName>
    void AddItem(MakeName makeName, InvItem& before, const InvItem& now) {
        if (before == now) return;
        const std::string name = makeName();
        Add(ItemValues(before, name), ItemValues(now, name));
        before = now;
    }

    void AddUnit(int index, Unit& before, const Unit& now) {
        if (before == now) return;
        const std::string name = "UnitTable[" + std::to_string(index) + "].";
        Values old;
        Values current;
        VisitFields(before, Into(old, name));
        VisitFields(now, Into(current, name));
        Add(old, current);
        for (int slot = now.items.Lower; slot <= now.items.Upper; ++slot)
            AddItem([&] { return name + "items[" + std::to_string(slot) + "]"; }, before.items[slot],
                    now.items[slot]);
        before = now;
    }

    void AddCell(int x, int y, Cell& before, const Cell& now) {
        if (before == now) return;
        const std::string name = "cellGrid[" + std::to_string(y) + "][" + std::to_string(x) + "].";
        Values old;
        Values current;
        VisitFields(before, Into(old, name));
        VisitFields(now, Into(current, name));
        Add(old, current);
        before = now;
    }

    // What the log tells since `told` of its lines.
    void AddLog(std::size_t& told, const std::vector<std::string>& log) {
        for (; told < log.size(); ++told) {
            const std::string text = TextOf(log[told]);
            hash += HashOfField("frmField.cmbLog[" + std::to_string(told) + "]", text);
            lines.push_back("frmField.cmbLog " + text);
        }
    }

    std::vector<std::string> lines;

  private:
    std::uint64_t& hash;
};

std::string Place(const char* table, int y, int x, int place) {
    return std::string(table) + "[" + std::to_string(y) + "][" + std::to_string(x) + "][" +
           std::to_string(place) + "]";
}

void CompareGround(Comparison& comparison, GameState& before, const GameState& now) {
    for (int y = 0; y < FieldHeight; ++y)
        for (int x = 0; x < FieldWidth; ++x)
            for (int place = 0; place < CellItemSlots; ++place)
                comparison.AddItem([&] { return Place("groundItems", y, x, place); },
                                   before.groundItems[y][x][place], now.groundItems[y][x][place]);
    for (int place = 0; place < CellItemSlots; ++place)
        comparison.AddItem([place] { return "storeItems[" + std::to_string(place) + "]"; },
                           before.storeItems[place], now.storeItems[place]);
}

}  // namespace

StateWatch::StateWatch() : seen(std::make_unique<Seen>()) {
    Look();
}

StateWatch::~StateWatch() = default;

std::vector<std::string> StateWatch::Look() {
    Comparison comparison(hash);
    comparison.AddLog(seen->told, frmField.cmbLog.List);
    Values values = WindowValues();
    VisitValues(game, Into(values, ""));
    comparison.Add(seen->values, values);
    for (int i = game.UnitTable.Lower; i <= game.UnitTable.Upper; ++i)
        comparison.AddUnit(i, seen->state.UnitTable[i], game.UnitTable[i]);
    for (int y = 0; y <= FieldHeight; ++y)
        for (int x = 0; x <= FieldWidth; ++x)
            comparison.AddCell(x, y, seen->state.cellGrid[y][x], game.cellGrid[y][x]);
    CompareGround(comparison, seen->state, game);
    seen->values = std::move(values);
    return comparison.lines;
}
