#include "controls/bitmap/bitmap_dialog.h"

#include "controls/picture_copies.h"
#include "graphics/picture_choice.h"
#include "platform/guards.h"

#include <QFileInfo>

#include <algorithm>

namespace controls {

using namespace Qt::StringLiterals;
using graphics::alignedSize;
using graphics::PlanePicture;

namespace {

int even(int coordinate) { return coordinate / 2 * 2; }

void keepOnCanvas(BitmapValues &values, const ControlHost &host)
{
    const platform::Screen &screen = host.screen();
    const QPointF corner = keptOnCanvas(QPoint(values.curLeftCoord, values.curTopCoord),
                                        placed(values, screen).box, FrameTwips, host.VideoType(), screen);
    values.curLeftCoord = common::toInteger<qint16>(corner.x());
    values.curTopCoord = common::toInteger<qint16>(even(common::toInteger<int>(corner.y())));
}

} // namespace

QStringList sizeQuestions(QSize picture)
{
    const QSize aligned = alignedSize(picture);
    QStringList questions;
    if (aligned.width() != picture.width())
        questions.append(correctionQuestion(u"Width of the bitmap control must be divisible by 8."_s));
    if (aligned.height() != picture.height())
        questions.append(correctionQuestion(u"Height of the bitmap control must be divisible by 2."_s));
    return questions;
}

std::optional<forms::Verdict> validateBitmap(const forms::Typed &typed)
{
    const QString source = typed.text("cmdBrowseImage");
    const QString alpha = typed.text("cmdBrowseAlfaImage");
    if (source.isEmpty() || alpha.isEmpty())
        return forms::refusal(u"Please Select Images for Sorce and Alfa images"_s);
    const auto top = common::toInteger<qint16>(common::parseNumber(typed.text("txtTopCoordinates")));
    if (top != even(top))
        return correctable(u"Top coordinate of the bitmap control must be an even number."_s,
                           {{u"txtTopCoordinates"_s, QString::number(even(top))}});
    if (source != alpha) {
        return forms::refusal(
            u"Selected images are in different sizes and please select same size images to continue"_s,
            platform::Icon::Critical);
    }
    return refusedOpacity(typed, u"Invalid Alfa Value"_s, MostOfAlphaByte);
}

BitmapDialog::BitmapDialog(Bitmap &bitmap)
    : PropertyDialog(
          bitmap, u"Bitmap Properties"_s,
          {bitmap.get(), {bitmap.get().picture.picture(), {}}, {bitmap.get().picture.alphaPicture(), {}}})
{
    addPictures();
    addPlace();
    addVariables();
    finish(forms::applyAndCancel());
}

void BitmapDialog::addPictures()
{
    using V = BitmapOfFiles;
    addGroup("Pictures");
    m_source =
        &pictureRow(&V::source, "Source image", {"cmdBrowseImage", "imgPreview", "cmdBrowseFactoryImages"},
                    [this](const QString &path) { return taken(path, false); });
    pictureRow(&V::alphaSource, "Alpha image",
               {"cmdBrowseAlfaImage", "imgAlfaPreview", "cmdBrowseFactoryAlphaImages"},
               [this](const QString &path) { return taken(path, true); });
    auto &width = shownText({"txtWidth", "Width", "pixels"});
    auto &height = shownText({"txtHeight", "Height", "pixels"});
    follow([this, &width, &height] {
        const QSize size = alignedSize(m_source->picture().size());
        width.setText(QString::number(size.width()));
        height.setText(QString::number(size.height()));
    });
}

void BitmapDialog::addPlace()
{
    using V = BitmapOfFiles;
    addGroup("Position");
    number(&V::curLeftCoord, {"txtLeftCoordinates", "&Left", "pixels"});
    number(&V::curTopCoord, {"txtTopCoordinates", "&Top", "pixels"});
    choice(&V::curZorder, {"cmbZorder", "&Z-order"}, forms::numbered(std::array{u"Bottom"_s, u"Top"_s}), 1);
}

void BitmapDialog::addVariables()
{
    using V = BitmapOfFiles;
    addGroup("Hide Bitmap Under Variable Control");
    variableOrNone(&V::curVarID, {"cmbVariable", "Va&riable"});
    number(&V::curLowerLimit, {"txtLowerLimit", "Display when &greater than"});
    number(&V::curUpperLimit, {"txtUpperLimit", "and le&ss than"});
    number(&V::curDefaultVal, {"txtDefaultVal", "&Default value"});
    addGroup("Alpha");
    percent(&V::curAlfa, {"txtAlfa", "Global Alpha &Blending Factor", "%"});
    variableOrNone(&V::curAlfaVariable, {"cmbAlfaVariable", "Alpha &variable"});
    number(&V::curAlfaVarMin, {"txtAlfaVarMin", "Alpha minimum"});
    number(&V::curAlfaVarMax, {"txtAlfaVarMax", "Alpha maximum"});
    number(&V::curAlfaDefaultVal, {"txtAlfaDefaultVal", "Default value"});
}

forms::PictureField &BitmapDialog::pictureRow(forms::ChosenPicture BitmapOfFiles::*member,
                                              const char *caption, const char *const (&names)[3],
                                              forms::PictureField::Taker taker)
{
    auto &field =
        add<forms::PictureField>(names[0], names[1], graphics::pictureRequest(), prompts(), std::move(taker));
    addRow(field, caption);
    field.addButton(names[2], "Examples...", graphics::pictureRequest(host().folders().exampleGraphics()));
    return bind(field, member);
}

QImage BitmapDialog::taken(const QString &path, bool isAlpha)
{
    QImage picture = graphics::chosenPicture(path, prompts());
    if (picture.isNull())
        return {};
    for (const QString &question : sizeQuestions(picture.size())) {
        if (!prompts().confirm(platform::Icon::Critical, platform::ProductTitle, question))
            return {};
    }
    const QImage &source = m_source->picture();
    if (isAlpha && !source.isNull() && alignedSize(picture.size()) != alignedSize(source.size())) {
        prompts().message(platform::Icon::Information, platform::ProductTitle, u" Invalid Picture"_s);
        return {};
    }
    return picture;
}

void BitmapDialog::set(BitmapOfFiles &values)
{
    if (!values.source.path.isEmpty())
        values.picture = PlanePicture::chosen(values.source.picture, values.alphaSource.picture);
    else if (!values.alphaSource.path.isEmpty())
        values.picture = values.picture.withAlpha(values.alphaSource.picture);
    keepOnCanvas(values, host());
    values.curFileName = copied(values.source, values.curFileName);
    values.curAlfaFileName = copied(values.alphaSource, values.curAlfaFileName);
    control().set(values);
}

// The name of the copy. A copy that cannot be written costs a message only: the bitmap has its picture.
QString BitmapDialog::copied(const forms::ChosenPicture &chosen, const QString &before)
{
    if (chosen.path.isEmpty())
        return before;
    QString name = QFileInfo(chosen.path).fileName();
    const QString folder = host().folders().pictureFolder();
    platform::reportFailures(prompts(), [&] {
        const QByteArray bytes = platform::readFile(chosen.path);
        name = copyName(folder, name, bytes);
        keepCopy(folder, name, bytes, platform::Flush::ToDevice);
    });
    return name;
}

} // namespace controls
