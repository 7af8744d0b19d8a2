#include "graphics/font_engine.h"

#include "common/rounding.h"
#include "graphics/glyph_raster.h"
#include "graphics/made_up_style.h"

#include FT_MODULE_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

#include <cmath>
#include <cstdlib>
#include <new>

namespace graphics {

namespace {

constexpr long Unit = 64;       // the engine's measures are in 64ths
constexpr long Whole = 0x10000; // its factors in 65536ths
constexpr long SlantFactor = static_cast<long>(Slant * Whole);
constexpr char16_t FirstSymbol = 0xF000; // where symbol faces have their characters

// Edges that are fitted to whole rows lie in the middle between two blocks of rows, so that a little more or
// less ink above them does not move the top of the shrunk glyph.
constexpr int BaseLinePhase = Enlargement / 2;

constexpr double UsualUnderline = -0.14; // share of the size, for faces that do not say: middle of the bar

// Outlines are fitted to pixel rows of the final size, and to rows only: the same steps for every face.
constexpr FT_Int32 LoadFlags = FT_LOAD_NO_BITMAP | FT_LOAD_FORCE_AUTOHINT | FT_LOAD_TARGET_LIGHT;

void *allocate(FT_Memory, long size) { return std::malloc(static_cast<std::size_t>(size)); }

void release(FT_Memory, void *block) { std::free(block); }

void *resize(FT_Memory, long, long size, void *block)
{
    return std::realloc(block, static_cast<std::size_t>(size));
}

} // namespace

FontEngine::FontEngine() : m_memory{nullptr, allocate, release, resize}
{
    if (FT_New_Library(&m_memory, &m_library) != 0)
        throw std::bad_alloc();
    FT_Add_Default_Modules(m_library);
}

FontEngine::~FontEngine() { FT_Done_Library(m_library); }

std::unique_ptr<OpenFace> OpenFace::open(const FontEngine &engine, const QByteArray &bytes,
                                         const FontRequest &request)
{
    FT_Face face = nullptr;
    const auto *data = reinterpret_cast<const FT_Byte *>(bytes.constData());
    if (FT_New_Memory_Face(engine.library(), data, static_cast<FT_Long>(bytes.size()), 0, &face) != 0)
        return nullptr;
    std::unique_ptr<OpenFace> open(new OpenFace(face, bytes));
    return open->setUp(request) ? std::move(open) : nullptr;
}

OpenFace::OpenFace(FT_Face face, const QByteArray &bytes) : m_bytes(bytes), m_face(face) {}

OpenFace::~OpenFace() { FT_Done_Face(m_face); }

bool OpenFace::setUp(const FontRequest &request)
{
    if (!FT_IS_SCALABLE(m_face) || FT_Set_Char_Size(m_face, 0, request.size * Unit, 0, DotsPerInch) != 0)
        return false;
    m_isSymbols = FT_Select_Charmap(m_face, FT_ENCODING_UNICODE) != 0 &&
                  FT_Select_Charmap(m_face, FT_ENCODING_MS_SYMBOL) == 0;
    m_size = request.size * static_cast<double>(DotsPerInch) / PointsPerInch;
    if (request.style.bold && (m_face->style_flags & FT_STYLE_FLAG_BOLD) == 0)
        m_widening = common::toInteger<int>(m_size * Unit / StrokeDivisor);
    m_isSlanted = request.style.italic && (m_face->style_flags & FT_STYLE_FLAG_ITALIC) == 0;
    const double em = m_face->units_per_EM;
    if (request.style.underline)
        addBar(m_face->underline_position / em, m_face->underline_thickness / em, UsualUnderline);
    const auto *measures = static_cast<const TT_OS2 *>(FT_Get_Sfnt_Table(m_face, FT_SFNT_OS2));
    if (request.style.strikethrough && measures) {
        const double thickness = measures->yStrikeoutSize / em; // its position is that of the upper edge
        addBar(measures->yStrikeoutPosition / em - thickness / 2, thickness, UsualStrikethrough);
    } else if (request.style.strikethrough) {
        addBar(0, 0, UsualStrikethrough);
    }
    return true;
}

void OpenFace::addBar(double centre, double thickness, double usualCentre)
{
    if (!(thickness > 0)) {
        centre = usualCentre;
        thickness = UsualThickness;
    }
    const int rows = qMax(1, common::toIntegerClamped<qint16>(m_size * thickness));
    const int bottom = common::toIntegerClamped<qint16>(m_size * centre - rows / 2.0);
    m_bars.push_back({bottom * Enlargement, rows * Enlargement});
}

int OpenFace::baseLine() const { return Enlargement * static_cast<int>(std::ceil(m_size)) + BaseLinePhase; }

FT_UInt OpenFace::glyphOf(char16_t character) const
{
    return FT_Get_Char_Index(m_face, m_isSymbols ? FirstSymbol | character : character);
}

FT_Outline *OpenFace::outline(char16_t character, int &advance) const
{
    if (FT_Load_Glyph(m_face, glyphOf(character), LoadFlags) != 0 ||
        m_face->glyph->format != FT_GLYPH_FORMAT_OUTLINE)
        return nullptr;
    FT_Outline *outline = &m_face->glyph->outline;
    if (m_widening != 0)
        FT_Outline_EmboldenXY(outline, m_widening, 0);
    const FT_Matrix enlarge{Enlargement * Whole, m_isSlanted ? Enlargement * SlantFactor : 0, 0,
                            Enlargement * Whole};
    FT_Outline_Transform(outline, &enlarge);
    const auto width = static_cast<double>(m_face->glyph->linearHoriAdvance) / Whole +
                       static_cast<double>(m_widening) / Unit;
    advance = qMax(0, common::toIntegerClamped<qint16>(width * Enlargement));
    return outline;
}

} // namespace graphics
