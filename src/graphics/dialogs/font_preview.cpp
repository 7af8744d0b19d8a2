#include "graphics/dialogs/font_preview.h"

#include "graphics/modDrawFont.h"

#include <algorithm>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

constexpr int LineGap = 4;
constexpr quint32 White = 0x00FFFFFF;

const QStringList SampleLines = {u"AaBbCc 0123456789"_s, u"Speed 123.4 km/h (01:02.3)"_s,
                                 u"\u00c4\u00d6\u00dc \u00e9\u00e8\u00ea \u00e7\u00e5\u00e6 ?!%#@&"_s};

} // namespace

QImage fontPreview(const TextFont &font)
{
    int width = 0;
    for (const QString &line : SampleLines)
        width = std::max(width, font.penBehind(line));
    const int step = font.lineHeight() + LineGap;
    const int height = step * static_cast<int>(SampleLines.size()) - LineGap;
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(PreviewGround);
    TextLook look;
    look.colour = White;
    for (const QString &line : SampleLines) {
        drawText(font, line, look, picture);
        look.position.ry() += step;
    }
    return picture;
}

} // namespace graphics
