#include "controls/bitmap/bitmap.h"

#include "controls/bitmap/picture_copies.h"
#include "controls/complexity.h"
#include "graphics/composer.h"
#include "platform/guards.h"

namespace controls {

using common::toInteger;
using graphics::PlanePicture;
using platform::skipFailures;

namespace {

// One of the two pictures under its names; the planes are made of both.
constexpr PropertyRow pictureRow(std::string_view reader, std::string_view writer,
                                 PropertyValue (*get)(const ControlValues &, const platform::Screen &),
                                 void (*set)(ControlValues &, const PropertyValue &))
{
    return {reader, writer, PropertyKind::Picture, false, get, set};
}

PlanePicture &pictureOf(ControlValues &values) { return static_cast<BitmapValues &>(values).picture; }

const PlanePicture &pictureOf(const ControlValues &values)
{
    return static_cast<const BitmapValues &>(values).picture;
}

PropertyValue sourceImage(const ControlValues &values, const platform::Screen &)
{
    return pictureOf(values).picture();
}

PropertyValue alphaImage(const ControlValues &values, const platform::Screen &)
{
    return pictureOf(values).alphaPicture();
}

QImage imageIn(const PropertyValue &value)
{
    QImage image;
    detail::fromProperty(value, image);
    return image;
}

void setSourceImage(ControlValues &values, const PropertyValue &image)
{
    PlanePicture &picture = pictureOf(values);
    picture = PlanePicture::chosen(imageIn(image), picture.alphaPicture());
}

void setAlphaImage(ControlValues &values, const PropertyValue &image)
{
    PlanePicture &picture = pictureOf(values);
    picture = picture.withAlpha(imageIn(image));
}

using V = BitmapValues;
constexpr std::array Rows{
    property<&V::curAlfa>("curAlfa", "newAlfa"),
    property<&V::curFileName>("curFileName", "newFileName"),
    property<&V::curAlfaFileName>("curAlfaFileName", "newAlfaFileName"),
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curLowerLimit>("curLowerLimit", "newLowerLimit"),
    property<&V::curUpperLimit>("curUpperLimit", "newUpperLimit"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curZorder>("curZorder", "newZorder"),
    property<&V::curAlfaVariable>("curAlfaVariable", "newAlfaVariable"),
    property<&V::curAlfaVarMin>("curAlfaVarMin", "newAlfaVarMin"),
    property<&V::curAlfaVarMax>("curAlfaVarMax", "newAlfaVarMax"),
    property<&V::curAlfaDefaultVal>("curAlfaDefaultVal", "newAlfaDefaultVal"),
    property<&V::curTopCoord>("curTopCoord", "newTopCoord").notSerialised(),
    property<&V::curLeftCoord>("curLeftCoord", "newLeftCoord").notSerialised(),
    pictureRow("curSourceImg", "newSourceImg", &sourceImage, &setSourceImage),
    pictureRow("curAlfaImg", "newAlfaImg", &alphaImage, &setAlphaImage),
};

QSize planeSize(const Box &box, const platform::Screen &screen)
{
    return {common::toIntegerClamped<qint16>(double{innerWidth(box, screen)}),
            common::toIntegerClamped<qint16>(double{innerHeight(box, screen)})};
}

// The outer corner, in canvas pixels, of a bitmap that stands at its coordinates.
QPointF cornerOf(const BitmapValues &values, const platform::Screen &screen)
{
    return QPointF(values.curLeftCoord, values.curTopCoord) -
           screen.toPixels(QPointF(double{FrameTwips}, double{FrameTwips}));
}

} // namespace

const PropertyTable &bitmapProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

BitmapValues placed(BitmapValues values, const platform::Screen &screen)
{
    Box &box = values.box;
    const QSize size = values.picture.planes().size();
    if (!size.isEmpty()) {
        box.Width = screen.toTwipsX(static_cast<float>(size.width())) + BothFrames;
        box.Height = screen.toTwipsY(static_cast<float>(size.height())) + BothFrames;
    }
    box.Left = screen.toTwipsX(values.curLeftCoord) - FrameTwips;
    box.Top = screen.toTwipsY(values.curTopCoord) - FrameTwips;
    return values;
}

void Bitmap::AssignProperties()
{
    setBox(placed(m_values, screen()).box);
    host().Reposition(*this, cornerOf(m_values, screen()));
    host().restack(*this, m_values.curZorder != 0);
}

void Bitmap::updatePosition()
{
    skipFailures(
        [&] { m_values.curLeftCoord = toInteger<qint16>(screen().toPixelsX(box().Left + FrameTwips)); });
    skipFailures(
        [&] { m_values.curTopCoord = toInteger<qint16>(screen().toPixelsY(box().Top + FrameTwips)); });
}

void Bitmap::nudge(int dx, int dy)
{
    const auto left = toInteger<qint16>(m_values.curLeftCoord + dx);
    m_values.curTopCoord = toInteger<qint16>(m_values.curTopCoord + dy);
    m_values.curLeftCoord = left;
    host().Reposition(*this, cornerOf(m_values, screen()));
}

void Bitmap::applyInitialProperties()
{
    set(BitmapValues());
    updatePosition();
}

// The planes do not travel with the texts, they are made of the copies again. A copy that is missing leaves
// the bitmap without a picture.
void Bitmap::settle()
{
    const QString folder = host().folders().pictureFolder();
    m_values.picture =
        PlanePicture::ofSize(keptPicture(folder, m_values.curFileName),
                             keptPicture(folder, m_values.curAlfaFileName), planeSize(box(), screen()));
}

void Bitmap::paint(Composition &onto) const
{
    graphics::compose(onto.picture, drawnArea().topLeft() - onto.corner, m_values.picture.picture(),
                      m_values.picture.alpha(), m_values.curAlfa);
}

QRect Bitmap::drawnArea() const
{
    return {QPoint(m_values.curLeftCoord, m_values.curTopCoord), m_values.picture.planes().size()};
}

double Bitmap::complexity() const
{
    return complexity::bitmap(double{box().Width}, double{box().Height}, m_values.curVarID, screen());
}

} // namespace controls
