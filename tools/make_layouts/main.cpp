// Makes the layouts that ship with the program from their texts.

#include "make_data/output_file.h"
#include "make_layouts/layout_maker.h"
#include "platform/desktop/appearance.h"
#include "platform/guards.h"

#include <QApplication>
#include <QFile>
#include <QLocale>

#include <cstdio>

namespace {

using make_layouts::Problems;
using recorder::VideoStandard;

bool fail(const QString &message)
{
    std::fprintf(stderr, "%s\n", qPrintable(message));
    return false;
}

platform::Stamp releaseStamp()
{
    const QDateTime noon(QDate::fromString(QStringLiteral(MORVEL_RELEASE_DATE), Qt::ISODate), QTime(12, 0));
    return {[noon] { return noon; }, QStringLiteral("MORVEL"), QStringLiteral("MORVEL")};
}

bool makeOne(const QString &textPath, const QString &program, const QString &standard, const QString &path)
{
    Problems problems;
    QFile file(textPath);
    if (!file.open(QIODevice::ReadOnly))
        return fail(textPath + QLatin1String(": ") + file.errorString());
    const make_layouts::TextTable text = make_data::parseTable(textPath, file.readAll(), problems);
    const VideoStandard wanted = standard == QLatin1String("NTSC") ? VideoStandard::Ntsc : VideoStandard::Pal;
    QByteArray layout;
    const auto reason = platform::failureOf(
        [&] { layout = make_layouts::makeLayout(text, wanted, program, releaseStamp(), problems); });
    if (reason)
        problems.add(textPath, 1, *reason);
    if (!problems.none())
        return fail(problems.lines().join(QLatin1Char('\n')));
    return make_data::writeOutput(path, layout) || fail(path + QLatin1String(": cannot be written"));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    platform::applyAppearance(application, platform::Theme::Light);
    const QStringList arguments = QApplication::arguments();
    constexpr qsizetype FirstLayout = 3;
    if (arguments.size() <= FirstLayout || arguments.size() % 2 == 0) {
        fail(QStringLiteral("make_layouts <text> <program folder> (PAL|NTSC <out.VGL>)..."));
        return 1;
    }
    platform::registerShippedFaces(arguments[2] + QStringLiteral("/fonts/"));
    for (qsizetype i = FirstLayout; i < arguments.size(); i += 2) {
        if (!makeOne(arguments[1], arguments[2], arguments[i], arguments[i + 1]))
            return 1;
    }
    return 0;
}
