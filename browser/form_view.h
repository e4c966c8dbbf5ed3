// One form as a page shows it: compares the records with what was last sent, and sends what has changed.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "browser/page.h"
#include "platform/controls.h"

/// As events name it, and with its place: "frmField.imgStance#2".
std::string ControlId(const Control& control);

class FormView {
  public:
    /// Both must outlive it. An `embedded` form has no window; it stands in the one named `within`, at its
    /// own Left and Top, and takes no events.
    FormView(Form& shown, Page& onPage, std::string within = "");

    /// Sends what has changed since the last call, all of it the first time.
    void Sync();

    /// Shows `picture` on the box's canvas, and the box at that place in its parent, until it is called with
    /// nullptr.
    void ShowInstead(const PictureBox& box, Picture* picture, int left, int top);

    /// Whether the page has the control where its record wants it.
    bool IsInPlace(const Control& control) const;

    const Form& Shown() const { return form; }
    Form& Shown() { return form; }

  private:
    struct Sent {
        std::string record;                // the message without what lists have
        std::vector<std::string> entries;  // of a list
        const void* pixels = nullptr;      // of a canvas, or the picture of an image
        int left = 0;
        int top = 0;
    };

    void SyncForm();
    void SyncControl(Control& control);
    void SyncEntries(const ComboBox& combo, Sent& sent);
    void SyncImage(const ImageControl& image, Sent& sent);
    void SyncCanvas(const std::string& id, Picture& canvas, Sent& sent);
    void SendPixels(const std::string& id, const Picture& picture, const Rectangle& part, bool seenThrough);

    Form& form;
    Page& page;
    const std::string within;
    std::map<const Control*, Sent> known;
    const PictureBox* replaced = nullptr;  // shows another picture for now
    Picture* replacement = nullptr;
    int replacedLeft = 0;
    int replacedTop = 0;
    std::vector<std::uint8_t> bytes;  // of a block; kept, as it is asked for often
};
