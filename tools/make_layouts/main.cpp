// Makes a layout that ships with the program from its text: a heading names the family of a control, the rows
// below it set its properties by the names of their writers. Values are numbers, colours as #RRGGBB, texts in
// double quotes, and variables as @ and their physical name. "place" is left and top, and where the text does
// not decide it the size, of the outer box in canvas pixels. A row "standard | NTSC" may come first.

#include "common/colour.h"
#include "controls/overlay_control.h"
#include "make_data/output_file.h"
#include "make_data/text_table.h"
#include "platform/desktop/appearance.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "shell/frm_main.h"
#include "variables/definition_file.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

using controls::OverlayControl;
using controls::PropertyValue;
using make_data::RowReader;

struct Arguments
{
    QString program; // folder of the shipped files
    QString text;
    QString layout;
};

// A program of its own over empty folders, with the shipped definitions and a fixed stamp.
class Workshop
{
public:
    explicit Workshop(const QString &program)
    {
        m_state.folders = {program, folder("data"), folder("temporary"), folder("cache")};
        QDir().mkpath(m_state.folders.FontFolder());
        m_state.stamp = {[] { return QDateTime({2006, 1, 1}, {12, 0}); }, {}, {}};
        variables::loadDefinitions(platform::readFile(m_state.folders.shippedVariablesFile()),
                                   m_state.catalogue);
        recorder::readMessageTable(
            platform::readFile(m_state.folders.seeds() + QStringLiteral("QLM6ConfigToolMessages.cfg")),
            m_state.settings.MessageTable);
        m_window = std::make_unique<shell::frmMain>(m_state, m_prompts);
        m_window->design().load();
    }

    surface::frmInterface &design() { return m_window->design(); }
    const variables::Catalogue &catalogue() const { return m_state.catalogue; }
    QByteArray layout()
    {
        m_window->files().saveWorkspace();
        return platform::readFile(m_state.folders.workspaceFile());
    }

private:
    QString folder(const char *name)
    {
        QDir(m_root.path()).mkdir(QLatin1String(name));
        return m_root.filePath(QLatin1String(name)) + QLatin1Char('/');
    }

    QTemporaryDir m_root;
    platform::SilentPrompts m_prompts;
    shell::ProgramState m_state;
    std::unique_ptr<shell::frmMain> m_window;
};

qint32 variableOf(const QString &name, const variables::Catalogue &catalogue)
{
    const auto found = std::ranges::find(catalogue.live, name, &variables::VariableRecord::PhysicalName);
    if (found == catalogue.live.end())
        throw common::RunTimeError(name + QStringLiteral(": no such variable"));
    return found->IndexNumber;
}

PropertyValue valueOf(const QString &text, const variables::Catalogue &catalogue)
{
    if (text.startsWith(QLatin1Char('"')))
        return text.sliced(1).chopped(1);
    if (text.startsWith(QLatin1Char('@')))
        return variableOf(text.sliced(1), catalogue);
    if (text.startsWith(QLatin1Char('#')))
        return static_cast<qint32>(common::fromPixel(QColor(text).rgb()));
    bool isNumber = false;
    const float number = text.toFloat(&isNumber);
    if (!isNumber)
        throw common::RunTimeError(text + QStringLiteral(": no value"));
    return number;
}

void place(OverlayControl &control, const QString &pixels, const platform::Screen &screen)
{
    QList<float> numbers;
    for (const QString &number : pixels.split(QLatin1Char(' ')))
        numbers.append(number.toFloat());
    control.AssignProperties(); // may size it
    controls::Box box = control.box();
    box.Left = screen.toTwipsX(numbers.value(0));
    box.Top = screen.toTwipsY(numbers.value(1));
    if (numbers.size() == 4) {
        box.Width = screen.toTwipsX(numbers[2]);
        box.Height = screen.toTwipsY(numbers[3]);
    }
    control.setBox(box);
    control.applyResize();
    control.updatePosition();
}

OverlayControl *added(const QString &family, surface::frmInterface &design)
{
    for (const controls::Family &known : controls::families()) {
        if (family == QLatin1String(known.name)) {
            design.addControl(known.type, {});
            return design.controls().last();
        }
    }
    throw common::RunTimeError(family + QStringLiteral(": no such family"));
}

recorder::VideoStandard standardOf(const QString &name)
{
    using recorder::VideoStandard;
    return name == QLatin1String("NTSC") ? VideoStandard::Ntsc : VideoStandard::Pal;
}

void compose(const make_data::TextTable &table, Workshop &workshop, make_data::Problems &problems)
{
    OverlayControl *control = nullptr;
    const auto apply = [&](RowReader &row) {
        if (row.isHeading()) {
            control = added(row.text(0), workshop.design());
        } else if (!row.hasCells(2)) {
            return;
        } else if (!control) {
            workshop.design().setVideoStandard(standardOf(row.text(1)));
        } else if (row.text(0) == QLatin1String("place")) {
            place(*control, row.text(1), workshop.design().screen());
        } else {
            control->write(row.text(0).toStdString(), valueOf(row.text(1), workshop.catalogue()));
        }
    };
    for (const make_data::Row &line : table.rows) {
        RowReader row(table, line, problems);
        if (const auto failure = platform::failureOf([&] { apply(row); }))
            row.complain(*failure);
    }
    for (OverlayControl *placed : workshop.design().controls())
        placed->AssignProperties();
}

bool makeLayout(const Arguments &arguments)
{
    make_data::Problems problems;
    const auto table = make_data::parseTable(arguments.text, platform::readFile(arguments.text), problems);
    platform::registerShippedFaces(arguments.program + QStringLiteral("fonts/"));
    Workshop workshop(arguments.program);
    compose(table, workshop, problems);
    if (problems.none() && make_data::writeOutput(arguments.layout, workshop.layout()))
        return true;
    std::fprintf(stderr, "%s\n%s: not written\n", qPrintable(problems.lines().join(QLatin1Char('\n'))),
                 qPrintable(arguments.layout));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen"); // a build has no display
    QApplication application(argc, argv);
    platform::applyAppearance(application, platform::Theme::Light);
    const QStringList given = QApplication::arguments();
    if (given.size() != 4) {
        std::fprintf(stderr, "make_layouts <program folder> <in.txt> <out.VGL>\n");
        return EXIT_FAILURE;
    }
    bool isMade = false;
    const auto failure = platform::failureOf([&] {
        isMade = makeLayout({given[1] + QLatin1Char('/'), given[2], given[3]});
    });
    if (failure)
        std::fprintf(stderr, "%s\n", qPrintable(*failure));
    return isMade ? EXIT_SUCCESS : EXIT_FAILURE;
}
