#include "graphics/outline_file.h"

#include "common/rounding.h"
#include "graphics/glyph_lists.h"

#include <QPainterPath>
#include <QtEndian>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

constexpr int UnitsPerEm = 1000; // those of most faces without tables, so that nothing is rounded
constexpr int UsualItalicAngle = -12;

enum Command : char { LineTo = 5, CurveTo = 8, ClosePath = 9, SetWidth = 13, EndCharacter = 14, MoveTo = 21 };

int inUnits(double value) { return common::toIntegerClamped<qint16>(value); }

void putNumber(QByteArray &code, int value)
{
    const quint32 bytes = qToBigEndian(static_cast<quint32>(value));
    code.append('\xFF').append(reinterpret_cast<const char *>(&bytes), sizeof bytes);
}

// Coordinates run from one point to the next, y upwards.
QByteArray charString(const QPainterPath &outline, double width)
{
    QByteArray code;
    putNumber(code, 0);
    putNumber(code, inUnits(width));
    code.append(SetWidth);
    QPoint pen;
    const auto putPoint = [&](const QPainterPath::Element &element) {
        const QPoint point(inUnits(element.x), inUnits(-element.y));
        putNumber(code, point.x() - pen.x());
        putNumber(code, point.y() - pen.y());
        pen = point;
    };
    for (int i = 0; i < outline.elementCount(); ++i) {
        const QPainterPath::Element element = outline.elementAt(i);
        if (element.isMoveTo() && i > 0)
            code.append(ClosePath);
        putPoint(element);
        if (element.isCurveTo()) {
            putPoint(outline.elementAt(++i));
            putPoint(outline.elementAt(++i));
        }
        code.append(element.isMoveTo() ? MoveTo : element.isLineTo() ? LineTo : CurveTo);
    }
    if (!outline.isEmpty())
        code.append(ClosePath);
    return code.append(EndCharacter);
}

// The coding of the second part of the file.
QByteArray encrypted(const QByteArray &plain)
{
    QByteArray coded;
    quint16 key = 55665;
    for (const char byte : plain) {
        coded.append(static_cast<char>(static_cast<quint8>(byte) ^ key >> 8));
        key = static_cast<quint16>((static_cast<quint8>(coded.back()) + key) * 52845U + 22719U);
    }
    return coded;
}

class Characters
{
public:
    explicit Characters(const QRawFont &face) : m_face(face) { add(".notdef", 0); }

    void add(std::span<const std::uint8_t> list)
    {
        for (const std::uint8_t code : list) {
            const QList<quint32> glyph = m_face.glyphIndexesForString(QChar(code));
            if (m_face.supportsCharacter(QChar(code)) && !glyph.isEmpty())
                m_hasOutlines |=
                    add("uni" + QByteArray::number(code, 16).toUpper().rightJustified(4, '0'), glyph.front());
        }
    }
    bool hasOutlines() const { return m_hasOutlines; }
    QByteArray dictionary() const
    {
        return "/CharStrings " + QByteArray::number(m_count) + " dict dup begin\n" + m_entries + "end\n";
    }

private:
    bool add(const QByteArray &name, quint32 glyph)
    {
        const QPainterPath outline = m_face.pathForGlyph(glyph);
        const double width = m_face.advancesForGlyphIndexes({glyph}).value(0).x();
        const QByteArray code = charString(outline, width);
        m_entries += '/' + name + ' ' + QByteArray::number(code.size()) + " RD " + code + " ND\n";
        ++m_count;
        return !outline.isEmpty();
    }

    const QRawFont &m_face;
    QByteArray m_entries;
    int m_count = 0;
    bool m_hasOutlines = false;
};

} // namespace

QByteArray outlineFile(QRawFont face)
{
    face.setPixelSize(UnitsPerEm);
    Characters characters(face);
    characters.add(standardList());
    characters.add(extendedList());
    if (!characters.hasOutlines())
        return {};
    const bool bold = face.weight() >= QFont::DemiBold;
    const int angle = face.style() == QFont::StyleNormal ? 0 : UsualItalicAngle;
    const int bar = inUnits(-face.underlinePosition() - face.lineThickness() / 2); // its middle
    const QString head = u"%!PS-AdobeFont-1.0: Outlines\n/FontInfo 4 dict dup begin\n"
                         "/Weight (%1) def\n/ItalicAngle %2 def\n"
                         "/UnderlinePosition %3 def\n/UnderlineThickness %4 def\nend def\n"
                         "/FontType 1 def\n/FontMatrix [0.001 0 0 0.001 0 0] def\n"
                         "currentfile eexec\n"_s.arg(bold ? u"Bold"_s : u"Regular"_s)
                             .arg(angle)
                             .arg(bar)
                             .arg(inUnits(face.lineThickness()));
    // Four bytes without a meaning come first; a length of -1 says that the characters are not coded again.
    return head.toLatin1() +
           encrypted(QByteArray(4, '\0') + "dup /Private 2 dict dup begin\n/lenIV -1 def\n" +
                     characters.dictionary() + "end\n");
}

} // namespace graphics
