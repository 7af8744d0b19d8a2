#pragma once

#include "controls/composition.h"
#include "controls/control_host.h"
#include "controls/families.h"
#include "controls/geometry.h"
#include "controls/property_table.h"

#include <QColor>
#include <QMarginsF>

#include <memory>

namespace controls {

// Frame colours, packed 0x00BBGGRR.
inline constexpr quint32 FrameNormal = 0;
inline constexpr quint32 FrameSelected = 0x0000FF; // red
inline constexpr quint32 FrameGrouped = 0xFF0000;  // blue

QColor toQColor(quint32 packed);

// A reading for samples, two thirds up the scale.
inline float sampleReading(float low, float high) { return low + (high - low) * 2 / 3; }

// One graphic of the overlay: its values, its place on the canvas, its rules and its painting. It is no
// window; the canvas shows it, with an editing frame round it, and acts on it as the user's mouse and keys
// want.
//
// Left, Top, Width and Height (box(), twips) are the truth about its place. Who remembers a control keeps a
// weak_from_this().
class OverlayControl : public std::enable_shared_from_this<OverlayControl>
{
public:
    enum class Mode { Design, Play };

    OverlayControl(const Family &family, ControlHost &host) : m_family(family), m_host(host) {}
    virtual ~OverlayControl() = default;
    OverlayControl(const OverlayControl &) = delete;
    OverlayControl &operator=(const OverlayControl &) = delete;

    const Family &family() const { return m_family; }
    int Index() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    ControlHost &host() const { return m_host; }

    // Geometry
    const Box &box() const { return values().box; }
    // A change of size goes through the family's own resize rule.
    void setBox(const Box &box);
    void moveTo(float left, float top);
    // Brings the family's position property into line with Left and Top.
    virtual void updatePosition() = 0;
    // Brings the family's size properties into line with a box that the user has dragged by a grip.
    virtual void applyResize() {}
    // The box that a drag by `handle` really leads to, `wanted` being inside the canvas already.
    virtual Box resizedBox(const Box &wanted, Handle handle) const;
    // After the video standard was set, whether or not it is another one.
    virtual void standardChanged() {}
    // Forces the control into a canvas of this height (twips), when the standard becomes NTSC.
    virtual void fitCanvasHeight(float height);
    // How far the control may stand outside the canvas when it is dragged or placed, twips.
    virtual QMarginsF overhang() const { return {}; }
    // How far within its box the recorder's picture of it stands, twips.
    virtual QMarginsF margins() const { return {FrameTwips, FrameTwips, FrameTwips, FrameTwips}; }
    // An arrow key: changes the position property by (dx, dy) canvas pixels and has the host reposition it.
    virtual void nudge(int dx, int dy) = 0;
    // The box on the canvas, the part of it within the frame, and all that the control covers, canvas pixels.
    QRect outerRect() const { return pixelRect(box(), screen()); }
    QRect innerRect() const;
    QRect area() const { return outerRect().united(drawnArea()); }
    // The grip boxes, for painting and for the pointer alike: twips of the screen within a control that is
    // shown enlarged by this factor.
    HandleTable handles(float zoom = 1) const
    {
        return handleTable(box().Width * zoom, box().Height * zoom, grips());
    }

    // Properties by the names of their readers and writers. Unknown names and values that do not fit throw
    // RunTimeError. A writer stores, and nothing else: redraw() or AssignProperties() shows what it stored.
    PropertyValue read(std::string_view reader) const;
    void write(std::string_view writer, const PropertyValue &value);
    QStringList Serialise() const;
    void Deserialise(const QStringList &texts);
    // What a copy of `source`, which is of the same family, has of it besides the serialised properties.
    virtual void takeOver(const OverlayControl & /*source*/) {}
    // The elements of Serialise() that are names of files in the picture folder.
    QList<CopyElement> copies() const { return copyElements(properties()); }

    // What the host drives
    void setColour(quint32 colour, quint32 /*unused*/) { values().backColour.setPacked(colour); }
    void setMode(Mode mode);
    Mode mode() const { return m_mode; }
    virtual void AssignProperties() = 0;
    void SetControlGridColour(quint32 colour);
    void SetControlGroup(quint8 flag);
    quint32 gridColour() const { return m_gridColour; }
    bool IsSelectedToGroup() const { return m_isGrouped; }
    // The values of a control that was just placed; Left and Top stand already.
    virtual void applyInitialProperties() = 0;
    // Gives a control with its initial values something to show in an icon.
    virtual void showSample() {}
    // The outer size of a control that was just created, twips.
    virtual QSizeF startSize() const = 0;
    // Draws the graphic upon what the composition shows already, as the recorder would.
    virtual void paint(Composition &onto) const = 0;
    // All that paint() may draw on, canvas pixels.
    virtual QRect drawnArea() const { return innerRect(); }
    // Has the host paint the control again, also where it was painted last.
    void redraw();
    // The term of the load estimate. Throws RunTimeError when it cannot be computed.
    virtual double complexity() const = 0;
    // Whether the recorder draws it behind everything else, over the whole frame: a layout holds one such.
    virtual bool isFullFrame() const { return false; }
    // Whether the family shows a variable, so that one can be dropped on it from the variable tree.
    bool takesVariable() const { return properties().reader("curVarID") != nullptr; }
    void bindVariable(qint32 variable);

    void mnuCopy_Click() { m_host.Copy(*this, Serialise()); }
    void mnuCut_Click() { m_host.Cut(*this, Serialise()); }
    void mnuDelete_Click() { m_host.Delete(*this); }
    void mnuProperties_Click();

protected:
    virtual ControlValues &values() = 0;
    virtual const ControlValues &values() const = 0;
    virtual const PropertyTable &properties() const = 0;
    virtual GripSet grips() const { return GripSet::All; }
    // Moves it up to end at this height, twips, if it ends below.
    void pullUp(float height);
    // Where a nudge takes the place, canvas pixels, of the content that begins `frame` twips within the box:
    // up to the right and bottom edge, where a load would pull it back.
    QPointF nudged(QPointF place, QPoint step, float frame) const;
    // After the box has changed its size by other means than the dialog.
    virtual void sizeChanged() {}
    // The end of Deserialise(): what follows from the properties that were just read.
    virtual void settle() {}

    const platform::Screen &screen() const { return m_host.screen(); }

private:
    void setGridColour(quint32 colour);

    const Family &m_family;
    ControlHost &m_host;
    int m_index = 0;
    Mode m_mode = Mode::Design;
    bool m_isGrouped = false;
    quint32 m_gridColour = FrameNormal;
    QRect m_shownArea; // as the host was told last
};

// The typed half of a family: its values struct and its table.
template <typename Values, typename Base = OverlayControl>
class ControlOf : public Base
{
public:
    using Base::Base;

    const Values &get() const { return m_values; }
    // Takes over all properties at once; box and background stay.
    void set(const Values &changed)
    {
        const ControlValues own = m_values;
        m_values = changed;
        static_cast<ControlValues &>(m_values) = own;
    }

protected:
    ControlValues &values() final { return m_values; }
    const ControlValues &values() const final { return m_values; }

    Values m_values;
};

} // namespace controls
