// Makes the data files that ship with the program from their text and vector sources.

#include "common/canvas_size.h"
#include "make_data/catalogue_builder.h"
#include "make_data/message_builder.h"
#include "make_data/output_file.h"
#include "make_data/picture_renderer.h"
#include "variables/definition_file.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRect>

#include <cstdio>

namespace make_data {

namespace {

constexpr int LargestPicture = 4096; // pixels

bool fail(const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return false;
}

bool write(const QString &path, const QByteArray &bytes)
{
    return writeOutput(path, bytes) || fail(path + QLatin1String(": cannot be written"));
}

TextTable readTable(const QString &path, Problems &problems)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problems.add(path, 0, file.errorString());
        return {};
    }
    return parseTable(path, file.readAll(), problems);
}

bool finish(const Problems &problems, const QString &path, const QByteArray &bytes)
{
    return problems.none() ? write(path, bytes) : fail(problems.lines().join(QLatin1Char('\n')));
}

bool makeVariables(const QStringList &arguments)
{
    Problems problems;
    const TextTable units = readTable(arguments[0], problems);
    const TextTable rows = readTable(arguments[1], problems);
    const variables::Catalogue catalogue = buildCatalogue(units, rows, problems);
    return finish(problems, arguments[2], variables::saveDefinitions(catalogue));
}

bool makeMessages(const QStringList &arguments)
{
    Problems problems;
    const TextTable table = readTable(arguments[0], problems);
    return finish(problems, arguments[1], recorder::writeMessageTable(buildMessages(table, problems)));
}

bool makePicture(const QString &svg, QSize size, const QString &path)
{
    const QRect allowed(1, 1, LargestPicture, LargestPicture);
    if (!allowed.contains(size.width(), size.height()))
        return fail(QStringLiteral("%1: a picture measures 1 to %2 pixels").arg(path).arg(LargestPicture));
    const auto bytes = renderPicture(svg, size, QFileInfo(path).suffix());
    return bytes ? write(path, *bytes) : fail(QStringLiteral("%1: cannot be drawn as %2").arg(svg, path));
}

bool makeOnePicture(const QStringList &arguments)
{
    return makePicture(arguments[0], {arguments[1].toInt(), arguments[2].toInt()}, arguments[3]);
}

// Each drawing as name.png of that size and, for screens of twice the density, name@2x.png.
bool makeIcons(const QStringList &arguments)
{
    const int size = arguments[0].toInt();
    for (const QString &svg : arguments.sliced(2)) {
        const QString base = arguments[1] + QLatin1Char('/') + QFileInfo(svg).completeBaseName();
        if (!makePicture(svg, {size, size}, base + QLatin1String(".png")) ||
            !makePicture(svg, {2 * size, 2 * size}, base + QLatin1String("@2x.png")))
            return false;
    }
    return true;
}

// The size of an example picture on this standard's canvas: as it is drawn for PAL, and flattened for NTSC,
// so that what is round stays round on the screen. Empty when a bitmap would ask questions about it.
QSize exampleSize(const QString &svg, const QString &standard)
{
    const QSize drawn = drawnSize(svg);
    if (drawn.width() % 8 != 0 || drawn.height() % 2 != 0)
        return {};
    const int rows = drawn.height() / 2;
    const bool isNtsc = standard == QLatin1String("NTSC");
    return {drawn.width(), 2 * (isNtsc ? rows * common::NtscHeight / common::PalHeight : rows)};
}

// A drawing as NAME.bmp and, beside it, "NAME Alpha.bmp".
bool makeExample(const QStringList &arguments)
{
    const QString &svg = arguments[0], &path = arguments[2];
    const QSize size = exampleSize(svg, arguments[1]);
    if (size.isEmpty())
        return fail(svg + QLatin1String(": the width must be divisible by 8 and the height by 2"));
    const auto pair = renderPair(svg, size);
    const QFileInfo file(path);
    const QString alphaPath =
        file.path() + QLatin1Char('/') + file.completeBaseName() + QLatin1String(" Alpha.bmp");
    if (!pair)
        return fail(svg + QLatin1String(": cannot be drawn"));
    return write(path, pair->colours) && write(alphaPath, pair->alpha);
}

struct Command
{
    const char *name;
    const char *usage;
    qsizetype arguments;
    bool takesMore;
    bool (*run)(const QStringList &arguments);
};

constexpr Command Commands[] = {
    {"variables", "<units.txt> <variables.txt> <out>", 3, false, makeVariables},
    {"messages", "<messages.txt> <out>", 2, false, makeMessages},
    {"picture", "<in.svg> <width> <height> <out.png|bmp|jpg|ico>", 4, false, makeOnePicture},
    {"example", "<in.svg> <PAL|NTSC> <out.bmp>", 3, false, makeExample},
    {"icons", "<size> <out folder> <in.svg>...", 3, true, makeIcons},
};

bool runCommand(const QStringList &arguments)
{
    const qsizetype count = arguments.size() - 2;
    for (const Command &command : Commands) {
        const bool fits = count == command.arguments || (command.takesMore && count > command.arguments);
        if (fits && arguments[1] == QLatin1String(command.name))
            return command.run(arguments.sliced(2));
    }
    for (const Command &command : Commands)
        std::fprintf(stderr, "make_data %s %s\n", command.name, command.usage);
    return false;
}

} // namespace

} // namespace make_data

int main(int argc, char **argv)
{
    // Drawing into images takes no display, and so no QGuiApplication.
    const QCoreApplication application(argc, argv);
    return make_data::runCommand(QCoreApplication::arguments()) ? 0 : 1;
}
