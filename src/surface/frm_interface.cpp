#include "surface/frm_interface.h"

#include "graphics/dialogs/frm_font_gen.h"
#include "platform/guards.h"
#include "surface/canvas.h"
#include "surface/library_panel.h"
#include "surface/overlay_picture.h"
#include "surface/panel_area.h"
#include "surface/variable_tree.h"

#include <QScrollArea>
#include <QSet>
#include <QVBoxLayout>

namespace surface {

using controls::OverlayControl;
using platform::skipFailures;

namespace {

const QString UntitledCaption = QStringLiteral("Untitled");

} // namespace

frmInterface::frmInterface(const InterfaceContext &context)
    : m_context(context), m_canvas(new Canvas(nullptr)), m_canvasView(new QScrollArea),
      m_library(new LibraryPanel(context.folders)),
      m_variables(new VariableTree({context.catalogue, context.folders, context.locale, context.prompts})),
      m_caption(UntitledCaption)
{
    setObjectName(QStringLiteral("frmInterface"));
    m_panels = new PanelArea(context.screen.tx, {{{QStringLiteral("Variables"), m_variables},
                                                  {QStringLiteral("Control library"), m_library},
                                                  {m_caption, makeDesignPanel()}}});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_panels);
    connectCanvas();
    connect(m_panels, &PanelArea::visibilityChanged, this,
            [this](PanelId id, bool visible) { skipFailures([&] { storeVisibility(id, visible); }); });
}

frmInterface::~frmInterface() = default;

QWidget *frmInterface::makeDesignPanel()
{
    m_canvasView->setWidget(m_canvas);
    m_canvasView->setAlignment(Qt::AlignCenter);
    m_canvasView->setFrameShape(QFrame::NoFrame);
    m_canvasView->setBackgroundRole(QPalette::Mid);
    m_canvasView->setFocusProxy(m_canvas);
    return m_canvasView;
}

void frmInterface::connectCanvas()
{
    connect(m_canvas, &Canvas::pressed, this, [this](QPointF twips) {
        m_lastMousePosition = twips;
        chooseNone();
    });
    connect(m_canvas, &Canvas::stepped, this, &frmInterface::stepControl);
    connect(m_canvas, &Canvas::rightPressed, this, [this](QPointF twips, const QPoint &globalPosition) {
        m_lastMousePosition = twips;
        if (m_IsPlayMode)
            return;
        const QList<OverlayControl *> all = controls();
        const bool grouped =
            std::any_of(all.begin(), all.end(), [](const auto *c) { return c->IsSelectedToGroup(); });
        if (grouped)
            emit groupMenuRequested(globalPosition);
        else
            emit canvasMenuRequested(globalPosition);
    });
    connect(m_canvas, &Canvas::moved, this,
            [this](QPointF twips) { emit positionShown(positionText(twips, screen())); });
    connect(m_canvas, &Canvas::bandFinished, this, &frmInterface::selectBand);
    const auto addByKey = [this](const QString &key, QPointF twips) {
        chooseNone();
        if (const controls::Family *family = controls::familyOfKey(key))
            addControl(family->type, twips);
    };
    connect(m_canvas, &Canvas::dropped, this, addByKey);
    connect(m_library, &LibraryPanel::activated, this,
            [this, addByKey](const QString &key) { addByKey(key, m_lastMousePosition); });
    connect(m_library, &LibraryPanel::used, this, &frmInterface::chooseNone);
    connect(m_variables, &VariableTree::used, this, &frmInterface::chooseNone);
}

CanvasRules frmInterface::rules() const { return {m_context.screen, VideoType(), m_grid}; }

void frmInterface::setCaption(const QString &name)
{
    m_caption = name;
    m_panels->panel(PanelId::Design).setTitle(name);
}

QList<OverlayControl *> frmInterface::bottomToTop() const
{
    const QList<OverlayControl *> all = controls();
    const QSet<const QObject *> ours(all.begin(), all.end()); // without those that wait for their deletion
    QList<OverlayControl *> stacked;
    for (QObject *child : m_canvas->children()) {
        if (ours.contains(child))
            stacked.append(static_cast<OverlayControl *>(child));
    }
    return stacked;
}

OverlayControl *frmInterface::loadControl(controls::ControlType family)
{
    int index = m_registry.count(family);
    OverlayControl *control = m_registry.loadControl(family, index, *this, m_canvas);
    if (control)
        connectControl(control);
    return control;
}

void frmInterface::showControl(OverlayControl &control)
{
    control.setColour(m_backColour, m_labelColour);
    control.setMode(m_IsPlayMode ? OverlayControl::Mode::Play : OverlayControl::Mode::Design);
    control.show();
}

void frmInterface::addControl(controls::ControlType family, QPointF twips)
{
    OverlayControl *control = loadControl(family);
    if (!control)
        return;
    const QSizeF size = control->startSize();
    const auto place = [&](float left, float top) {
        Box box = control->box();
        box.Left = left;
        box.Top = top;
        const Box clamped = clampedToCanvas(box, rules());
        control->moveTo(clamped.Left, clamped.Top);
    };
    control->setBox({0, 0, static_cast<float>(size.width()), static_cast<float>(size.height())});
    place(static_cast<float>(twips.x()), static_cast<float>(twips.y()));
    skipFailures([&] { control->applyInitialProperties(); });
    place(control->box().Left, control->box().Top); // the initial properties may have sized it
    control->updatePosition();
    showControl(*control);
    drawBack(*control);
    control->setFocus();
    emit designChanged();
}

void frmInterface::connectControl(OverlayControl *control)
{
    const auto move = [this, control](float x0, float y0, float x1, float y1) {
        MoveTo(*control, QPointF(x0, y0), QPointF(x1, y1));
    };
    const auto resize = [this, control](controls::Handle handle, float x, float y) {
        ResizeTo(*control, handle, QPointF(x, y));
    };
    connect(control, &OverlayControl::Drag, this, move);
    connect(control, &OverlayControl::Relocate, this, move);
    connect(control, &OverlayControl::ResizeDrag, this, resize);
    connect(control, &OverlayControl::Resize, this, resize);
    connect(control, &OverlayControl::Delete, this, [this, control] {
        releaseCurrent();
        m_registry.unload(control);
        emit designChanged();
    });
    connect(control, &OverlayControl::Reposition, this,
            [this, control](float x, float y) { reposition(*control, x, y); });
    connect(control, &OverlayControl::DrawBack, this, [this, control] { drawBack(*control); });
    connect(control, &OverlayControl::BringToFront, this, [this, control] { choose(*control); });
}

void frmInterface::choose(OverlayControl &control)
{
    control.raise();
    m_current = &control;
}

// A choice that is not seen any more would be nudged and deleted unseen.
void frmInterface::chooseNone()
{
    ResetControlGridColour();
    m_current = nullptr;
}

void frmInterface::stepControl(bool forward)
{
    const QList<OverlayControl *> all = controls();
    const qsizetype next = stepInRing(all.size(), all.indexOf(m_current.data()), forward);
    if (next < 0)
        return;
    all[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    m_canvasView->ensureWidgetVisible(all[next]);
}

// Hiding a control that has the focus would hand it to the next one, and so choose that.
void frmInterface::releaseCurrent()
{
    m_current = nullptr;
    if (m_canvas->isAncestorOf(window()->focusWidget()))
        m_canvas->setFocus();
}

void frmInterface::MoveTo(OverlayControl &control, QPointF start, QPointF now)
{
    if (!control.hasLeftDeadZone() && insideDeadZone(start, now, screen()))
        return;
    control.leaveDeadZone();
    const Box moved = movedBox(control.box(), start, now, rules());
    control.moveTo(moved.Left, moved.Top);
    control.updatePosition();
    drawBack(control);
    emit designChanged();
    showPosition(control);
}

void frmInterface::ResizeTo(OverlayControl &control, controls::Handle handle, QPointF now)
{
    const Box wanted = resizedBox(control.box(), handle, now, rules());
    control.setBox(control.resizedBox(wanted, handle));
    control.applyResize();
    drawBack(control);
    emit designChanged();
    showPosition(control);
}

void frmInterface::reposition(OverlayControl &control, float x, float y)
{
    if (control.repositionsInTwips())
        control.moveTo(x, y);
    else
        control.moveTo(x * screen().tx, y * screen().ty);
    emit designChanged();
    if (m_current == &control) // others are placed by a load
        showPosition(control);
}

void frmInterface::showPosition(const OverlayControl &control)
{
    emit positionShown(positionText(QPointF(control.box().Left, control.box().Top), screen()));
}

void frmInterface::drawBack(OverlayControl &control)
{
    if (control.isSeeThrough())
        control.setBackImage(captureBelow(control));
}

std::shared_ptr<const graphics::TextFont> frmInterface::textFont(const graphics::FontRequest &request,
                                                                 int usualSize)
{
    platform::NoProgress silent;
    const auto font = m_context.fonts.open(request, usualSize, silent);
    return {font, &font->text};
}

QImage frmInterface::captureBelow(const OverlayControl &control)
{
    return pictureBelow(control, m_canvas->backdrop(), bottomToTop());
}

void frmInterface::RefreshBackground()
{
    const QList<OverlayControl *> stacked = bottomToTop();
    for (OverlayControl *control : stacked) {
        if (control->isSeeThrough())
            control->setBackImage(pictureBelow(*control, m_canvas->backdrop(), stacked));
    }
}

QImage frmInterface::renderPreview() const
{
    return overlayPicture(m_canvas->size(), m_canvas->picture(), bottomToTop());
}

void frmInterface::showControlMenu(OverlayControl &control, const QPoint &globalPosition)
{
    m_current = &control;
    emit controlMenuRequested(globalPosition);
}

void frmInterface::showGroupMenu(const QPoint &globalPosition) { emit groupMenuRequested(globalPosition); }

void frmInterface::ResetControlGridColour()
{
    for (OverlayControl *control : controls())
        control->SetControlGridColour(controls::FrameNormal);
}

void frmInterface::selectBand(QPointF start, QPointF end)
{
    if (m_IsPlayMode || !isSelectingBand(start, end))
        return;
    for (OverlayControl *control : controls()) {
        if (bandHolds(start, end, control->box()))
            control->SetControlGroup(1);
    }
}

void frmInterface::mnuNew_Click()
{
    releaseCurrent();
    m_registry.clear();
    recorder::resetForNewLayout(m_context.settings, m_context.startMessages);
    setCaption(UntitledCaption);
    emit layoutChanged();
}

void frmInterface::refresh()
{
    RefreshBackground();
    m_variables->RegenerateVariableTree();
    emit layoutChanged();
}

} // namespace surface
