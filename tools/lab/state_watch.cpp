#include "tools/lab/state_watch.h"

#include <initializer_list>
#include <map>
#include <string_view>
#include <type_traits>

#include "personal/info_form.h"
#include "platform/hash.h"
#include "tools/lab/state_fields.h"
#include "view/field_form.h"

namespace {

using Values = std::map<std::string, std::string>;

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

// What the windows hold that decides what an event does.
Values WindowValues() {
    return {{"frmField.HScrollArea.Value", std::to_string(frmField.HScrollArea.Value)},
            {"frmField.VScrollArea.Value", std::to_string(frmField.VScrollArea.Value)},
            {"frmField.bigMapShown", std::to_string(frmField.bigMapShown ? 1 : 0)},
            {"frmField.area.ToolTipText", "\"" + frmField.area.ToolTipText + "\""},
            {"frmInfo.Visible", std::to_string(frmInfo.Visible ? 1 : 0)},
            {"frmInfo.timerArrow.Interval", std::to_string(frmInfo.timerArrow.Interval)}};
}

std::string TextOf(const std::string& text) {
    return "\"" + text + "\"";
}
std::string TextOf(const Random& source) {
    return std::to_string(source.Draws());
}
template <typename Number>
std::string TextOf(const Number& number) {
    return std::to_string(static_cast<int>(number));
}

template <typename T>
concept Record = requires(const T& record) {
    FieldsOf(record);
};

template <typename T>
concept Table = !std::is_same_v<T, std::string> && requires(T & table) {
    table.begin();
};

// Sums up two states, and reports their differences. Of records the earlier one becomes the later.
class Comparison {
  public:
    explicit Comparison(std::uint64_t& sum) : hash(sum) {}

    void AddValues(Values& before, Values now) {
        for (const auto& [name, value] : now)
            if (before[name] != value) Report(name, before[name], value);
        before = std::move(now);
    }

    template <typename T>
    void Add(const std::string& name, const T& before, const T& now) {
        if constexpr (Record<T>)
            AddFields(name, before, now);
        else if constexpr (Table<T>)
            AddPlaces(name, before, now);
        else
            Report(name, TextOf(before), TextOf(now));
    }

    // What the log says from line `read` on.
    void AddLog(std::size_t& read, const std::vector<std::string>& log) {
        for (; read < log.size(); ++read) {
            const std::string text = TextOf(log[read]);
            hash += HashOfField("frmField.cmbLog[" + std::to_string(read) + "]", text);
            lines.push_back("frmField.cmbLog " + text);
        }
    }

    std::vector<std::string> lines;

  private:
    // Names are made for what differs alone.
    template <typename T>
    void AddFields(const std::string& name, const T& before, const T& now) {
        std::string_view names = NamesOf(now);
        const auto add = [&](const auto& old, const auto& current) {
            const std::string_view field = names.substr(0, names.find(','));
            names.remove_prefix(std::min(field.size() + 2, names.size()));
            if (!(old == current)) Add(Joined({name, ".", field}), old, current);
        };
        std::apply(
            [&](const auto&... old) {
                std::apply([&](const auto&... current) { (add(old, current), ...); }, FieldsOf(now));
            },
            FieldsOf(before));
    }

    // A place that one of the two lacks is an empty one there.
    template <typename T>
    void AddPlaces(const std::string& name, const T& before, const T& now) {
        auto old = before.begin();
        auto current = now.begin();
        for (int place = FirstPlace<T>(); old != before.end() || current != now.end(); ++place) {
            static const std::remove_cvref_t<decltype(*current)> nothing{};
            const auto& was = old != before.end() ? *old++ : nothing;
            const auto& is = current != now.end() ? *current++ : nothing;
            if (!(was == is)) Add(Joined({name, "[", std::to_string(place), "]"}), was, is);
        }
    }

    template <typename T>
    static int FirstPlace() {
        if constexpr (requires { T::Lower; })
            return T::Lower;
        else
            return 0;
    }

    void Report(const std::string& name, const std::string& before, const std::string& now) {
        hash -= HashOfField(name, before);
        hash += HashOfField(name, now);
        lines.push_back(Joined({name, " ", before, " -> ", now}));
    }

    std::uint64_t& hash;
};

}  // namespace

struct StateWatch::Seen {
    GameState state;
    Values windows;
    std::size_t logged = 0;  // lines of the log
};

StateWatch::StateWatch() : seen(std::make_unique<Seen>()) {
    Look();
}

StateWatch::~StateWatch() = default;

std::vector<std::string> StateWatch::Look() {
    Comparison comparison(hash);
    comparison.AddLog(seen->logged, frmField.cmbLog.List);
    comparison.AddValues(seen->windows, WindowValues());
#define COMPARE_FIELD(type, name, start) \
    if (!(seen->state.name == game.name)) comparison.Add(#name, seen->state.name, game.name);
    GAME_FIELDS(COMPARE_FIELD)
#undef COMPARE_FIELD
    seen->state = game;
    return comparison.lines;
}
