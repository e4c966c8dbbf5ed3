// What the file of a JPEG must be before the decoder sees it.
#pragma once

#include "platform/byte_walk.h"

/// Walks over a JPEG from its first byte, through every code of its data. The decoder counts neither the
/// codes of a table nor the bits that are left in the data, nor does it mind what a brightness adds up to: a
/// file that would lead it astray is refused here, and so is a progressive one.
void CheckJpeg(ByteWalk jpeg);
