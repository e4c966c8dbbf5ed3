// Block copies between pictures: whole rectangles at a time, clipped at both ends.
#pragma once

#include "platform/picture.h"

/// How source and target pixels combine. Alpha stays the target's, but for a plain copy.
enum class RasterOp {
    SRCCOPY,    // target = source
    SRCAND,     // target = target and source
    SRCINVERT,  // target = target xor source
};

/// Copies the `width` by `height` pixels of `source` at (`sourceX`, `sourceY`) to (`x`, `y`) of `target`.
/// What lies outside either picture is left out. The two are different pictures.
void BitBlt(Picture& target, int x, int y, int width, int height, const Picture& source, int sourceX,
            int sourceY, RasterOp operation);

/// Scales `from` of `source` into `to` of `target`. Each target pixel is the average of the source pixels
/// that it covers, at least one. `to` is clipped; a `from` that isn't wholly within `source` throws
/// RunTimeError (Subscript).
void StretchBlt(Picture& target, const Rectangle& to, const Picture& source, const Rectangle& from);
