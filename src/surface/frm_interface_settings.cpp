// The design window's start, its background pictures and grid, and what it keeps in the settings file.

#include "platform/file_replace.h"
#include "surface/canvas.h"
#include "surface/canvas_view.h"
#include "surface/frm_interface.h"
#include "surface/library_panel.h"
#include "surface/panel_area.h"
#include "surface/variable_tree.h"

#include <vector>

namespace surface {

using controls::OverlayControl;
using platform::SettingsFile;
using recorder::VideoStandard;
namespace keys = platform::keys;

namespace {

// Colours that every control is given, packed 0x00BBGGRR.
constexpr quint32 DefaultBackColour = 0x4A3B2F;
constexpr quint32 DefaultLabelColour = 0xFFFFFF;

} // namespace

void frmInterface::load()
{
    m_backgrounds.load(VideoType()); // a change of standard loads the other one
    const SettingsFile file(m_context.folders.ConfigFile());
    m_grid = {keys::GridSize.read(file), keys::ShowGrid.read(file) == 1, keys::SnapGrid.read(file) == 1};
    m_panels->restore(file);
    m_library->restoreBar(file, screen());
    setCurBackColour(DefaultBackColour, DefaultLabelColour);
    m_canvas->setPlayMode(false);
    m_canvas->setSafeAreas(keys::SafeAreas.read(file) == 1);
    initGrid(m_grid);
    m_library->loadControlTree();
    m_variables->RegenerateVariableTree();
    m_context.settings.ChapterList.clear();
}

void frmInterface::setOptions(const Grid &grid, const QString &palFile, const QString &ntscFile)
{
    SettingsFile file(m_context.folders.ConfigFile());
    keys::GridSize.write(file, grid.spacing);
    keys::ShowGrid.write(file, grid.shown ? 1 : 0);
    keys::SnapGrid.write(file, grid.snaps ? 1 : 0);
    std::vector<Backgrounds::Copy> copies;
    const auto choose = [&](VideoStandard standard, const QString &path) {
        if (platform::FileExists(path))
            copies.push_back(m_backgrounds.choose(standard, path, file));
    };
    choose(VideoStandard::Pal, palFile);
    choose(VideoStandard::Ntsc, ntscFile);
    for (const Backgrounds::Copy &copy : copies)
        platform::replaceFile(copy.path, copy.bytes);
    file.save();
    m_backgrounds.load(VideoStandard::Pal);
    m_backgrounds.load(VideoStandard::Ntsc);
    initGrid(grid);
}

void frmInterface::initGrid(const Grid &grid)
{
    m_grid = grid;
    ShowGrid();
}

void frmInterface::ShowGrid()
{
    m_canvas->display(m_backgrounds.picture(VideoType()), rules(), m_grid.shown && !IsPlayMode());
}

void frmInterface::showSafeAreas(bool shown)
{
    m_canvas->setSafeAreas(shown);
    SettingsFile file(m_context.folders.ConfigFile());
    keys::SafeAreas.write(file, shown ? 1 : 0);
    file.save();
}

bool frmInterface::showsSafeAreas() const { return m_canvas->showsSafeAreas(); }

void frmInterface::setCurBackColour(quint32 backColour, quint32 labelColour)
{
    m_backColour = backColour;
    m_labelColour = labelColour;
    for (OverlayControl *control : controls())
        control->setColour(backColour, labelColour);
}

void frmInterface::setVideoStandard(VideoStandard standard)
{
    m_backgrounds.load(standard);
    m_context.settings.VideoType = standard;
    for (OverlayControl *control : controls()) {
        control->standardChanged();
        if (standard == VideoStandard::Ntsc)
            control->fitCanvasHeight(rules().height());
    }
    ShowGrid();
    m_canvasView->setFitting(m_canvasView->isFitting());
    emit layoutChanged();
}

void frmInterface::resetPanels()
{
    m_panels->reset();
    m_library->resetBar();
}

void frmInterface::GenerateIcons(platform::Progress &progress) { m_library->GenerateIcons(progress); }

void frmInterface::storeVisibility(PanelId id, bool visible)
{
    SettingsFile file(m_context.folders.ConfigFile());
    keys::Visible[static_cast<std::size_t>(id)].write(file, visible ? 1 : 0);
    file.save();
}

void frmInterface::saveGeometry()
{
    SettingsFile file(m_context.folders.ConfigFile());
    keys::VideoType.write(file, static_cast<int>(VideoType()));
    m_panels->save(file);
    m_library->saveBar(file, screen());
    file.save();
}

} // namespace surface
