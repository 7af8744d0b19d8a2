#pragma once

#include <QByteArrayView>

#include <span>
#include <vector>

namespace graphics {

// The run coding of glyph rows: 0 and 255 are followed by a repeat count, every other value is one pixel. A
// run of 255 pixels is written at once and stays open with a count of 0, which is written too when the row
// ends or another value follows.

// Appends the coded row.
void encodeRow(std::span<const quint8> row, std::vector<quint8> &coded);

// Reads one row from `position` on and moves it past what was read. False when the data end within the row
// or a run passes the row's end. Any bytes may be given.
bool decodeRow(QByteArrayView coded, qsizetype &position, std::span<quint8> row);

} // namespace graphics
