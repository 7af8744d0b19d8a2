// Copy, cut and paste of controls and groups, and the arrangement of a group.

#include "common/run_time_error.h"
#include "platform/guards.h"
#include "surface/alignment.h"
#include "surface/canvas.h"
#include "surface/frm_interface.h"
#include "surface/placing.h"

#include <utility>

namespace surface {

using controls::OverlayControl;
using platform::skipFailures;

void frmInterface::Copy(OverlayControl &control, const QStringList &arr)
{
    m_context.clipboard.take(control, Operation::Copy, arr);
}

void frmInterface::Cut(OverlayControl &control, const QStringList &arr)
{
    m_context.clipboard.take(control, Operation::Cut, arr);
}

bool frmInterface::canTake() const { return m_canvas->hasGroup() || m_canvas->current(); }

void frmInterface::take(Operation operation)
{
    OverlayControl *control = m_canvas->current();
    if (const ControlList members = group(); !members.isEmpty())
        m_context.clipboard.ReSetGroupCtrlArr(members, operation);
    else if (control && operation == Operation::Copy)
        control->mnuCopy_Click();
    else if (control)
        control->mnuCut_Click();
}

// Throws RunTimeError, with nothing pasted and nothing removed.
OverlayControl &frmInterface::paste(const CopiedControl &copied)
{
    OverlayControl &control = loadControl(copied.type);
    showControl(control);
    if (const auto reason = platform::failureOf([&] { control.Deserialise(copied.strings); })) {
        m_canvas->unload(control);
        throw common::RunTimeError(*reason);
    }
    const auto source = copied.control.lock();
    if (source)
        skipFailures([&] { control.takeOver(*source); });
    MoveTo(control, m_lastMousePosition + copied.offset, rules());
    if (source && copied.operation == Operation::Cut)
        m_canvas->unload(*source);
    m_canvas->chooseNone();
    return control;
}

void frmInterface::mnuPaste_Click()
{
    const auto &copied = m_context.clipboard.control;
    if (!copied)
        return;
    skipFailures([&] { m_canvas->choose(paste(*copied)); });
    emit controlsChanged();
    emit designChanged();
}

void frmInterface::PasteAllObjects()
{
    for (const CopiedControl &member : std::exchange(m_context.clipboard.group, {}))
        skipFailures([&] { paste(member); });
    emit controlsChanged();
    emit designChanged();
}

// A group that waits for its paste comes before one that is marked.
void frmInterface::showCanvasMenu(const QPoint &globalPosition)
{
    if (m_context.clipboard.GroupPastePending())
        emit groupMenuRequested(globalPosition, true);
    else if (m_canvas->hasGroup())
        emit groupMenuRequested(globalPosition, false);
    else
        emit canvasMenuRequested(globalPosition);
}

namespace {

// Where the recorder draws each.
QList<Box> picturesOf(const ControlList &group)
{
    QList<Box> pictures;
    for (const OverlayControl *control : group)
        pictures.append(controls::shrunk(control->box(), control->margins()));
    return pictures;
}

} // namespace

void frmInterface::align(Qt::Edge edge) { rearrange(group(), aligned(picturesOf(group()), edge)); }

void frmInterface::spaceEqually(Qt::Orientation along)
{
    rearrange(group(), spaced(picturesOf(group()), along));
}

void frmInterface::rearrange(const ControlList &group, const QList<Box> &pictures)
{
    for (qsizetype i = 0; i < group.size(); ++i) {
        const Box box = controls::shrunk(pictures[i], -group[i]->margins());
        const QPoint corner = controls::pixelRect(box, screen()).topLeft();
        MoveTo(*group[i], screen().toTwips(QPointF(corner)), rules());
    }
    emit designChanged();
}

} // namespace surface
