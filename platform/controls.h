// Windows as data: a form is a record of control records. The rules and painters write them; the shell
// compares them with what it last showed. Sizes and places are pixels, relative to the parent. Property names
// are those of the windows' design.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/arrays.h"
#include "platform/picture.h"

enum class ControlKind {
    Form,
    PictureBox,  // a canvas that is drawn into, and a parent for others
    Image,       // shows a loaded picture, unstretched, cut at its size
    HScrollBar,
    VScrollBar,
    Combo,  // a list with a text of its own
    List,   // a combo box whose text is always one of its list
    Button,
    Label,
    Text,   // a text box; for reading alone
    Timer,  // not seen; sends an event again and again
    Shape,  // a rectangle's outline
    Line,
    Menu,
};

struct Form;

/// What every control has. Controls are known by their address; they are never copied.
struct Control {
    explicit Control(ControlKind ofKind) : kind(ofKind) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const ControlKind kind;
    std::string name;           // as "imgBar"
    int index = -1;             // place in its control array, -1 for a control on its own
    Form* form = nullptr;       // the window it belongs to
    Control* parent = nullptr;  // the form or the picture box it lies in

    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool Visible = true;
    bool Enabled = true;
    std::string Tag;
    std::string ToolTipText;
};

struct PictureBox : Control {
    PictureBox() : Control(ControlKind::PictureBox) {}
    Colour BackColor = Rgb(0, 0, 0);  // shown where there is no canvas
    Picture canvas;                   // drawn into; empty until it gets a size
};

struct ImageControl : Control {
    ImageControl() : Control(ControlKind::Image) {}
    PictureRef Picture;       // null shows nothing
    std::string PictureName;  // where it came from, as "\pic\weapon.gif"; empty for none and for a stored one
};

struct ScrollBar : Control {
    explicit ScrollBar(ControlKind direction) : Control(direction) {}
    int Value = 0;
    int Min = 0;
    int Max = 0;
    int SmallChange = 1;
    int LargeChange = 1;
};

struct ComboBox : Control {
    explicit ComboBox(ControlKind style) : Control(style) {}
    std::string Text;
    std::vector<std::string> List;
    int ListIndex = -1;  // -1: none chosen
    Colour BackColor = Rgb(0, 0, 0);
    Colour ForeColor = Rgb(255, 255, 255);
};

struct Button : Control {
    Button() : Control(ControlKind::Button) {}
    std::string Caption;  // "&" stands before the letter of its shortcut
};

struct Label : Control {
    Label() : Control(ControlKind::Label) {}
    std::string Caption;  // lines parted by carriage returns
    Colour BackColor = Rgb(0, 0, 0);
    Colour ForeColor = Rgb(255, 255, 255);
};

struct TextBox : Control {
    TextBox() : Control(ControlKind::Text) {}
    std::string Text;
    Colour BackColor = Rgb(0, 0, 0);
    Colour ForeColor = Rgb(255, 255, 255);
    bool SeeThrough = false;  // what lies beneath is its ground, in BackColor's place
};

struct Timer : Control {
    Timer() : Control(ControlKind::Timer) {}
    int Interval = 0;  // milliseconds from one tick to the next while Enabled; 0: none come
};

struct Shape : Control {
    explicit Shape(ControlKind ofKind = ControlKind::Shape) : Control(ofKind) {}
    Colour BorderColor = Rgb(0, 0, 0);
};

struct MenuItem : Control {
    MenuItem() : Control(ControlKind::Menu) {}
    std::string Caption;
};

/// A window. Its controls stand in the order in which they were put, the later ones in front.
struct Form : Control {
    Form() : Control(ControlKind::Form) { form = this; }
    std::string Caption;
    Colour BackColor = Rgb(212, 208, 200);
    Picture canvas;  // the background, where the form has a picture for one; drawn into
    std::vector<Control*> controls;

    /// The control of this name and place in its array, -1 for one on its own; nullptr when there is none.
    Control* Find(std::string_view controlName, int place = -1) const;

  protected:
    /// Gives `control` its name and place and makes it one of this form's.
    void Put(Control& control, const char* controlName, Control& in, int left, int top, int width,
             int height);

    /// Put, for each element of a control array, all at the same place.
    template <typename Element, int Lower, int Upper>
    void PutArray(Array<Element, Lower, Upper>& array, const char* controlName, Control& in, int left,
                  int top, int width, int height) {
        for (int i = Lower; i <= Upper; ++i) {
            Put(array[i], controlName, in, left, top, width, height);
            array[i].index = i;
        }
    }
};

/// Loads the picture file `fileName` into `image`; an empty name clears it. Throws RunTimeError for a file
/// that is missing or no picture.
void LoadPicture(ImageControl& image, const std::string& fileName);
