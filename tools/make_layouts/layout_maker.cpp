#include "make_layouts/layout_maker.h"

#include "controls/complexity.h"
#include "controls/overlay_control.h"
#include "layoutfile/modLoadVGLFiles.h"
#include "layoutfile/modSaveVGLFiles.h"
#include "make_layouts/control_row.h"
#include "make_layouts/recorder_row.h"
#include "platform/guards.h"
#include "shell/program_state.h"
#include "shell/seed_user_data.h"
#include "surface/frm_interface.h"
#include "variables/definition_file.h"

#include <QTemporaryDir>

#include <algorithm>
#include <numeric>

namespace make_layouts {

namespace {

using controls::Family;
using recorder::VideoStandard;

constexpr int GoodBelow = 10; // load estimate, percent

// The design window of a user whose first start this is, with nobody before it.
class Workshop
{
public:
    Workshop(const QString &programFolder, const platform::Stamp &stamp)
    {
        const QString home = m_home.path();
        m_state.folders = {programFolder + QLatin1Char('/'),
                           home + QLatin1String("/data/"),
                           home + QLatin1String("/temporary/"),
                           home + QLatin1String("/cache/"),
                           {}};
        m_state.stamp = stamp;
        const platform::Folders &folders = m_state.folders;
        shell::seedUserData(folders, shell::shippedFiles(folders));
        variables::loadDefinitions(platform::readFile(folders.variablesFile()), m_state.catalogue);
        recorder::readMessageTable(platform::readFile(folders.MessagesFile()), m_state.settings.MessageTable);
        m_state.startMessages = m_state.settings.MessageTable;
        m_design.load();
    }

    Workbench bench(VideoStandard standard)
    {
        m_design.setVideoStandard(standard);
        const QString pictures = m_state.folders.exampleGraphics();
        return {m_design, m_state.catalogue, m_state.settings,
                standard == VideoStandard::Pal ? pictures : pictures + QLatin1String("NTSC/")};
    }

    int load() const
    {
        const auto all = m_design.controls();
        return controls::shownLoad(std::accumulate(
            all.begin(), all.end(), 0.0,
            [](double sum, const controls::OverlayControl *control) { return sum + control->complexity(); }));
    }

    layoutfile::LayoutBytes save()
    {
        return layoutfile::layoutBytes(layoutfile::SaveKind::Command,
                                       {m_design, m_state.catalogue, m_state.settings, m_state.fonts,
                                        m_prompts, m_progress, m_state.stamp, m_state.screen});
    }

    // The layout as it comes back from a file: colours pass through the recorder's, which the thumbnail
    // shows.
    QByteArray settled(const QByteArray &made)
    {
        const QString path = m_home.filePath(QStringLiteral("made.VGL"));
        platform::replaceFile(path, made);
        m_design.mnuNew_Click();
        layoutfile::LoadVGL(path, {m_design, m_state.catalogue, m_state.settings, m_prompts, m_progress,
                                   m_state.folders, m_state.stamp, m_state.screen});
        return save().file;
    }

private:
    QTemporaryDir m_home;
    shell::ProgramState m_state;
    platform::SilentPrompts m_prompts;
    platform::NoProgress m_progress;
    surface::frmInterface m_design{{m_state.catalogue, m_state.settings, m_state.startMessages,
                                    m_state.folders, m_state.fonts, m_state.clipboard, m_prompts,
                                    m_state.locale, m_state.screen, m_state.stamp}};
};

const Family *familyCalled(const QString &caption)
{
    const auto all = controls::families();
    const auto found = std::ranges::find_if(
        all, [&](const Family &family) { return caption == QLatin1String(family.caption); });
    return found == all.end() ? nullptr : &*found;
}

void takeRows(const TextTable &text, Workbench bench, Problems &problems)
{
    QStringList heading;
    const Family *family = nullptr;
    for (const make_data::Row &source : text.rows) {
        RowReader row(text, source, problems);
        if (source.isHeading) {
            heading = make_data::cellsOf(row.text(0));
            family = familyCalled(heading[0]);
            if (!family && heading[0] != QLatin1String("Recorder"))
                row.complain(QStringLiteral("there is no family \"%1\"").arg(heading[0]));
        } else if (family) {
            addControl(row, *family, heading.sliced(1) + source.cells, bench);
        } else if (!heading.isEmpty()) {
            takeSetting(row, bench);
        }
    }
}

} // namespace

std::optional<int> variableNamed(RowReader &row, const QString &name, const variables::Catalogue &catalogue)
{
    const int index = variables::findByName(catalogue.live, name);
    if (index != variables::NotFound)
        return index;
    row.complain(QStringLiteral("there is no variable \"%1\"").arg(name));
    return std::nullopt;
}

QByteArray makeLayout(const TextTable &text, VideoStandard standard, const QString &programFolder,
                      const platform::Stamp &stamp, Problems &problems)
{
    const auto complain = [&](const QString &message) { problems.add(text.path, 1, message); };
    Workshop shop(programFolder, stamp);
    takeRows(text, shop.bench(standard), problems);
    if (!problems.none())
        return {};
    if (const int load = shop.load(); load >= GoodBelow)
        complain(QStringLiteral("a load of %1 %, good ones stay below %2 %").arg(load).arg(GoodBelow));
    const layoutfile::LayoutBytes made = shop.save();
    if (made.file.isEmpty())
        complain(made.refusal);
    for (const QString &font : made.replacedFonts)
        complain(QStringLiteral("the font \"%1\" cannot be made").arg(font));
    return problems.none() ? shop.settled(made.file) : QByteArray();
}

} // namespace make_layouts
