#include "controls/custom_dial/custom_dial.h"

#include "graphics/composer.h"
#include "platform/guards.h"

#include <algorithm>
#include <functional>

namespace controls {

using common::toInteger;
using common::toIntegerClamped;
using platform::skipFailures;

namespace {

constexpr QSize LargestFace = recorder::canvasSize(recorder::VideoStandard::Pal);

// A property of the face, or of the rest.
template <auto M>
constexpr PropertyRow row(std::string_view reader, std::string_view writer)
{
    return property<M, CustomDialValues>(reader, writer);
}

using V = CustomDialValues;
constexpr std::array Rows{
    row<&V::curVarID>("curVarID", "newVarID"),
    row<&V::curPointerLength>("curPointerLength", "newPointerLength"),
    row<&V::curPointerWidth>("curPointerWidth", "newPointerWidth"),
    row<&V::curPointerColour>("curPointerColour", "newPointerColour"),
    row<&V::curMinAngle>("curMinAngle", "newMinAngle"),
    row<&V::curMaxAngle>("curMaxAngle", "newMaxAngle"),
    row<&V::curMin>("curMin", "newMin"),
    row<&V::curMax>("curMax", "newMax"),
    row<&V::curDefaultVal>("curDefaultVal", "newDefaultVal"),
    row<&V::curAlfa>("curAlfa", "newAlfa"),
    row<&V::curTicStyle>("curTicStyle", "newTicStyle"),
    row<&V::curTicDelta>("curTicDelta", "newTicDelta"),
    row<&V::curTicInner>("curTicInner", "newTicInner"),
    row<&V::curTicOuter>("curTicOuter", "newTicOuter"),
    row<&V::curTicWidth>("curTicWidth", "newTicWidth"),
    row<&V::curTicLabelsOnOff>("curTicLabelsOnOff", "newTicLabelsOnOff"),
    row<&V::curTicColour>("curTicColour", "newTicColour"),
    row<&V::curFontName>("curFontName", "newFontName"),
    row<&V::curFontBold>("curFontBold", "newFontBold"),
    row<&V::curFontItalic>("curFontItalic", "newFontItalic"),
    row<&V::curFontSize>("curFontSize", "newFontSize"),
    row<&V::curFontStrikethrough>("curFontStrikethrough", "newFontStrikethrough"),
    row<&V::curFontUnderline>("curFontUnderline", "newFontUnderline"),
    row<&V::curCaptions>("curCaptions", "newCaptions"),
    row<&V::curCaptionLeft>("curCaptionLeft", "newCaptionLeft"),
    row<&V::curCaptionTop>("curCaptionTop", "newCaptionTop"),
    row<&V::curCaptionColour>("curCaptionColour", "newCaptionColour"),
    row<&V::curCaption>("curCaption", "newCaption"),
    row<&V::curAnnulars>("curAnnulars", "newAnnulars"),
    row<&V::curAnnularStart>("curAnnularStart", "newAnnularStart"),
    row<&V::curAnnularStop>("curAnnularStop", "newAnnularStop"),
    row<&V::curAnnularInner>("curAnnularInner", "newAnnularInner"),
    row<&V::curAnnularOuter>("curAnnularOuter", "newAnnularOuter"),
    row<&V::curAnnularColour>("curAnnularColour", "newAnnularColour"),
    row<&V::curBkColour>("curBkColour", "newBkColour"),
    row<&V::curTransparent>("curTransparent", "newTransparent"),
    row<&V::curWidth>("curWidth", "newWidth").notSerialised(),
    row<&V::curHeight>("curHeight", "NewHeight").notSerialised(),
    row<&V::curCenterX>("curCenterX", "newCenterX").notSerialised(),
    row<&V::curCenterY>("curCenterY", "newCenterY").notSerialised(),
};

// A side of the face, or what the box has where it is 0. Throws RunTimeError when it is negative.
int sideOf(qint16 wanted, float standing, int largest)
{
    if (wanted < 0)
        throw common::RunTimeError(QStringLiteral("Invalid property value"));
    return std::min<int>(wanted != 0 ? wanted : toIntegerClamped<qint16>(standing), largest);
}

// The largest even number of pixels in a side that a grip has dragged.
float evenSide(float inner, int largest)
{
    return static_cast<float>(std::min(toIntegerClamped<int>(std::floor(inner / 2)) * 2, largest));
}

} // namespace

const PropertyTable &customDialProperties()
{
    static constexpr PropertyTable Table{Rows};
    return Table;
}

QRect faceRect(const Box &box, const platform::Screen &screen)
{
    const QSize size(toIntegerClamped<qint16>(innerWidth(box, screen)),
                     toIntegerClamped<qint16>(innerHeight(box, screen)));
    return {QPoint(toIntegerClamped<qint16>(screen.toPixelsX(box.Left + FrameTwips)),
                   toIntegerClamped<qint16>(screen.toPixelsY(box.Top + FrameTwips))),
            size.boundedTo(LargestFace)};
}

GaugeValues pointerOf(const CustomDialValues &values, const platform::Screen &screen)
{
    const Box &box = values.box;
    const auto middle = [](float start, float size) { return (size - BothFrames) / 2 + start + FrameTwips; };
    GaugeValues pointer; // without a box: where its pivot is 0, it is 0
    pointer.curVarID = values.curVarID;
    pointer.curCenterX = toIntegerClamped<qint16>(screen.toPixelsX(middle(box.Left, box.Width)));
    pointer.curCenterY = toIntegerClamped<qint16>(screen.toPixelsY(middle(box.Top, box.Height)));
    pointer.curPointerLength = toIntegerClamped<quint8>(values.curPointerLength);
    pointer.curPointerWidth = toIntegerClamped<quint8>(values.curPointerWidth);
    pointer.curColour = values.curPointerColour;
    pointer.curMinAngle = values.curMinAngle;
    pointer.curMaxAngle = values.curMaxAngle;
    pointer.curMin = values.curMin;
    pointer.curMax = values.curMax;
    pointer.curDefaultVal = values.curDefaultVal;
    return pointer;
}

CustomDialValues placed(CustomDialValues values, recorder::VideoStandard standard,
                        const platform::Screen &screen)
{
    Box &box = values.box;
    const int width = sideOf(values.curWidth, innerWidth(box, screen), LargestFace.width());
    const int height = sideOf(values.curHeight, innerHeight(box, screen), LargestFace.height());
    values.curWidth = toInteger<qint16>(width);
    values.curHeight = toInteger<qint16>(height);
    const QPoint wanted(values.curCenterX, values.curCenterY);
    box = framed(QRect(wanted, QSize(width, height)), screen);
    const QPointF corner = keptOnCanvas(wanted, box, FrameTwips, standard, screen);
    values.curCenterX = toInteger<qint16>(corner.x());
    values.curCenterY = toInteger<qint16>(corner.y());
    box = framed(QRect(values.curCenterX, values.curCenterY, width, height), screen);
    return values;
}

graphics::PlanePicture renderedFace(const graphics::DialLook &look, QSize size, ControlHost &host)
{
    const auto font = host.outlineFont(look.face(), look.style());
    const QImage face = graphics::dialFace(look, *font, size);
    return graphics::PlanePicture::ofSize(face, graphics::dialAlpha(look, face), size);
}

// As the recorder draws the parts: the face as a bitmap, and upon it the pointer as a gauge.
void paintDial(const CustomDialValues &values, const graphics::PlanePicture &face, const ControlHost &host,
               Composition &onto)
{
    const platform::Screen &screen = host.screen();
    graphics::compose(onto.picture, faceRect(values.box, screen).topLeft() - onto.corner, face.picture(),
                      face.alpha(), values.curAlfa);
    paintNeedle(pointerOf(values, screen), host.VideoType(), screen, onto);
}

const graphics::PlanePicture &CustomDial::face() const
{
    const graphics::DialLook &look = m_values;
    const QSize size = faceRect(box(), screen()).size();
    for (const Face &known : {std::cref(m_kept), std::cref(m_face)}) {
        if (known.size == size && known.look == look)
            return known.picture;
    }
    m_face = {look, size, renderedFace(look, size, host())};
    return m_face.picture;
}

void CustomDial::keepFace(const graphics::PlanePicture &face)
{
    m_kept = {m_values, faceRect(box(), screen()).size(), face};
}

void CustomDial::takeOver(const OverlayControl &source)
{
    const auto &from = static_cast<const CustomDial &>(source);
    m_kept = from.m_kept;
    m_face = from.m_face;
}

void CustomDial::AssignProperties()
{
    const CustomDialValues standing = placed(m_values, host().VideoType(), screen());
    set(standing);
    setBox(standing.box);
    raiseReposition();
}

void CustomDial::sizeChanged()
{
    const QSize size = faceRect(box(), screen()).size();
    m_values.curWidth = toInteger<qint16>(size.width());
    m_values.curHeight = toInteger<qint16>(size.height());
}

// A side that the grip does not move stays as it is, even or not.
Box CustomDial::resizedBox(const Box &wanted, Handle handle) const
{
    const bool moves[] = {movesLeft(handle) || movesRight(handle), movesTop(handle) || movesBottom(handle)};
    const float width = evenSide(innerWidth(wanted, screen()), LargestFace.width());
    const float height = evenSide(innerHeight(wanted, screen()), LargestFace.height());
    return withSize(wanted, handle, moves[0] ? screen().toTwipsX(width) + BothFrames : wanted.Width,
                    moves[1] ? screen().toTwipsY(height) + BothFrames : wanted.Height);
}

void CustomDial::standardChanged()
{
    skipFailures([&] { AssignProperties(); });
}

void CustomDial::applyInitialProperties()
{
    set(CustomDialValues());
    sizeChanged();
    updatePosition();
}

void CustomDial::paint(Composition &onto) const { paintDial(m_values, face(), host(), onto); }

QRect CustomDial::drawnArea() const
{
    return faceRect(box(), screen()) |
           needleArea(pointerOf(m_values, screen()), host().VideoType(), screen());
}

} // namespace controls
