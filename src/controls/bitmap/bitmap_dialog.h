#pragma once

#include "controls/bitmap/bitmap.h"
#include "controls/property_dialog.h"
#include "forms/picture_field.h"

namespace controls {

// The questions to ask before a picture of this size is taken, in order.
QStringList sizeQuestions(QSize picture);

// A bitmap with the two pictures it is made of.
struct BitmapOfFiles : BitmapValues
{
    forms::ChosenPicture source;
    forms::ChosenPicture alphaSource;
};

// `typed` holds the sizes of the pictures.
std::optional<forms::Verdict> validateBitmap(const forms::Typed &typed);

// "Bitmap Properties".
class BitmapDialog final : public PropertyDialog<Bitmap, BitmapOfFiles>
{
public:
    explicit BitmapDialog(Bitmap &bitmap);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateBitmap(typed);
    }
    void set(BitmapOfFiles &values) override;

private:
    void addPictures();
    void addPlace();
    void addVariables();
    forms::PictureField &pictureRow(forms::ChosenPicture BitmapOfFiles::*member, const char *caption,
                                    const char *const (&names)[3], forms::PictureField::Taker taker);
    QImage taken(const QString &path, bool isAlpha);
    QString copied(const forms::ChosenPicture &chosen, const QString &before);

    forms::PictureField *m_source = nullptr;
};

} // namespace controls
