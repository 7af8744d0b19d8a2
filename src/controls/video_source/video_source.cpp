#include "controls/video_source/video_source.h"

#include "controls/complexity.h"

#include <algorithm>
#include <cmath>

namespace controls {

using recorder::VideoStandard;

namespace {

using V = VideoSourceValues;
constexpr std::array Rows{
    property<&V::curTopBorderWidth>("curTopBorderWidth", "newTopBorderWidth"),
    property<&V::curBottomBorderWidth>("curBottomBorderWidth", "newBottomBorderWidth"),
    property<&V::curLeftBorderWidth>("curLeftBorderWidth", "newLeftBorderWidth"),
    property<&V::curRightBorderWidth>("curRightBorderWidth", "newRightBorderWidth"),
    property<&V::curDivisor>("curDivisor", "NewDivisor"),
    property<&V::curBordercolor>("curBordercolor", "NewBordercolor"),
    property<&V::curBorderVisible>("curBorderVisible", "NewBorderVisible"),
    property<&V::curCameraNo>("curCameraNo", "NewCameraNo"),
    property<&V::curMirror>("curMirror", "NewMirror"),
    property<&V::curBorderWidth>("curBorderWidth", "newBorderWidth"),
    property<&V::curBrightness>("curBrightness", "newBrightness"),
    property<&V::curContrast>("curContrast", "newContrast"),
    property<&V::curHue>("curHue", "newHue"),
    property<&V::curSaturation>("curSaturation", "newSaturation"),
    property<&V::curLowerLimit>("curLowerLimit", "newLowerLimit"),
    property<&V::curUpperLimit>("curUpperLimit", "newUpperLimit"),
    property<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    property<&V::curVarID>("curVarID", "newVarID"),
    property<&V::curTopCoord>("curTopCoord", "newTopCoord").notSerialised(),
    property<&V::curLeftCoord>("curLeftCoord", "newLeftCoord").notSerialised(),
};

// The nearest multiple of the step at which all of `length` is still on the canvas; twips.
float stepped(float place, float length, float canvas, float step)
{
    const float last = std::floor((canvas - length) / step);
    return std::clamp(std::nearbyint(place / step), 0.0F, last) * step;
}

// Stands for a picture that only the recorder has.
void paintCamera(QPainter &painter, const QRect &area, const QString &text)
{
    QLinearGradient light(area.topLeft(), area.bottomLeft());
    light.setColorAt(0, QColor(0x6f, 0x83, 0x96));
    light.setColorAt(1, QColor(0x2b, 0x35, 0x40));
    painter.fillRect(area, light);
    // Enlarged, as another font would have to be looked up.
    const double scale = double(std::clamp(area.height() / 6, 8, 20)) / painter.fontInfo().pixelSize();
    QRectF room({}, QSizeF(area.size()) / scale);
    room.moveCenter({});
    painter.save();
    painter.translate(QRectF(area).center());
    painter.scale(scale, scale);
    painter.setPen(Qt::white);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, text);
    painter.restore();
}

void paintBorder(QPainter &painter, const QRect &area, int width, const QColor &colour)
{
    const QRegion border = QRegion(area) - area.adjusted(width, width, -width, -width);
    for (const QRect &edge : border)
        painter.fillRect(edge, colour);
}

} // namespace

const PropertyTable &videoSourceProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QSizeF sourceSize(quint8 divisor, VideoStandard standard)
{
    const QSizeF frame = recorder::canvasSize(standard);
    return frame / (divisor > 1 ? divisor : MarkerDivisor);
}

VideoSourceValues placed(VideoSourceValues values, VideoStandard standard, const platform::Screen &screen)
{
    const QSizeF size = sourceSize(values.curDivisor, standard);
    values.box = {screen.toTwipsX(values.curLeftCoord), screen.toTwipsY(values.curTopCoord),
                  screen.toTwipsX(static_cast<float>(size.width())),
                  screen.toTwipsY(static_cast<float>(size.height()))};
    return values;
}

void VideoSource::AssignProperties()
{
    setBox(placed(m_values, host().VideoType(), screen()).box);
    raiseReposition();
}

void VideoSource::standardChanged()
{
    Box sized = placed(m_values, host().VideoType(), screen()).box;
    sized.Left = box().Left;
    sized.Top = box().Top;
    setBox(sized);
    updatePosition();
}

void VideoSource::fitCanvasHeight(float height)
{
    const float visible = box().Height - screen().toTwipsY(m_values.curBottomBorderWidth);
    if (box().Top + visible > height)
        moveTo(box().Left, height - visible);
    updatePosition();
}

QMarginsF VideoSource::overhang() const
{
    return {double{screen().toTwipsX(m_values.curLeftBorderWidth)},
            double{screen().toTwipsY(m_values.curTopBorderWidth)},
            double{screen().toTwipsX(m_values.curRightBorderWidth)},
            double{screen().toTwipsY(m_values.curBottomBorderWidth)}};
}

QSizeF VideoSource::startSize() const
{
    const Box box = placed({}, host().VideoType(), screen()).box;
    return {double{box.Width}, double{box.Height}};
}

void VideoSource::applyInitialProperties()
{
    set(VideoSourceValues());
    const auto canvasHeight = static_cast<float>(recorder::canvasHeight(host().VideoType()));
    moveTo(stepped(box().Left, box().Width, screen().toTwipsX(recorder::CanvasWidth),
                   screen().toTwipsX(PlaceStep)),
           stepped(box().Top, box().Height, screen().toTwipsY(canvasHeight), screen().toTwipsY(PlaceStep)));
    updatePosition();
}

// The recorder fills the frame with the background, so there is nothing to draw but its marker.
void VideoSource::paint(Composition &onto) const
{
    const bool isDesigned = onto.drawing == Drawing::Designed;
    const QString camera = QStringLiteral("Camera %1").arg(m_values.curCameraNo + 1);
    CompositionPainter painter(onto);
    if (m_values.isBackground()) {
        if (isDesigned)
            paintCamera(painter, outerRect(), QStringLiteral("Background\n") + camera);
        return;
    }
    const QRect shown = outerRect().adjusted(m_values.curLeftBorderWidth, m_values.curTopBorderWidth,
                                             -m_values.curRightBorderWidth, -m_values.curBottomBorderWidth);
    if (isDesigned) // what is cropped off can be seen
        painter.fillRect(outerRect(), QColor(0, 0, 0, 128));
    if (!shown.isValid())
        return;
    paintCamera(painter, shown, camera);
    if (m_values.curBorderVisible != 0)
        paintBorder(painter, shown, m_values.curBorderWidth, toQColor(m_values.curBordercolor.packed()));
}

double VideoSource::complexity() const { return complexity::videoSource(m_values.curDivisor); }

} // namespace controls
