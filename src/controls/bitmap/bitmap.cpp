#include "controls/bitmap/bitmap.h"

#include "controls/complexity.h"
#include "controls/picture_copies.h"
#include "graphics/composer.h"

namespace controls {

using graphics::PlanePicture;

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
    property<&V::curFileName>("curFileName", "newFileName").namesCopyOf("curSourceImg"),
    property<&V::curAlfaFileName>("curAlfaFileName", "newAlfaFileName").namesCopyOf("curAlfaImg"),
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

// Hills under the sun.
QImage samplePicture()
{
    QImage picture(104, 104, QImage::Format_RGB32);
    picture.fill(QColor(0x8f, 0xc4, 0xe8));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xd8, 0x4d));
    painter.drawEllipse(68, 12, 24, 24);
    painter.setBrush(QColor(0x3f, 0x8f, 0x5a));
    painter.drawPolygon(QPolygon({{0, 104}, {0, 70}, {36, 34}, {104, 104}}));
    painter.setBrush(QColor(0x2e, 0x6d, 0x45));
    painter.drawPolygon(QPolygon({{30, 104}, {74, 56}, {104, 84}, {104, 104}}));
    return picture;
}

} // namespace

const PropertyTable &bitmapProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

BitmapValues placed(BitmapValues values, const platform::Screen &screen)
{
    const QSize size = values.picture.planes().size();
    const Box box = framed(QRect({values.curLeftCoord, values.curTopCoord}, size), screen);
    values.box = size.isEmpty() ? Box{box.Left, box.Top, values.box.Width, values.box.Height} : box;
    return values;
}

void Bitmap::AssignProperties()
{
    setBox(placed(m_values, screen()).box);
    raiseReposition();
    host().restack(*this, m_values.curZorder != 0);
}

void Bitmap::applyInitialProperties()
{
    set(BitmapValues());
    updatePosition();
}

void Bitmap::showSample()
{
    const QImage picture = samplePicture();
    QImage opaque(picture.size(), picture.format());
    opaque.fill(Qt::white);
    m_values.picture = PlanePicture::chosen(picture, opaque);
}

// The planes do not travel with the texts, they are made of the copies again. A copy that is missing leaves
// the bitmap without a picture.
void Bitmap::settle()
{
    const QString folder = host().folders().pictureFolder();
    const QImage picture = keptPicture(folder, m_values.curFileName);
    // A box from a damaged store may be as large as numbers go.
    const QSize size = planeSize(box(), screen()).boundedTo(graphics::paddedSize(picture.size()));
    m_values.picture = PlanePicture::ofSize(picture, keptPicture(folder, m_values.curAlfaFileName), size);
    host().restack(*this, m_values.curZorder != 0);
}

// The copies of its pictures may be gone, and planes that came from a layout are not made of them.
void Bitmap::takeOver(const OverlayControl &source)
{
    const BitmapValues &from = static_cast<const Bitmap &>(source).get();
    m_values.picture = from.picture;
    m_values.curFileName = from.curFileName;
    m_values.curAlfaFileName = from.curAlfaFileName;
    m_values.curZorder = from.curZorder;
    AssignProperties();
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
