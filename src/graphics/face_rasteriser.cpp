#include "graphics/face_rasteriser.h"

#include "common/run_time_error.h"
#include "graphics/face_source.h"
#include "graphics/font_engine.h"

#include <algorithm>

#include FT_OUTLINE_H

namespace graphics {

namespace {

constexpr int Unit = 64; // outlines are in 64ths of a pixel
constexpr int LargestExtent = 255 * Enlargement;

// Pixels of the enlarged character; the base line is at 0 and y runs up.
struct Extent
{
    long left, bottom, right, top;

    long width() const { return right - left; }
    long height() const { return top - bottom; }
    void unite(const Extent &other)
    {
        left = std::min(left, other.left);
        bottom = std::min(bottom, other.bottom);
        right = std::max(right, other.right);
        top = std::max(top, other.top);
    }
};

Extent extentOf(const FT_Outline &outline)
{
    FT_BBox box;
    FT_Outline_Get_CBox(&outline, &box);
    return {box.xMin >> 6, box.yMin >> 6, (box.xMax + Unit - 1) >> 6, (box.yMax + Unit - 1) >> 6};
}

// Moves the top to the nearest row of the final size. The blocks that are shrunk begin at the ink, so this
// alone keeps the bars of a style in whole rows.
void alignTop(FT_Outline &outline, Extent &extent)
{
    const long aligned = ((extent.top + Enlargement / 2) & ~(Enlargement - 1L));
    const long shift = aligned - extent.top;
    FT_Outline_Translate(&outline, 0, shift * Unit);
    extent.top += shift;
    extent.bottom += shift;
}

Extent extentOf(const StyleBar &bar, int advance)
{
    return {0, bar.bottom, advance, bar.bottom + bar.thickness};
}

void fill(FT_Library library, FT_Outline &outline, const Extent &extent, InputText &surface)
{
    FT_Outline_Translate(&outline, -extent.left * Unit, -extent.bottom * Unit);
    FT_Bitmap target{};
    target.rows = static_cast<unsigned>(surface.height);
    target.width = static_cast<unsigned>(surface.width);
    target.pitch = surface.width;
    target.buffer = surface.pixels.data();
    target.num_grays = 256;
    target.pixel_mode = FT_PIXEL_MODE_GRAY;
    FT_Outline_Get_Bitmap(library, &outline, &target);
}

void fill(const StyleBar &bar, int advance, const Extent &extent, InputText &surface)
{
    for (int i = 0; i < bar.thickness; ++i) {
        quint8 *row = surface.row(static_cast<int>(extent.top) - bar.bottom - 1 - i) - extent.left;
        std::fill(row, row + advance, quint8(255));
    }
}

} // namespace

FaceRasteriser::FaceRasteriser(const FontRequest &request, const QString &shippedFaces)
    : m_request(request), m_shippedFaces(shippedFaces), m_engine(std::make_unique<FontEngine>())
{
    if (!isShippedFace(request.face))
        m_face = OpenFace::open(*m_engine, installedFace(request.face, request.style), request);
    if (!m_face)
        m_face = openStandIn();
    if (!m_face)
        throw common::RunTimeError(QStringLiteral("The font %1 cannot be read").arg(request.face));
}

FaceRasteriser::~FaceRasteriser() = default;

std::unique_ptr<OpenFace> FaceRasteriser::openStandIn() const
{
    if (auto shipped = OpenFace::open(*m_engine, shippedFace(m_shippedFaces, m_request.style), m_request))
        return shipped;
    return OpenFace::open(*m_engine, installedFace(ShippedFace, m_request.style), m_request);
}

const OpenFace &FaceRasteriser::faceOf(char16_t character)
{
    if (m_face->has(character))
        return *m_face;
    if (!m_standIn && !m_standInMissing) {
        m_standIn = openStandIn();
        m_standInMissing = !m_standIn;
    }
    return m_standIn && m_standIn->has(character) ? *m_standIn : *m_face;
}

bool FaceRasteriser::draw(char16_t character, InputText &surface)
{
    const OpenFace &face = faceOf(character);
    surface.clear(0, 0);
    int advance = 0;
    FT_Outline *outline = face.outline(character, advance);
    if (!outline)
        return true; // a character without a picture has no ink
    Extent extent = extentOf(*outline);
    alignTop(*outline, extent);
    for (const StyleBar &bar : face.bars())
        extent.unite(extentOf(bar, advance));
    if (extent.width() > LargestExtent || extent.height() > LargestExtent)
        return false;
    surface.clear(static_cast<int>(extent.width()), static_cast<int>(extent.height()));
    surface.top = face.baseLine() - static_cast<int>(extent.top);
    if (surface.pixels.empty())
        return true;
    fill(m_engine->library(), *outline, extent, surface);
    for (const StyleBar &bar : face.bars())
        fill(bar, advance, extent, surface);
    return true;
}

} // namespace graphics
