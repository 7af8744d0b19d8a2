#include "controls/custom_dial/custom_dial_dialog.h"

#include "platform/guards.h"

namespace controls {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize PreviewSize(240, 240); // pixels

using V = CustomDialValues;

qint16 evenSide(qint16 side) { return static_cast<qint16>(side & ~1); }

} // namespace

std::optional<forms::Verdict> validateCustomDial(const forms::Typed &typed)
{
    return refusedOpacity(typed, u"Invalid Alfa Value"_s);
}

CustomDialDialog::CustomDialDialog(CustomDial &dial)
    : PropertyDialog(dial, u"Custom Dial Properties"_s, dial.get()), m_preview(new QLabel)
{
    addPlaceRows();
    addScaleRows();
    addTicRows();
    addCaptionRows();
    addAnnularRows();
    m_preview->setObjectName(u"picPreview"_s);
    m_preview->setAccessibleName(u"Preview"_s);
    m_preview->setMinimumSize(PreviewSize);
    m_preview->setAlignment(Qt::AlignCenter);
    addGroup("Preview");
    addWide(m_preview);
    follow([this] { showPreview(); });
    finish({{"cmdOk", "&OK", forms::Press::Accept},
            {"cmdApply", "&Apply", forms::Press::Apply},
            {"cmdCancel", "&Cancel", forms::Press::Cancel}});
}

void CustomDialDialog::addPlaceRows()
{
    addGroup("Variable To Display");
    variable(&V::curVarID, {"cmbVariable", "&Variable"});
    number(&V::curDefaultVal, {"txtDefaultVal", "&Default value"});
    addGroup("Position");
    number(&V::curCenterX, {"txtCenterX", "&X", "pixels"});
    number(&V::curCenterY, {"txtCenterY", "&Y", "pixels"});
    number(&V::curWidth, {"txtWidth", "&Width", "pixels"});
    number(&V::curHeight, {"txtHeight", "&Height", "pixels"});
    addGroup("General");
    percent(&V::curAlfa, {"txtAlfa", "Alpha &Factor", "%"});
    colour(&V::curBkColour, {"picBackColour", "Back colour"}, "cmdResetBackColour", V().curBkColour.packed());
    check(&V::curTransparent, "chkTransparent", "T&ransparent background");
    addGroup("Pointer Properties");
    number(&V::curPointerLength, {"txtPointerLength", "Pointer &length", "pixels"});
    number(&V::curPointerWidth, {"txtPointerWidth", "Pointer width", "pixels"});
    colour(&V::curPointerColour, {"picPointerColour", "Pointer colour"}, "cmdResetPointerColour",
           V().curPointerColour.packed());
}

void CustomDialDialog::addScaleRows()
{
    addGroup("Scale Properties");
    number(&V::curMin, {"txtMin", "Mi&nimum"});
    number(&V::curMax, {"txtMax", "Maxi&mum"});
    number(&V::curMinAngle, {"txtMinAngle", "Angle at minimum", "degrees"});
    number(&V::curMaxAngle, {"txtMaxAngle", "Angle at maximum", "degrees"});
}

void CustomDialDialog::addTicRows()
{
    choice(&V::curTicStyle, {"cmbTicStyle", "Tic &style"},
           forms::numbered(std::array{u"Rectangle"_s, u"Ellipse"_s, u"Triangle"_s, u"Diamond"_s}), 0);
    number(&V::curTicDelta, {"txtTicDelta", "&Interval"});
    number(&V::curTicInner, {"txtTicInner", "Tic inner end", "of radius"});
    number(&V::curTicOuter, {"txtTicOuter", "Tic outer end", "of radius"});
    number(&V::curTicWidth, {"txtTicWidth", "Tic width", "of radius"});
    check(&V::curTicLabelsOnOff, "chkTicLabels", "La&bels On/Off");
    colour(&V::curTicColour, {"picTicColour", "Tic colour"}, "cmdResetTicColour", V().curTicColour.packed());
    font(
        [](V &values) {
            return forms::FontParts<qint16, quint8, common::FixedString<30>>{
                values.curFontName,   values.curFontSize,          values.curFontBold,
                values.curFontItalic, values.curFontStrikethrough, values.curFontUnderline};
        },
        {"cmdFont", "Fon&t"}, "lblFont");
}

void CustomDialDialog::addCaptionRows()
{
    addGroup("Caption");
    const forms::CheckField &on = check(&V::curCaptions, "chkCaption", "Ca&ption");
    enableBy(on, {&text(&V::curCaption, {"txtCaption", "T&ext"}),
                  &number(&V::curCaptionLeft, {"txtCaptionLeft", "Left", "of radius"}),
                  &number(&V::curCaptionTop, {"txtCaptionTop", "Top", "of radius"}),
                  &colour(&V::curCaptionColour, {"picCaptionColour", "Caption colour"},
                          "cmdResetCaptionColour", V().curCaptionColour.packed())});
}

void CustomDialDialog::addAnnularRows()
{
    addGroup("Annular");
    const forms::CheckField &on = check(&V::curAnnulars, "chkAnnular", "Ann&ular");
    enableBy(on, {&number(&V::curAnnularStart, {"txtAnnularStart", "Start"}),
                  &number(&V::curAnnularStop, {"txtAnnularStop", "Stop"}),
                  &number(&V::curAnnularInner, {"txtAnnularInner", "Inner edge", "of radius"}),
                  &number(&V::curAnnularOuter, {"txtAnnularOuter", "Outer edge", "of radius"}),
                  &colour(&V::curAnnularColour, {"picAnnularColour", "Annular colour"},
                          "cmdResetAnnularColour", V().curAnnularColour.packed())});
}

CustomDialValues CustomDialDialog::placedEvenly(CustomDialValues values) const
{
    const V &before = control().get();
    if (values.curWidth != before.curWidth)
        values.curWidth = evenSide(values.curWidth);
    if (values.curHeight != before.curHeight)
        values.curHeight = evenSide(values.curHeight);
    return placed(values, host().VideoType(), host().screen());
}

void CustomDialDialog::set(CustomDialValues &values)
{
    values = placedEvenly(values);
    control().set(values);
}

// What does not make a dial yet leaves the last one in place.
void CustomDialDialog::showPreview()
{
    platform::skipFailures([this] {
        const V typed = placedEvenly(converted());
        const QRect area = faceRect(typed.box, host().screen());
        Composition ground{QImage(area.size(), QImage::Format_RGB32), area.topLeft()};
        ground.picture.fill(palette().color(QPalette::Mid));
        paintDial(typed, renderedFace(typed, area.size(), host()), host(), ground);
        QPixmap picture = QPixmap::fromImage(ground.picture);
        if (area.width() > PreviewSize.width() || area.height() > PreviewSize.height())
            picture = picture.scaled(PreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        m_preview->setPixmap(picture);
    });
}

} // namespace controls
