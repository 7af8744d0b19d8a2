#include "recorder/dialogs/frm_special_icons.h"

#include "graphics/picture_choice.h"

namespace recorder {

using namespace Qt::StringLiterals;

std::optional<forms::Verdict> validateSpecialIcon(const forms::Typed &typed)
{
    const QStringList sides = typed.text("cmdBrowse").split(u" x "_s);
    const QSize size(sides.first().toInt(), sides.last().toInt());
    if (size == graphics::alignedSize(size))
        return std::nullopt;
    return forms::refusal(u"The image width should be multiples of 8 and height should be multiples of 2"_s,
                          platform::Icon::Critical);
}

frmSpecialIcons::frmSpecialIcons(SpecialIcon &icon, const forms::Context &context)
    : DialogOf(u"Special Icons"_s, {icon, {icon.picture.picture(), {}}}, context), m_icon(icon)
{
    using V = IconOfFile;
    addGroup("Icon");
    const auto &enabled = check(&V::enabled, "chkEnabled", "&Enabled/Disabled");
    auto &left = number(&V::left, {"txtLeft", "&Left", "pixels"});
    auto &top = number(&V::top, {"txtTop", "&Top", "pixels"});
    auto &alpha = percent(&V::alpha, {"txtAlpha", "&Alpha Factor", "%"});
    left.caption()->setObjectName(u"lblLeft"_s);
    top.caption()->setObjectName(u"lblTop"_s);
    alpha.caption()->setObjectName(u"lblAlpha"_s);
    enableBy(enabled, {&left, &top, &alpha});
    addGroup("Picture");
    auto &picture = add<forms::PictureField>(
        "cmdBrowse", "picPreview", graphics::pictureRequest(), prompts(),
        [this](const QString &path) { return graphics::chosenPicture(path, prompts()); });
    addRow(picture, "Picture");
    bind(picture, &V::source);
    finish(forms::okAndCancel());
}

void frmSpecialIcons::set(IconOfFile &values)
{
    if (!values.source.path.isEmpty())
        values.picture = graphics::PlanePicture::chosen(values.source.picture, {});
    m_icon = values;
}

} // namespace recorder
