#include "surface/frm_interface.h"

#include "controls/family_dialogs.h"
#include "graphics/dialogs/frm_font_gen.h"
#include "platform/guards.h"
#include "surface/canvas.h"
#include "surface/canvas_view.h"
#include "surface/library_panel.h"
#include "surface/panel_area.h"
#include "surface/placing.h"
#include "surface/variable_tree.h"

#include <QVBoxLayout>

namespace surface {

using namespace Qt::StringLiterals;
using controls::OverlayControl;
using platform::skipFailures;

namespace {

const QString UntitledCaption = u"Untitled"_s;

} // namespace

frmInterface::frmInterface(const InterfaceContext &context)
    : m_context(context), m_canvas(new Canvas), m_canvasView(new CanvasView(*m_canvas)),
      m_library(new LibraryPanel(*this, *this, context.stamp)),
      m_variables(new VariableTree({context.catalogue, context.folders, context.locale, context.prompts})),
      m_backgrounds(context.folders), m_caption(UntitledCaption)
{
    setObjectName(u"frmInterface"_s);
    m_panels = new PanelArea(
        context.screen,
        {{{u"Variables"_s, m_variables}, {u"Control library"_s, m_library}, {m_caption, m_canvasView}}});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panels);
    connectCanvas();
    connect(m_panels, &PanelArea::visibilityChanged, this,
            [this](PanelId id, bool visible) { skipFailures([&] { storeVisibility(id, visible); }); });
}

frmInterface::~frmInterface() = default;

void frmInterface::connectCanvas()
{
    connect(m_canvas, &Canvas::pressed, this, [this](QPointF twips) { m_lastMousePosition = twips; });
    connect(m_canvas, &Canvas::stepped, this, &frmInterface::stepControl);
    connect(m_canvas, &Canvas::positionShown, this, &frmInterface::positionShown);
    connect(m_canvas, &Canvas::currentShown, this, &frmInterface::currentShown);
    connect(m_canvasView, &CanvasView::zoomChanged, this, &frmInterface::viewChanged);
    connect(m_canvas, &Canvas::controlMenuRequested, this, &frmInterface::controlMenuRequested);
    connect(m_canvas, &Canvas::groupMenuRequested, this,
            [this](const QPoint &at) { emit groupMenuRequested(at, false); });
    connect(m_canvas, &Canvas::canvasMenuRequested, this, &frmInterface::showCanvasMenu);
    connect(m_canvas, &Canvas::designChanged, this, &frmInterface::designChanged);
    connect(m_canvas, &Canvas::selectionChanged, this, &frmInterface::selectionChanged);
    const auto addByKey = [this](const QString &key, QPointF twips) {
        m_canvas->chooseNone();
        if (const controls::Family *family = controls::familyOfKey(key))
            addFilled(family->type, twips,
                      [this, key](OverlayControl &control) { m_library->configure(control, key); });
    };
    connect(m_canvas, &Canvas::dropped, this, addByKey);
    connect(m_library, &LibraryPanel::activated, this,
            [this, addByKey](const QString &key) { addByKey(key, m_lastMousePosition); });
    connect(m_library, &LibraryPanel::menuRequested, this, &frmInterface::libraryMenuRequested);
    connect(m_library, &LibraryPanel::used, m_canvas, &Canvas::chooseNone);
    connect(m_variables, &VariableTree::currentChanged, this, &frmInterface::selectionChanged);
    connect(m_variables, &VariableTree::used, m_canvas, &Canvas::chooseNone);
}

CanvasRules frmInterface::rules() const { return {m_context.screen, VideoType(), m_grid}; }

void frmInterface::setCaption(const QString &name)
{
    m_caption = name;
    m_panels->panel(PanelId::Design).setTitle(name);
    emit layoutChanged();
}

QList<OverlayControl *> frmInterface::controls() const { return m_canvas->registry().controls(); }

OverlayControl &frmInterface::loadControl(controls::ControlType family)
{
    return m_canvas->registry().loadControl(family, *this);
}

void frmInterface::showControl(OverlayControl &control)
{
    control.setColour(m_backColour, m_labelColour);
    control.setMode(IsPlayMode() ? OverlayControl::Mode::Play : OverlayControl::Mode::Design);
    m_canvas->showControl(control);
}

void frmInterface::addControl(controls::ControlType family, QPointF twips)
{
    addFilled(family, twips, &OverlayControl::applyInitialProperties);
}

void frmInterface::addFilled(controls::ControlType family, QPointF twips,
                             const std::function<void(OverlayControl &)> &fill)
{
    OverlayControl &control = loadControl(family);
    setStartSize(control, {});
    MoveTo(control, twips, rules());
    skipFailures([&] { fill(control); });
    MoveTo(control, cornerOf(control), rules()); // the properties may have sized it
    showControl(control);
    m_canvas->setFocus();
    m_canvas->choose(control);
    emit controlsChanged();
    emit designChanged();
}

bool frmInterface::IsPlayMode() const { return m_canvas->isPlayMode(); }

QWidget &frmInterface::canvas() { return *m_canvas; }

OverlayControl *frmInterface::currentControl() const { return m_canvas->current(); }

void frmInterface::setPlayMode(bool playMode)
{
    m_canvas->setFocus();
    m_canvas->setPlayMode(playMode);
    for (const PanelId id : {PanelId::Functions, PanelId::Library})
        m_panels->panel(id).setEnabled(!playMode);
    ShowGrid();
    emit layoutChanged();
}

void frmInterface::pressKey(Qt::Key key) { m_canvas->pressKey(key); }

void frmInterface::stepControl(bool forward)
{
    if (IsPlayMode())
        return;
    const QList<OverlayControl *> all = controls();
    const qsizetype next = stepInRing(all.size(), all.indexOf(m_canvas->current()), forward);
    if (next < 0)
        return;
    m_canvas->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    m_canvas->choose(*all[next]);
    m_canvasView->reveal(all[next]->outerRect());
}

void frmInterface::Reposition(OverlayControl &control, QPointF corner)
{
    const QPointF twips = screen().toTwips(corner);
    control.moveTo(static_cast<float>(twips.x()), static_cast<float>(twips.y()));
    emit designChanged();
    if (m_canvas->current() == &control) // others are placed by a load
        m_canvas->showPosition(control);
}

void frmInterface::restack(OverlayControl &control, bool above)
{
    if (m_canvas->registry().restack(control, above))
        control.redraw();
}

void frmInterface::Delete(OverlayControl &control)
{
    m_canvas->unload(control);
    emit controlsChanged();
    emit designChanged();
}

void frmInterface::showProperties(OverlayControl &control)
{
    controls::showPropertyDialog(control);
    emit designChanged();
}

void frmInterface::redrawControl(const OverlayControl &control, const QRect &area)
{
    m_canvas->redrawControl(control, area);
}

std::shared_ptr<const graphics::TextFont> frmInterface::textFont(const graphics::FontRequest &request,
                                                                 int usualSize)
{
    platform::NoProgress silent;
    const auto font = m_context.fonts.open(request, usualSize, silent);
    return {font, &font->text};
}

QImage frmInterface::renderPreview() const { return m_canvas->preview(); }

void frmInterface::mnuNew_Click()
{
    if (IsPlayMode())
        mnuEditMode_Click();
    m_canvas->clear();
    recorder::resetForNewLayout(m_context.settings, m_context.startMessages);
    setCaption(UntitledCaption);
}

void frmInterface::refresh()
{
    m_variables->RegenerateVariableTree();
    emit layoutChanged();
}

} // namespace surface
