#include "common/code_page.h"

#include <algorithm>
#include <array>

namespace common {

namespace {

// Characters of the bytes 0x80 to 0x9F.
constexpr std::array<char16_t, 32> HighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t ArabicDecimalMark = 0x066B;

char toByte(char16_t unit)
{
    // A "?" in place of the mark would make another number of 0.1: all that reads numbers takes ".".
    if (unit == ArabicDecimalMark)
        return '.';
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(unit);
    const auto found = std::find(HighControls.begin(), HighControls.end(), unit);
    return found == HighControls.end() ? '?' : static_cast<char>(0x80 + (found - HighControls.begin()));
}

} // namespace

QString fromCodePage(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte >= 0x80 && byte < 0xA0)
            text[i] = QChar(HighControls[byte - 0x80]);
    }
    return text;
}

QByteArray toCodePage(const QString &text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *byte = bytes.data();
    QChar before;
    for (const QChar unit : text) {
        // One "?" for each character outside the page, though it may take two units.
        if (!(unit.isLowSurrogate() && before.isHighSurrogate()))
            *byte++ = toByte(unit.unicode());
        before = unit;
    }
    bytes.truncate(byte - bytes.constData());
    return bytes;
}

} // namespace common
