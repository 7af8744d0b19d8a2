// font_sheet OUT.png: text drawn from its font files at several sizes, styles and opacities, for looking at.

#include "graphics/font_generator.h"
#include "graphics/modDrawFont.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

#include <cstdio>

namespace {

using namespace graphics;

constexpr QSize SheetSize(720, 576);
constexpr int Left = 12;

struct Line
{
    FontRequest font;
    const char *text;
    quint32 colour;
    quint8 opacity;
};

const QString Arial = QStringLiteral("Arial");

const Line Lines[] = {
    {{Arial, 8, {}}, "8 points: Speed 123.45 km/h, lap 3/12 (best 01:02.345) ABCDEFG", 0xFFFFFF, 255},
    {{Arial, 9, {}}, "9 points: Simple Text 0123456789 abcdefghijklmnopqrstuvwxyz", 0xFFFFFF, 255},
    {{Arial, 12, {}}, "12 points: Hamburgefonstiv & Co. <Lap> [Time]", 0xFFFFFF, 255},
    {{Arial, 12, {true}}, "12 bold: Hamburgefonstiv 0123456789", 0xFFFFFF, 255},
    {{Arial, 12, {false, true}}, "12 italic: Hamburgefonstiv 0123456789", 0xFFFFFF, 255},
    {{Arial, 12, {false, false, true}}, "12 struck through 0123", 0xFFFFFF, 255},
    {{Arial, 12, {false, false, false, true}}, "12 underlined: gjpqy 0123", 0xFFFFFF, 255},
    {{Arial, 14, {}},
     "14: \xC4\xD6\xDC \xE4\xF6\xFC \xE9\xE8\xEA\xEB \xE7 \xE5\xE6 \xED\xF3\xFA ?!=%#@'\"^",
     0x00FFFF,
     255},
    {{Arial, 24, {true}}, "Opacity 100 % 211", 0x0040FF, 255},
    {{Arial, 24, {true}}, "Opacity 60 % 211", 0x0040FF, 153},
    {{Arial, 24, {true}}, "Opacity 25 % 211", 0x0040FF, 64},
    {{Arial, 48, {}}, "123.4 km/h", 0xFFFFFF, 255},
    {{Arial, 72, {true, true}}, "01:02.3", 0x40FFFF, 200},
};

QImage scene()
{
    QImage sheet(SheetSize, QImage::Format_RGB32);
    QPainter painter(&sheet);
    QLinearGradient sky(0, 0, SheetSize.width(), SheetSize.height());
    sky.setColorAt(0, QColor(40, 70, 110));
    sky.setColorAt(0.6, QColor(110, 125, 120));
    sky.setColorAt(1, QColor(60, 62, 66));
    painter.fillRect(sheet.rect(), sky);
    return sheet;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QImage sheet = scene();
    platform::NoProgress progress;
    TextLook look;
    look.position = {Left, 8};
    for (const Line &line : Lines) {
        const auto pair = renderFont(line.font, QStringLiteral(MORVEL_PROGRAM_DIR "/fonts/"), progress);
        const auto font = pair ? TextFont::fromFiles(pair->standard, pair->extended) : std::nullopt;
        if (!font)
            return 1;
        look.colour = line.colour;
        look.opacity = line.opacity;
        drawText(*font, QString::fromLatin1(line.text), look, sheet);
        look.position.ry() += font->lineHeight() + 6;
    }
    return argc == 2 && sheet.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
