#pragma once

#include "graphics/font_name.h"
#include "graphics/glyph_raster.h"

#include <memory>

namespace graphics {

class FontEngine;
class OpenFace;

// Draws the characters of one font at four times their size. No setting of the desktop has a say, so the same
// face gives the same pixels on every machine: 12 points are 16 pixels, whatever the screen.
class FaceRasteriser
{
public:
    // The installed face, or the shipped one from the folder `shippedFaces` in its place and for characters
    // that it lacks. Throws RunTimeError when neither can be read.
    FaceRasteriser(const FontRequest &request, const QString &shippedFaces);
    ~FaceRasteriser();
    Q_DISABLE_COPY_MOVE(FaceRasteriser)

    // False, with nothing drawn, when the character is larger than any font file takes.
    bool draw(char16_t character, InputText &surface);

private:
    const OpenFace &faceOf(char16_t character);
    std::unique_ptr<OpenFace> openStandIn() const;

    FontRequest m_request;
    QString m_shippedFaces;
    std::unique_ptr<FontEngine> m_engine; // outlives the faces
    std::unique_ptr<OpenFace> m_face;
    std::unique_ptr<OpenFace> m_standIn;
    bool m_standInMissing = false;
};

} // namespace graphics
