#include "shell/frm_options.h"

#include "graphics/picture_choice.h"
#include "surface/backgrounds.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>

#include <algorithm>

namespace shell {

using namespace Qt::StringLiterals;
using recorder::VideoStandard;

namespace {

Options shownOptions(surface::frmInterface &design)
{
    surface::Backgrounds &backgrounds = design.backgrounds();
    return {design.grid(),
            {backgrounds.picture(VideoStandard::Pal), {}},
            {backgrounds.picture(VideoStandard::Ntsc), {}}};
}

// A null image, and a message that says why, for a file that cannot be the standard's background.
QImage chosenBackground(const QString &path, VideoStandard standard, platform::Prompts &prompts)
{
    QImage picture = graphics::chosenPicture(path, prompts);
    const QSize size = recorder::canvasSize(standard);
    if (picture.isNull() || picture.size() == size)
        return picture;
    prompts.message(platform::Icon::Critical, u"Invalid picture size"_s,
                    u"%1\nImage should be %2 X %3"_s.arg(QFileInfo(path).fileName())
                        .arg(size.width())
                        .arg(size.height()));
    return {};
}

// The fields of all groups begin at one line.
void alignCaptions(const QDialog &dialog)
{
    int widest = 0;
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            widest = std::max(widest, label->sizeHint().width());
    }
    for (QLabel *label : labels) {
        if (label->buddy())
            label->setMinimumWidth(widest);
    }
}

} // namespace

std::optional<forms::Verdict> validateOptions(const forms::Typed &typed)
{
    constexpr int SmallestGrid = 20; // twips
    constexpr int LargestGrid = 1000;
    const double size = typed.number("txtGridSize");
    if (size >= SmallestGrid && size <= LargestGrid)
        return std::nullopt;
    return forms::refusal(u"Invalid grid size"_s, platform::Icon::Critical);
}

frmOptions::frmOptions(surface::frmInterface &design, const forms::Context &context)
    : DialogOf(u"Options"_s, shownOptions(design), context), m_design(design)
{
    using V = Options;
    addGroup("Grid");
    number([](auto &v) -> auto & { return v.grid.spacing; }, {"txtGridSize", "&Grid Size", "twips"})
        .requireDigits();
    check(
        [](auto &v) -> auto & { return v.grid.shown; }, "chkShowGrid", "&Show Grid");
    check(
        [](auto &v) -> auto & { return v.grid.snaps; }, "chkSnapToGrid", "S&nap To Grid");
    addGroup("Backgrounds");
    addBackground(VideoStandard::Pal, &V::pal, {"txtPALBackImg", "&PAL Background Image"},
                  {"cmdPALImgBrowse", "Browse for the PAL background image"}, "picPALBackImg");
    addBackground(VideoStandard::Ntsc, &V::ntsc, {"txtNTSCBackImg", "N&TSC Background Image"},
                  {"cmdNTSCImgBrowse", "Browse for the NTSC background image"}, "picNTSCBackImg");
    finish({{"cmdOk", "&Ok", forms::Press::Accept}, {"cmdCancel", "&Cancel", forms::Press::Cancel}});
    alignCaptions(*this);
}

void frmOptions::addBackground(VideoStandard standard, forms::ChosenPicture Options::*member,
                               const forms::RowText &file, const forms::RowText &picture,
                               const char *previewName)
{
    auto &name = add<forms::TextField>(file.name);
    addRow(name, file.caption);
    name.showOnly();
    name.show(m_design.backgrounds().fileName(standard));
    auto &chosen = add<forms::PictureField>(
        picture.name, previewName, graphics::pictureRequest(), prompts(),
        [this, standard](const QString &path) { return chosenBackground(path, standard, prompts()); });
    chosen.button().setText(u"..."_s);
    addRow(chosen, "");
    chosen.button().setAccessibleName(QString::fromUtf8(picture.caption));
    bind(chosen, member);
    react(chosen, [&name, &chosen] { name.setText(QDir::toNativeSeparators(chosen.path())); });
}

void frmOptions::set(Options &options)
{
    m_design.setOptions(options.grid, options.pal.path, options.ntsc.path);
}

} // namespace shell
