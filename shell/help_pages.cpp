#include "shell/help_pages.h"

#include <span>

namespace {

struct KeyRow {
    const char* what;
    const char* mouse;
    const char* keys;
};

constexpr KeyRow OnTheField[] = {
    // clang-format off
    {"Select a soldier",                    "left click on him",              "Insert on him; Space: the next one"},
    {"Turn towards a cell, then walk there", "left click, a second one",      "Insert, a second one"},
    {"Turn, then step, in eight directions", "",                              "arrows, Home, End, Page Up, Page Down, number pad"},
    {"Shoot, throw, dig, heal: what he holds", "right click",                 "Delete"},
    {"Open the vehicle's store, facing it", "left click on the vehicle",      "Insert on the vehicle, or Enter"},
    {"Prone, crouch, stand, run",           "the four pictures",              "Alt+1, Alt+2, Alt+3, Alt+4"},
    {"Fire while walking, or stop",         "the fifth picture",              "Alt+5"},
    {"Fire mode",                           "the list below the weapon",      "[ and ], or Alt+M"},
    {"Next sighted enemy",                  "the number beside the log",      "Alt+N"},
    {"Personal file",                       "the weapon, or the menu",        "Enter, or Alt+I"},
    {"Whole map, and back",                 "the mini map's lit window; any click", "M; any key"},
    {"Read the log",                        "its list",                       "Alt+L"},
    {"Give up this soldier's turn",         "",                               "Esc"},
    {"End the turn",                        "End Turn",                       "Alt+E"},
    {"Leave the mission",                   "the menu",                       "Alt+X"},
    // clang-format on
};

constexpr KeyRow InAFile[] = {
    // clang-format off
    {"Take a thing up, lay it down",        "left click",                     "Insert"},
    {"Take the magazine out of a weapon",   "right click",                    "Delete"},
    {"The soldier before and after",        "< and >",                        "Alt+P and Alt+N"},
    {"Pages of the ground",                 "1 to 3",                         "Alt+1, Alt+2, Alt+3"},
    {"His state in words",                  "INFO",                           "Alt+S"},
    {"Leaf through the catalogue, its feeds", "the arrows",                   "up and down, with Shift"},
    {"Close",                               "INFO twice",                     "Enter"},
    // clang-format on
};

constexpr KeyRow ByKeysAlone[] = {
    // clang-format off
    {"Move the yellow frame",               "",                               "W, A, S, D; with Shift five at a time"},
    {"Left and right click in the frame",   "",                               "Insert and Delete, or 0 and the point of the number pad"},
    {"To the next control, or back",        "",                               "Tab, Shift+Tab"},
    // clang-format on
};

constexpr KeyRow WindowAndSound[] = {
    // clang-format off
    {"This help",                           "Help",                           "F1"},
    {"Larger, smaller",                     "the window's edge",              "Ctrl+plus, Ctrl+minus"},
    {"As large as fits the screen",         "Help",                           "Ctrl+0"},
    {"Full screen, and back",               "Help",                           "F11"},
    {"The squad and the log, beside the field", "Help",                         "Ctrl+B; F6 takes the keys there and back"},
    {"Sound off, and on",                   "Help",                           "Ctrl+M"},
    {"Louder, softer",                      "Help",                           "Ctrl+Shift+up, Ctrl+Shift+down"},
    {"Water, wind and birds, or none",      "Help",                           ""},
    // clang-format on
};

constexpr KeyRow FirstKeys[] = {
    // clang-format off
    {"Select a soldier",                    "left click on him",              "Space: the next one"},
    {"Turn, then walk",                     "left click on a cell, and again", "arrows"},
    {"Shoot, throw, heal",                  "right click",                    ""},
    {"What he carries",                     "click on the weapon",            "Enter"},
    {"The whole map",                       "click on the mini map's lit window", "M"},
    {"He is done",                          "",                               "Esc"},
    {"All are done",                        "End Turn",                       "Alt+E"},
    // clang-format on
};

struct Tip {
    std::string_view control;
    std::string_view text;
};

constexpr Tip Tips[] = {
    {"frmField.cmdNextTurn", "Gives the turn to the enemy; time that soldiers have left is lost"},
    {"frmField.comboMode", "How the weapon is used: a right click on the field does it"},
    {"frmField.picAreaMap", "The whole valley: a click brings that part of it into view"},
    {"frmField.picAreaMapCover", "What the field shows now: a click shows the whole map"},
    {"frmField.cmbLog", "What has happened: open the list to read all of it"},
};

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        if (character == '<')
            escaped += "&lt;";
        else if (character == '>')
            escaped += "&gt;";
        else
            escaped += character;
    }
    return escaped;
}

std::string Table(std::span<const KeyRow> rows) {
    std::string table =
        "<table cellspacing=\"0\" cellpadding=\"4\" width=\"100%\">\n<tr><th "
        "align=\"left\" width=\"36%\"></th><th align=\"left\" width=\"28%\">Mouse</th>"
        "<th align=\"left\">Keys</th></tr>\n";
    for (const KeyRow& row : rows)
        table += "<tr><td>" + Escaped(row.what) + "</td><td>" + Escaped(row.mouse) + "</td><td>" +
                 Escaped(row.keys) + "</td></tr>\n";
    return table + "</table>\n";
}

std::string Heading(const std::string& words) {
    return "<h3>" + words + "</h3>\n";
}

}  // namespace

std::string KeysPage() {
    return Heading("On the field") + Table(OnTheField) + Heading("In a personal file") + Table(InAFile) +
           Heading("Everything by keys alone") + Table(ByKeysAlone) +
           "<p>The first press of Insert or Delete only shows the frame.</p>\n" +
           Heading("Window and sound") + Table(WindowAndSound);
}

std::string FirstCardPage() {
    return "<p>You lead a squad through a river valley. Enemies are hidden in it: find them and put them out "
           "of action before they get your men.</p>\n"
           "<p>You and the enemy take turns. In yours each soldier walks, looks and shoots as long as his "
           "<b>time</b> lasts, in any order; then give the turn away by <b>End Turn</b>.</p>\n" +
           Table(FirstKeys) + "<p><b>F1</b> shows all keys, at any time.</p>\n";
}

std::string_view HelpTip(std::string_view control) {
    for (const Tip& tip : Tips)
        if (tip.control == control) return tip.text;
    return {};
}
