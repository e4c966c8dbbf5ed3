#include "shell/control_words.h"

#include <algorithm>
#include <cctype>

#include "shell/help_pages.h"
#include "shell/stops.h"

namespace {

// "imgEnemyCount" to "Enemy Count": without the kind's prefix, a blank before each further capital.
std::string InWords(const std::string& name) {
    const auto isUpper = [](char character) {
        return std::isupper(static_cast<unsigned char>(character)) != 0;
    };
    auto from = std::find_if(name.begin(), name.end(), isUpper);
    if (from == name.end()) from = name.begin();
    std::string words;
    for (auto at = from; at != name.end(); ++at) {
        if (at != from && isUpper(*at)) words += ' ';
        words += *at;
    }
    return words;
}

std::string CaptionOf(const Control& control) {
    switch (control.kind) {
        case ControlKind::Form:
            return static_cast<const Form&>(control).Caption;
        case ControlKind::Button:
            return static_cast<const Button&>(control).Caption;
        case ControlKind::Label:
            return static_cast<const Label&>(control).Caption;
        case ControlKind::Text:
            return static_cast<const TextBox&>(control).Text;
        case ControlKind::Menu:
            return static_cast<const MenuItem&>(control).Caption;
        default:
            return "";
    }
}

}  // namespace

std::string SpokenName(const Control& control) {
    const std::string& tip = control.ToolTipText;
    const std::string words = StopWords(control);
    if (!words.empty()) return tip.empty() ? words : words + ": " + tip;
    std::string caption = CaptionOf(control);
    std::erase(caption, '&');
    std::replace(caption.begin(), caption.end(), '\r', ' ');
    if (!caption.empty()) return caption;
    return tip.empty() ? InWords(control.name) : tip;
}

std::string_view PurposeOf(const Control& control) {
    return HelpTip(control.form->name + "." + control.name);
}

std::string TipOf(const Control& control) {
    return control.ToolTipText.empty() ? std::string(PurposeOf(control)) : control.ToolTipText;
}

std::string ShortcutWords(const Control& control) {
    const char letter = ShortcutLetter(control);
    return letter == '\0' ? "" : std::string("Alt+") + letter;
}

std::string TipBeside(const Control& stop) {
    const std::string tip = TipOf(stop);
    const std::string key = ShortcutWords(stop);
    const std::string text = tip.empty() ? SpokenName(stop) : tip;
    return key.empty() ? text : text + " (" + key + ")";
}
