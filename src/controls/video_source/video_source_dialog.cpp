#include "controls/video_source/video_source_dialog.h"

#include <algorithm>

namespace controls {

using namespace Qt::StringLiterals;
using common::toInteger;
using recorder::VideoStandard;
using V = ShownVideoSource;

namespace {

constexpr int BackgroundRow = 0; // of the sizes
constexpr double ThickestBorder = 255;

struct Crops
{
    explicit Crops(const forms::Typed &typed)
        : left(typed.number("txtLeftBorderWidth")), right(typed.number("txtRightBorderWidth")),
          top(typed.number("txtTopBorderWidth")), bottom(typed.number("txtBottomBorderWidth"))
    {
    }

    double left, right, top, bottom;
};

bool bordersFit(const forms::Typed &typed)
{
    const Crops crops(typed);
    return crops.left < typed.number("txtWidth") - crops.right &&
           crops.top < typed.number("txtHeight") - crops.bottom &&
           std::min({crops.left, crops.right, crops.top, crops.bottom}) >= 0 &&
           typed.number("txtBorderWidth") <= ThickestBorder;
}

// One axis: what is cropped off may stand outside the canvas.
int pulledIn(int place, double size, double crop, int canvas)
{
    const double kept = place + size - crop >= canvas ? canvas - size + crop : place;
    return std::max(toInteger<int>(kept), 0);
}

QPoint typedPlace(const forms::Typed &typed)
{
    const auto coordinate = [&typed](const char *field) {
        return toInteger<qint16>(common::parseNumber(typed.text(field)));
    };
    return {coordinate("txtLeftCoordinates"), coordinate("txtTopCoordinates")};
}

ShownVideoSource shown(const VideoSourceValues &values)
{
    return {values, static_cast<qint8>(values.curHue), hasLimits(values)};
}

} // namespace

QPoint placeOnCanvas(QPoint place, const forms::Typed &typed, VideoStandard standard)
{
    const double share = typed.row("cmbSizeRatio") == BackgroundRow ? 1.0 / MarkerDivisor : 1;
    const Crops crops(typed);
    return {pulledIn(place.x(), typed.number("txtWidth") * share, crops.right, recorder::CanvasWidth),
            pulledIn(place.y(), typed.number("txtHeight") * share, crops.bottom,
                     recorder::canvasHeight(standard))};
}

std::optional<forms::Verdict> validateVideoSource(const forms::Typed &typed, VideoStandard standard)
{
    if (!bordersFit(typed))
        return forms::refusal(u"Invalid Border Width"_s, platform::Icon::Critical);
    const QPoint place = placeOnCanvas(typedPlace(typed), typed, standard);
    const bool isAligned = place.x() % PlaceStep == 0 && place.y() % PlaceStep == 0;
    if (isAligned || typed.row("cmbSizeRatio") == BackgroundRow)
        return std::nullopt;
    const auto aligned = [](int coordinate) { return QString::number(coordinate / PlaceStep * PlaceStep); };
    return correctable(
        u"Left and top coordinates of the video source control must be divisible by 16."_s,
        {{u"txtLeftCoordinates"_s, aligned(place.x())}, {u"txtTopCoordinates"_s, aligned(place.y())}});
}

VideoSourceDialog::VideoSourceDialog(VideoSource &source)
    : PropertyDialog(source, u"Video Source Properties"_s, shown(source.get()))
{
    addSize();
    addBorders();
    addCamera();
    addLimits();
    finish(forms::applyAndCancel());
}

void VideoSourceDialog::addSize()
{
    addGroup("Video");
    choice(&V::curCameraNo, {"cmbCameraNo", "Camera &number"},
           forms::numbered(std::array{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    auto &size = choice(
        &V::curDivisor, {"cmbSizeRatio", "&Size"},
        {{u"Background Video"_s, 1}, {u"50%    (1/2)"_s, 2}, {u"33%    (1/3)"_s, 3}, {u"25%    (1/4)"_s, 4}});
    auto &mirror = choice(&V::curMirror, {"cmbMirror", "&Mirror"},
                          forms::numbered(std::array{u"Disable"_s, u"Enable"_s}));
    auto &width = shownText({"txtWidth", "Width", "pixels"});
    auto &height = shownText({"txtHeight", "Height", "pixels"});
    number(&V::curLeftCoord, {"txtLeftCoordinates", "&Left", "pixels"});
    number(&V::curTopCoord, {"txtTopCoordinates", "&Top", "pixels"});
    follow([this, &size, &mirror, &width, &height] {
        const bool isBackground = size.row() == BackgroundRow;
        const int divisor = size.row() < 0 ? kept().curDivisor : size.chosen();
        width.setText(QString::number(recorder::CanvasWidth / std::max(divisor, 1)));
        height.setText(QString::number(recorder::canvasHeight(host().VideoType()) / std::max(divisor, 1)));
        mirror.setEnabled(isBackground);
        if (!isBackground)
            mirror.box().setCurrentIndex(0);
    });
}

void VideoSourceDialog::addBorders()
{
    addGroup("Crop and border");
    number(&V::curTopBorderWidth, {"txtTopBorderWidth", "Crop at the top", "pixels"});
    number(&V::curBottomBorderWidth, {"txtBottomBorderWidth", "Crop at the bottom", "pixels"});
    number(&V::curLeftBorderWidth, {"txtLeftBorderWidth", "Crop at the left", "pixels"});
    number(&V::curRightBorderWidth, {"txtRightBorderWidth", "Crop at the right", "pixels"});
    const auto &border = check(&V::curBorderVisible, "chkBorderVisible", "Show a &border");
    auto &width = number(&V::curBorderWidth, {"txtBorderWidth", "Border &width", "pixels"});
    auto &colour = this->colour(&V::curBordercolor, {"picBorderColour", "Border c&olour"},
                                "cmdResetBorderColour", StandardColour);
    enableBy(border, {&width, &colour});
}

void VideoSourceDialog::addCamera()
{
    constexpr int MostOfByte = 255;
    addGroup("Camera");
    slider(&V::curBrightness, {"sldBrightness", "Brightness"}, 0, MostOfByte);
    slider(&V::curContrast, {"sldContrast", "Contrast"}, 0, MostOfByte);
    slider(&V::hue, {"sldHue", "&Hue"}, -128, 127);
    slider(&V::curSaturation, {"sldSaturation", "Saturation"}, 0, MostOfByte);
}

void VideoSourceDialog::addLimits()
{
    addGroup("Hide Video Under Variable Control");
    variableOrNone(&V::curVarID, {"cmbVariable", "Va&riable"});
    const auto &limited = check(&V::isLimited, "chkApplyLimits", "&Display when");
    auto &lower = number(&V::curLowerLimit, {"txtLowerLimit", "&greater than"});
    auto &upper = number(&V::curUpperLimit, {"txtUpperLimit", "and l&ess than"});
    enableBy(limited, {&lower, &upper});
    number(&V::curDefaultVal, {"txtDefaultVal", "De&fault value"});
}

void VideoSourceDialog::set(ShownVideoSource &values)
{
    const QPoint place =
        placeOnCanvas({values.curLeftCoord, values.curTopCoord}, typed(), host().VideoType());
    values.curLeftCoord = toInteger<qint16>(place.x());
    values.curTopCoord = toInteger<qint16>(place.y());
    values.curHue = static_cast<quint8>(values.hue);
    dropUntickedLimits(values);
    control().set(values);
}

} // namespace controls
