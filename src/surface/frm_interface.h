#pragma once

#include "controls/control_host.h"
#include "controls/control_surface.h"
#include "graphics/font_store.h"
#include "platform/progress.h"
#include "platform/stamp.h"
#include "surface/backgrounds.h"
#include "surface/canvas_rules.h"
#include "surface/clipboard.h"
#include "surface/panel_layout.h"
#include "surface/selection.h"

#include <QWidget>

#include <functional>

namespace surface {

class Canvas;
class CanvasView;
class LibraryPanel;
class Panel;
class PanelArea;
class VariableTree;

// What the design window works on; everything is owned by the program's start.
struct InterfaceContext
{
    variables::Catalogue &catalogue;
    recorder::RecorderSettings &settings;
    const recorder::MessageTable &startMessages; // as read at start
    const platform::Folders &folders;
    graphics::FontStore &fonts;
    Clipboard &clipboard;
    platform::Prompts &prompts;
    const platform::NumberLocale &locale;
    platform::Screen screen;
    const platform::Stamp &stamp;
};

// The design window: canvas, control library and variable tree. The controls on the canvas are the layout.
class frmInterface final : public QWidget, public controls::ControlHost, public controls::ControlSurface
{
    Q_OBJECT

public:
    explicit frmInterface(const InterfaceContext &context);
    ~frmInterface() override;

    // First step of its life, after construction and before it is seen.
    void load();
    void GenerateIcons(platform::Progress &progress);
    void saveGeometry();
    void mnuNew_Click();
    // To Preview and back. Panels that have nothing to do there are disabled.
    void mnuPlayMode_Click() { setPlayMode(true); }
    void mnuEditMode_Click() { setPlayMode(false); }
    // Adds a control of the family with its corner at this point of the canvas (twips).
    void addControl(controls::ControlType family, QPointF twips);
    void addControlAtLastPosition(controls::ControlType family) { addControl(family, m_lastMousePosition); }

    // The control that was chosen last; null when it is gone or the choice was taken back.
    controls::OverlayControl *currentControl() const;
    // The canvas, where the keys of its commands work.
    QWidget &canvas();
    // The members of the group in the order of the layout.
    ControlList group() const { return groupOf(controls()); }
    // Takes the group, or without one the current control, to the clipboard.
    bool canTake() const;
    void take(Operation operation);
    // Both paste at the last mouse position.
    void mnuPaste_Click();
    void PasteAllObjects();
    // Of the group, as far as the canvas goes.
    void align(Qt::Edge edge);
    void spaceEqually(Qt::Orientation along);
    // Acts on the current control as the key does.
    void pressKey(Qt::Key key);
    // To the next or previous control in the order of the layout, round and round.
    void stepControl(bool forward);
    const Grid &grid() const { return m_grid; }
    Backgrounds &backgrounds() { return m_backgrounds; }
    // Keeps the grid and copies of the chosen backgrounds (paths, empty for the ones before), and shows them.
    // Throws RunTimeError; the settings are then as they were.
    void setOptions(const Grid &grid, const QString &palFile, const QString &ntscFile);
    // The panels and the library's bar as a first start lays them out.
    void resetPanels();

    bool IsPlayMode() const;
    const QString &caption() const { return m_caption; }
    void setCaption(const QString &name);
    PanelArea &panels() { return *m_panels; }
    LibraryPanel &library() { return *m_library; }
    VariableTree &variables() { return *m_variables; }
    CanvasView &view() { return *m_canvasView; }
    // Outlines of the picture's safe areas, from now on and at the next start.
    void showSafeAreas(bool shown);
    bool showsSafeAreas() const;

    // ControlSurface
    QList<controls::OverlayControl *> controls() const override;
    controls::OverlayControl &loadControl(controls::ControlType family) override;
    void showControl(controls::OverlayControl &control) override;
    QImage renderPreview() const override;
    void setVideoStandard(recorder::VideoStandard standard) override;
    void refresh() override;

    // ControlHost
    const platform::Screen &screen() const override { return m_context.screen; }
    const platform::NumberLocale &locale() const override { return m_context.locale; }
    platform::Prompts &prompts() override { return m_context.prompts; }
    const variables::Catalogue &catalogue() const override { return m_context.catalogue; }
    const platform::Folders &folders() const override { return m_context.folders; }
    recorder::VideoStandard VideoType() const override { return m_context.settings.VideoType; }
    std::shared_ptr<const graphics::TextFont> textFont(const graphics::FontRequest &request,
                                                       int usualSize) override;
    std::shared_ptr<const graphics::OutlineFont> outlineFont(const QString &face,
                                                             const graphics::FontStyle &style) override
    {
        return m_context.fonts.outlines(face, style);
    }
    void Reposition(controls::OverlayControl &control, QPointF corner) override;
    void restack(controls::OverlayControl &control, bool above) override;
    void Copy(controls::OverlayControl &control, const QStringList &arr) override;
    void Cut(controls::OverlayControl &control, const QStringList &arr) override;
    void Delete(controls::OverlayControl &control) override;
    void showProperties(controls::OverlayControl &control) override;
    void UserControlChanged() override { emit designChanged(); }
    void redrawControl(const controls::OverlayControl &control, const QRect &area) override;

signals:
    void positionShown(const QString &text);
    void currentShown(const QString &text); // family, variable and place; empty when none is current
    void viewChanged();                     // by zooming
    void controlMenuRequested(const QPoint &globalPosition); // of the current control
    void canvasMenuRequested(const QPoint &globalPosition);
    void groupMenuRequested(const QPoint &globalPosition, bool pastes);
    void libraryMenuRequested(const QPoint &globalPosition); // of a custom entry
    void designChanged();                                    // by a user's hand
    void selectionChanged();                                 // of controls, or of a variable in its panel
    void controlsChanged();                                  // one was added or deleted
    void layoutChanged(); // the layout's caption, standard or settings may differ now

private:
    CanvasRules rules() const;
    void setPlayMode(bool playMode);
    void showCanvasMenu(const QPoint &globalPosition);
    controls::OverlayControl &paste(const CopiedControl &copied);
    // Moves each so that the recorder's picture of it stands here.
    void rearrange(const ControlList &group, const QList<Box> &pictures);
    void connectCanvas();
    // Adds a control that `fill` gives its properties.
    void addFilled(controls::ControlType family, QPointF twips,
                   const std::function<void(controls::OverlayControl &)> &fill);
    void initGrid(const Grid &grid);
    void ShowGrid();
    void storeVisibility(PanelId id, bool visible);
    void setCurBackColour(quint32 backColour, quint32 labelColour);

    InterfaceContext m_context;
    Canvas *m_canvas;
    CanvasView *m_canvasView;
    LibraryPanel *m_library;
    VariableTree *m_variables;
    PanelArea *m_panels;
    Backgrounds m_backgrounds;
    Grid m_grid;
    quint32 m_backColour = 0;
    quint32 m_labelColour = 0;
    QPointF m_lastMousePosition; // twips
    QString m_caption;
};

} // namespace surface
