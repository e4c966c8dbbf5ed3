// How the program's windows look: the green steel of the panel, on one style on every desktop.
#pragma once

class QApplication;

/// Gives every widget of `application` its style, colours and font, at the scale of the windows.
void SetAppearance(QApplication& application);

/// Makes the fonts follow the scale after it has changed.
void ScaleFonts();
