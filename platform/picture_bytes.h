// What the file of a picture must be before the decoder sees it: whole, and a JPEG a baseline one.
#pragma once

#include <string_view>

/// Walks over the blocks of a BMP, GIF or JPEG and decodes nothing. Throws RunTimeError (BadData) with the
/// byte where the file ends too early or holds what the decoder must not get; `name` stands for the file in
/// messages. What is none of the three passes: the decoder refuses it.
void CheckPictureBytes(std::string_view content, std::string_view name);
