#include "graphics/font_name.h"

#include "platform/folders.h"

#include <algorithm>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

const QString Suffix = u".qlg"_s;
const QString StyleLetters = u"BISU"_s;

QString styleText(const FontStyle &style)
{
    const bool set[] = {style.bold, style.italic, style.strikethrough, style.underline};
    QString text;
    for (qsizetype i = 0; i < StyleLetters.size(); ++i) {
        if (set[i])
            text += StyleLetters[i];
    }
    return text;
}

bool isStyleText(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return StyleLetters.contains(c); });
}

FontStyle styleOf(const QString &text)
{
    return {text.contains('B'_L1), text.contains('I'_L1), text.contains('S'_L1), text.contains('U'_L1)};
}

// Takes the suffix off, or what the field's end has left of it.
QString withoutSuffix(const QString &name)
{
    for (qsizetype length = Suffix.size(); length > 0; --length) {
        if (name.endsWith(QStringView(Suffix).first(length), Qt::CaseInsensitive))
            return name.chopped(length);
    }
    return name;
}

// Takes the part after the last blank off `text`, if there is a blank.
QString takeLastPart(QString &text)
{
    const qsizetype blank = text.lastIndexOf(' '_L1);
    QString part = text.mid(blank + 1);
    text.truncate(qMax<qsizetype>(blank, 0));
    return part;
}

// What a cut leaves of a size: nothing, or one digit, which says little about a size of two.
bool isStartOfSize(const QString &text)
{
    return text.isEmpty() || (text.size() == 1 && text.front().isDigit());
}

} // namespace

QString storedFace(const QString &face)
{
    const QString name = platform::withoutFoundry(face);
    return platform::nameWithin({}, name).isEmpty() ? DefaultFace : name;
}

QString fontFileName(const FontRequest &request)
{
    return u"%1 %2 %3%4"_s.arg(storedFace(request.face), styleText(request.style),
                               QString::number(request.size), Suffix);
}

QString extendedFontFileName(const FontRequest &request) { return u"Ext_"_s + fontFileName(request); }

FontRequest splitFontFileName(const QString &name)
{
    const QString stored = name.section(QChar(0), 0, 0);
    const QString whole = withoutSuffix(stored);
    QString front = whole;
    const QString last = takeLastPart(front);
    const bool isSizeCut = whole == stored && isStartOfSize(last);
    bool isSize = isSizeCut;
    const int size = isSizeCut ? 0 : last.toShort(&isSize); // of a stored font it may be 0
    if (!isSize)
        return {storedFace(whole.trimmed()), 0, {}};
    FontRequest request{front, size, {}};
    if (const QString style = takeLastPart(front); isStyleText(style)) {
        request.style = styleOf(style);
        request.face = front;
    }
    request.face = storedFace(request.face.trimmed());
    return request;
}

} // namespace graphics
