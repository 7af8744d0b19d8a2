#pragma once

#include "controls/control_host.h"
#include "controls/families.h"
#include "controls/geometry.h"
#include "controls/property_table.h"

#include <QWidget>

namespace controls {

// Frame colours, packed 0x00BBGGRR.
inline constexpr quint32 FrameNormal = 0;
inline constexpr quint32 FrameSelected = 0x0000FF; // red
inline constexpr quint32 FrameGrouped = 0xFF0000;  // blue

QColor toQColor(quint32 packed);

// What a variable's drag carries: its catalogue index as decimal text.
inline const QString VariableMime = QStringLiteral("application/x-morvel-variable");

// One graphic of the overlay as it stands on the canvas: a frame with hatch and grips round an inner area
// that shows the graphic. It tracks mouse and keys and tells the surface through its signals what the user
// wants; the surface applies the rules of the canvas and calls back.
//
// Left, Top, Width and Height (box(), twips) are the truth; the widget's pixel rectangle follows them.
class OverlayControl : public QWidget
{
    Q_OBJECT

public:
    enum class Mode { Design, Play };

    OverlayControl(const Family &family, ControlHost &host, QWidget *canvas);

    const Family &family() const { return m_family; }
    int Index() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    ControlHost &host() const { return m_host; }

    // Geometry
    const Box &box() const { return values().box; }
    // Moves and sizes the widget; a change of size goes through the family's own resize rule.
    void setBox(const Box &box);
    void moveTo(float left, float top);
    // Brings the family's position property into line with Left and Top.
    virtual void updatePosition() = 0;
    // Brings the family's size properties into line with a box that the user has dragged by a grip.
    virtual void applyResize() {}
    // The box that a drag by `handle` really leads to, `wanted` being inside the canvas already.
    virtual Box resizedBox(const Box &wanted, Handle handle) const;
    // Forces the control into a canvas of this height (twips), when the standard becomes NTSC.
    virtual void fitCanvasHeight(float height);
    // Whether the arguments of Reposition are twips instead of canvas pixels.
    virtual bool repositionsInTwips() const { return false; }

    // Properties by the names of their readers and writers. Unknown names and values that do not fit throw
    // RunTimeError.
    PropertyValue read(std::string_view reader) const;
    void write(std::string_view writer, const PropertyValue &value);
    QStringList Serialise() const;
    void Deserialise(const QStringList &texts);

    // What the host drives
    void setColour(quint32 colour, quint32 unused);
    void setMode(Mode mode);
    Mode mode() const { return m_mode; }
    virtual void AssignProperties() = 0;
    void SetControlGridColour(quint32 colour);
    void SetControlGroup(quint8 flag);
    bool IsSelectedToGroup() const { return m_isGrouped; }
    // The values of a control that was just placed; Left and Top stand already.
    virtual void applyInitialProperties() = 0;
    // The outer size of a control that was just created, twips.
    virtual QSizeF startSize() const = 0;
    // Draws the graphic as the recorder would, in canvas pixels.
    virtual void paintPreview(QPainter &painter) const = 0;
    // The term of the load estimate. Throws RunTimeError when it cannot be computed.
    virtual double complexity() const = 0;
    // Whether the recorder draws it behind everything else, over the whole frame: a layout holds one such.
    virtual bool isFullFrame() const { return false; }
    // See-through families show the canvas below them.
    virtual bool isSeeThrough() const { return false; }
    void setBackImage(const QImage &capture);
    // The inner area within the widget, pixels.
    QRect innerRect() const;
    // Whether the family shows a variable, so that one can be dropped on it from the variable tree.
    bool takesVariable() const { return properties().reader("curVarID") != nullptr; }
    void bindVariable(qint32 variable);

    void mnuCopy_Click();
    void mnuCut_Click();
    void mnuDelete_Click();
    void mnuProperties_Click();

    // A press that has left the dead zone once moves the control with every further movement.
    bool hasLeftDeadZone() const { return m_leftDeadZone; }
    void leaveDeadZone() { m_leftDeadZone = true; }

signals:
    // Positions are twips within the control unless said otherwise.
    void Drag(float StartX, float StartY, float X, float Y);
    void Relocate(float StartX, float StartY, float X, float Y);
    void ResizeDrag(controls::Handle HandleIndex, float X, float Y);
    void Resize(controls::Handle HandleIndex, float X, float Y);
    void Copy(const QStringList &arr);
    void Cut(const QStringList &arr);
    void Delete();
    void Reposition(float X, float Y); // canvas pixels, or twips: repositionsInTwips()
    void DrawBack();
    void BringToFront();
    void ResetControlGroup();

protected:
    virtual ControlValues &values() = 0;
    virtual const ControlValues &values() const = 0;
    virtual const PropertyTable &properties() const = 0;
    // The inner area in design mode; the painter's origin is its corner, in pixels.
    virtual void paintInner(QPainter &painter, const QSize &size) const = 0;
    virtual GripSet grips() const { return GripSet::All; }
    // After the box has changed its size by other means than the dialog.
    virtual void sizeChanged() {}
    // The end of Deserialise(): what follows from the properties that were just read.
    virtual void settle() {}
    // One arrow key: changes the position property by (dx, dy) canvas pixels and raises Reposition.
    virtual void nudge(int dx, int dy) = 0;

    const platform::Screen &screen() const { return m_host.screen(); }
    const QImage &backImage() const { return m_backImage; }
    quint32 backColour() const { return m_backColour; }

    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool event(QEvent *event) override;

private:
    enum class Gesture { None, Dragging, Resizing };

    void placeWidget();
    QPointF twipsOf(const QMouseEvent &event) const;
    void showMenu(const QPoint &globalPosition);
    void select();
    void toggleGroup();
    void startDrag(); // unless a grip is held
    void setGridColour(quint32 colour);
    bool isFrozen() const { return m_host.IsPlayMode(); }

    const Family &m_family;
    ControlHost &m_host;
    int m_index = 0;
    Mode m_mode = Mode::Design;
    bool m_isGrouped = false;
    Gesture m_gesture = Gesture::None;
    bool m_leftDeadZone = false;
    QPointF m_dragStart;     // twips
    bool m_hasMoved = false; // since the press
    std::optional<Handle> m_handleIndex;
    HandleTable m_handleTable{};
    quint32 m_backColour = 0;
    quint32 m_gridColour = FrameNormal;
    QImage m_backImage;
};

// The typed half of a family: its values struct and its table.
template <typename Values>
class ControlOf : public OverlayControl
{
public:
    using OverlayControl::OverlayControl;

    const Values &get() const { return m_values; }
    // Takes over all properties at once; the box stays.
    void set(const Values &changed)
    {
        const Box box = m_values.box;
        m_values = changed;
        m_values.box = box;
    }

protected:
    ControlValues &values() final { return m_values; }
    const ControlValues &values() const final { return m_values; }

    Values m_values;
};

} // namespace controls
