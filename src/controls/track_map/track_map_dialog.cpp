#include "controls/track_map/track_map_dialog.h"

#include <cmath>

namespace controls {

using namespace Qt::StringLiterals;
using forms::Correction;
using forms::Verdict;

namespace {

constexpr double WidestStroke = 255; // pixels
constexpr double MapStep = 8;        // pixels between the places where a map can begin

std::optional<Verdict> tooWide(const forms::Typed &typed)
{
    for (const auto &[field, stroke] :
         {std::pair{"txtBorderWidth", "Border"}, {"txtMarkerWidth", "Marker"}, {"txtLineWidth", "Line"}}) {
        if (typed.number(field) > WidestStroke) {
            return forms::refusal(u"%1 width exceeds the maximum limit of 255,reduce and try again"_s.arg(
                QLatin1String(stroke)));
        }
    }
    return std::nullopt;
}

// Sizes that no canvas holds are cut without a word.
std::optional<Verdict> tooLarge(const forms::Typed &typed, recorder::VideoStandard standard)
{
    const int height = recorder::canvasHeight(standard);
    for (const auto &[field, limit] : {std::pair{"txtWidth", recorder::CanvasWidth}, {"txtHeight", height}}) {
        if (typed.number(field) > limit)
            return Verdict{Verdict::Kind::Silent, {}, {}, {{QLatin1String(field), QString::number(limit)}}};
    }
    return std::nullopt;
}

// The place counts where the map will stand: once it was pulled onto the canvas.
std::optional<Verdict> offTheMapsSteps(const forms::Typed &typed, recorder::VideoStandard standard)
{
    const platform::Screen screen;
    const QPointF typedPlace(typed.number("txtLeftCoordinates"), typed.number("txtTopCoordinates"));
    const Box box = framed({0, 0, typed.number("txtWidth"), typed.number("txtHeight")}, screen);
    const QPointF place = keptOnCanvas(typedPlace, box, 0, standard, screen);
    QList<Correction> corrections;
    for (const auto &[field, coordinate] :
         {std::pair{"txtLeftCoordinates", place.x()}, {"txtTopCoordinates", place.y()}}) {
        const double step = std::trunc(coordinate / MapStep) * MapStep + 0.0; // no negative 0
        if (coordinate != step)
            corrections.append({QLatin1String(field), QString::number(step, 'f', 0)});
    }
    if (corrections.isEmpty())
        return std::nullopt;
    return correctable(u"Left and top coordinates of the track map control must be divisible by 8."_s,
                       corrections);
}

} // namespace

std::optional<Verdict> validateTrackMap(const forms::Typed &typed, recorder::VideoStandard standard)
{
    if (auto verdict = tooWide(typed))
        return verdict;
    const bool withMap = typed.isOn("chkEnableMap");
    if (!withMap && !typed.isOn("chkRescale") &&
        (typed.number("txtIniHeight") <= 0 || typed.number("txtIniWidth") <= 0))
        return forms::refusal(u"Initial width & height can't be 0"_s);
    if (auto verdict = tooLarge(typed, standard))
        return verdict;
    return withMap ? offTheMapsSteps(typed, standard) : std::nullopt;
}

TrackMapDialog::TrackMapDialog(TrackMap &map) : PropertyDialog(map, u"Track Map Properties"_s, map.get())
{
    addBoxRows();
    addTrackRows();
    addScaleRows();
    finish(forms::applyAndCancel());
}

void TrackMapDialog::addBoxRows()
{
    using V = TrackMapValues;
    const V standard;
    addGroup("Box");
    number(&V::curLeftCoord, {"txtLeftCoordinates", "&Left", "pixels"});
    number(&V::curTopCoord, {"txtTopCoordinates", "&Top", "pixels"});
    number(&V::curWidth, {"txtWidth", "&Width", "pixels"});
    number(&V::curHeight, {"txtHeight", "&Height", "pixels"});
    choice(&V::curBorderVisible, {"cmbBorderVisible", "&Border visible"}, {{u"No"_s, 0}, {u"Yes"_s, 1}}, 1);
    number(&V::curBorderWidth, {"txtBorderWidth", "Border width", "pixels"});
    colour(&V::curBordercolor, {"picBorderColour", "Border colour"}, "cmdResetBordedrColour",
           standard.curBordercolor.packed());
}

void TrackMapDialog::addTrackRows()
{
    using V = TrackMapValues;
    const V standard;
    addGroup("Track");
    number(&V::curLineWidth, {"txtLineWidth", "Line width", "pixels"});
    colour(&V::curLinecolor, {"picLineColour", "Line colour"}, "cmdResetLineColour",
           standard.curLinecolor.packed());
    check(&V::curMarkerVisible, "chkMarkerVisible", "&Marker visible");
    number(&V::curMarkerWidth, {"txtMarkerWidth", "Marker width", "pixels"});
    colour(&V::curMarkercolor, {"picMarkerColour", "Marker colour"}, "cmdResetMarkerColour",
           standard.curMarkercolor.packed());
    percent(&V::curAlfa, {"txtAlfa", "Alpha Blending", "%"});
    options(&V::curFadingRate, "&Fading rate",
            {{"optLow", "Low"}, {"optMedium", "Medium"}, {"optHeight", "High"}});
}

void TrackMapDialog::addScaleRows()
{
    using V = TrackMapValues;
    addGroup("Scale");
    forms::CheckField &rescale = check(&V::curAutoRescale, "chkRescale", "&Rescale as the track grows");
    forms::NumberField &width = number(&V::curIniWidth, {"txtIniWidth", "Initial width"});
    forms::NumberField &height = number(&V::curIniHeight, {"txtIniHeight", "Initial height"});
    addGroup("Map");
    forms::CheckField &map = check(&V::curMapEnable, "chkEnableMap", "Enable &internet map overlay");
    enableBy(map, {&options(&V::curMapType, "Map type",
                            {{"optUseSatellite", "Use &Satellite Maps"}, {"optUseRoad", "Use R&oad Maps"}}),
                   &options(&V::curMapDetailLevel, "Map &detail",
                            {{"optMapHigh", "High"}, {"optMapMedium", "Medium"}, {"optMapLow", "Low"}}),
                   &percent(&V::curMapAlpha, {"txtMapAlpha", "Ma&p alpha", "%"})});
    follow([&map, &rescale, &width, &height] {
        for (forms::Field *field : std::initializer_list<forms::Field *>{&rescale, &width, &height}) {
            field->setEnabled(!map.isOn());
            if (map.isOn())
                field->setText(u"0"_s);
        }
    });
    react(map, [this, &map] {
        if (!map.isOn())
            return;
        prompts().message(platform::Icon::Information, platform::ProductTitle,
                          u"To use this mode you must include a map file from the map generator "
                          "program, please see the help file for more information"_s);
    });
}

void TrackMapDialog::set(TrackMapValues &values)
{
    values = placed(values, host().VideoType(), host().screen());
    control().set(values);
}

} // namespace controls
