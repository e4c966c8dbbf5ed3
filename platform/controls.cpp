#include "platform/controls.h"

#include "platform/picture_file.h"

void Form::Put(Control& control, const char* controlName, Control& in, int left, int top, int width,
               int height) {
    control.name = controlName;
    control.form = this;
    control.parent = &in;
    control.Left = left;
    control.Top = top;
    control.Width = width;
    control.Height = height;
    controls.push_back(&control);
}

Control* Form::Find(std::string_view controlName, int place) const {
    for (Control* control : controls)
        if (control->name == controlName && control->index == place) return control;
    return nullptr;
}

void LoadPicture(ImageControl& image, const std::string& fileName) {
    image.Picture = fileName.empty() ? nullptr : ReadPictureFile(fileName);
    image.PictureName = fileName;
}
