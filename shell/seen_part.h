// What is seen of a control, by the records alone: neither what lies beyond that which it lies in nor what
// others in front of it hide.
#pragma once

#include "platform/controls.h"
#include "shell/pixels.h"

/// The left top corner of `control`, in pixels of its form.
PixelPoint OriginOf(const Control& control);

/// The rectangle around all that is seen of `control`, in pixels of its form; empty where nothing is.
Rectangle SeenPart(const Control& control);
