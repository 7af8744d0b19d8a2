#pragma once

#include <QByteArrayView>

namespace fuzz {

// What the fuzzing programs, and the replay of their corpus, do with any bytes. False when a promise that
// holds for every input was broken.

// As a layout file, taken as it is and again with its CRC put right.
bool layout(QByteArrayView bytes);
// As a variable definition file.
bool definitions(QByteArrayView bytes);
// As a picture, taken as it is and again with the mark of a .bmp file in front.
bool picture(QByteArrayView bytes);
// As a font file of a kind and a number of glyphs that the first byte chooses.
bool font(QByteArrayView bytes);
// As the text of an equation and of a conversion, and as a byte program.
bool expression(QByteArrayView bytes);

} // namespace fuzz
