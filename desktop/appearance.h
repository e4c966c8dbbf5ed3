// How the program's windows look: the green steel of the panel, on one style on every desktop.
#pragma once

class QApplication;

/// Gives every widget of `application` its style, colours and font.
void SetAppearance(QApplication& application);
