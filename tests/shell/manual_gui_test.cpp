// Nothing that the program shows may be missing from the manual.

#include "graphics/dialogs/frm_font_gen.h"
#include "recorder/dialogs/frm_gear_ratios.h"
#include "shell/commands.h"
#include "support/design_window.h"
#include "surface/variable_labels.h"
#include "variables/editors/frm_calculus_setup.h"
#include "variables/editors/frm_curve_fit.h"
#include "variables/editors/frm_enter_equation_manually.h"
#include "variables/editors/frm_filter_design.h"
#include "variables/editors/frm_variable_transformation.h"
#include "variables/expression/compiler.h"
#include "variables/expression/opcodes.h"

#include <QDir>
#include <QHeaderView>
#include <QTableView>
#include <QXmlStreamReader>

namespace {

const QDir Pages(QStringLiteral(MORVEL_HELP));

// What a page names to explain it: headings, terms of lists and tables, keys. Every link has to lead
// somewhere.
QStringList named(const QString &page, const QStringList &elements = {"h2", "dt", "th", "kbd"})
{
    QFile file(Pages.filePath(page));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(page);
    QStringList texts;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        for (const QXmlStreamAttribute &link : reader.attributes()) {
            const QString target = link.value().toString().section('#', 0, 0);
            const bool leads = link.name() == QLatin1String("href") || link.name() == QLatin1String("src");
            EXPECT_TRUE(!leads || target.isEmpty() || Pages.exists(target))
                << qPrintable(page + ": " + target);
        }
        if (elements.contains(reader.name()))
            texts += reader.readElementText(QXmlStreamReader::IncludeChildElements).simplified();
    }
    EXPECT_FALSE(reader.hasError()) << qPrintable(page + ": " + reader.errorString());
    return texts;
}

void expectNamed(const QString &page, const QStringList &texts, const QStringList &elsewhere = {})
{
    const QStringList known = named(page) + elsewhere + QStringList{{}};
    for (const QString &text : texts) {
        const QString plain = QString(text).remove('&').simplified();
        EXPECT_TRUE(known.contains(plain)) << qPrintable(page + " lacks " + plain);
    }
}

// What a dialog calls its fields, buttons and columns.
QStringList captions(const QWidget &dialog)
{
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        texts += label->buddy() ? label->text() : QString();
    for (const QAbstractButton *button : dialog.findChildren<QAbstractButton *>())
        texts += button->text();
    for (const QHeaderView *header : dialog.findChildren<QHeaderView *>()) {
        const bool isShown = header->orientation() == Qt::Horizontal && !header->isHidden();
        for (int column = 0; isShown && column < header->count(); ++column)
            texts += header->model()->headerData(column, Qt::Horizontal).toString();
    }
    return texts;
}

void expectFields(const QString &page, const QWidget &dialog)
{
    expectNamed(page, captions(dialog), named("dialogs.html"));
}

void expectFieldsOfNext(const QString &page)
{
    test::whenOpened([page](QWidget &dialog) {
        expectFields(page, dialog);
        dialog.close();
    });
}

QString pageOf(const controls::Family &family)
{
    return QString(family.caption).toLower().replace(' ', '_') + ".html";
}

TEST(Manual, NamesEveryEntryAndKey)
{
    test::DesignWindow w;
    QStringList entries, keys;
    for (const QAction *menu : w.window.menuBar()->actions())
        entries += menu->text();
    for (const controls::Family &family : controls::families())
        entries += family.menuCaption;
    for (const shell::Command &command : shell::commands()) {
        if (!*command.name)
            continue;
        const QAction &action = w.action(command.name);
        if (action.isVisible())
            entries += action.text();
        for (const QKeySequence &key : action.shortcuts())
            keys += key.toString();
    }
    expectNamed("menus.html", entries);
    expectNamed("keys.html", keys);
}

TEST(Manual, NamesEveryFieldOfADialog)
{
    test::DesignWindow w;
    for (const controls::Family &family : controls::families()) {
        w.design().addControl(family.type, {});
        expectFieldsOfNext(pageOf(family));
        QTest::mouseDClick(&w.canvas(), Qt::LeftButton, {}, {10, 10});
    }
    for (const shell::Command &command : shell::commands()) {
        if (!(command.places & shell::ConfigurationMenu) || !command.run)
            continue;
        expectFieldsOfNext("recorder.html");
        w.run(command.name);
    }
    expectFieldsOfNext("options.html");
    w.run("mnuOptions");
    const forms::Context context{w.world.prompts, w.world.state.locale, &w.window};
    expectFields("recorder.html", recorder::frmGearRatios({}, recorder::MostGears, context));
    expectFields("curve_fit.html", variables::frmCurveFit(context));
    variables::Coefficients coefficients;
    const variables::frmVariableTransformation transformation(1, w.world.state.catalogue, coefficients,
                                                              context);
    expectFields("equations.html", transformation);
    expectFields("filters.html", variables::frmFilterDesign({}, {}, context));
    expectFields("filters.html", variables::FrmCalculusSetup({}, context));
    expectFields("fonts.html", graphics::frmFontGen(w.world.state.fonts, {}, context));
}

TEST(Manual, NamesWhatAnEquationIsMadeOf)
{
    using namespace variables::expression;
    const QString all = ' ' + named("equations.html").join(' ').toLower() + ' ';
    const auto expectPart = [&all](std::string_view text, const char *end) {
        const QString part = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())).toLower();
        EXPECT_TRUE(all.contains(' ' + part + end)) << qPrintable(part);
    };
    for (const OperationRow &row : Operations) {
        if (row.precedence != NoPrecedence)
            expectPart(row.text, " ");
    }
    for (const FunctionRow &row : Functions) {
        if (row.code != Function::Negate)
            expectPart(row.text, "");
    }
    QByteArray program;
    for (const QString &example : named("equations.html", {"pre"}))
        EXPECT_TRUE(compile(example, program, 6013, {})) << qPrintable(example);
    QStringList groups;
    for (const surface::VariableGroupNode &group : surface::VariableGroups)
        groups += group.text;
    expectNamed("variables.html", groups);
}

TEST(Manual, HasAllItsPagesInTheContents)
{
    QFile contents(Pages.filePath("index.html"));
    ASSERT_TRUE(contents.open(QIODevice::ReadOnly));
    const QByteArray text = contents.readAll();
    for (const QString &page : Pages.entryList({"*.html"})) {
        named(page);
        EXPECT_TRUE(page == "index.html" || text.contains('"' + page.toUtf8() + '"')) << qPrintable(page);
    }
}

} // namespace
