#include "graphics/font_name.h"
#include "graphics/glyph_lists.h"

#include <gtest/gtest.h>

namespace graphics {

namespace {

QString text(const char *latin) { return QString::fromLatin1(latin); }

TEST(FontName, isTakenApartIntoWhatItWasBuiltFrom)
{
    const std::pair<FontRequest, const char *> cases[] = {
        {{text("Arial"), 12, {}}, "Arial  12.qlg"},
        {{text("Arial"), 12, {true}}, "Arial B 12.qlg"},
        {{text("QL Sans Serif"), 9, {true, true, true, true}}, "QL Sans Serif BISU 9.qlg"},
        {{text("Gill B"), 8, {}}, "Gill B  8.qlg"},
        {{text("Slab 3"), 10, {false, false, true}}, "Slab 3 S 10.qlg"},
    };
    for (const auto &[request, name] : cases) {
        EXPECT_EQ(fontFileName(request), text(name));
        EXPECT_EQ(extendedFontFileName(request), text("Ext_") + text(name));
        EXPECT_EQ(splitFontFileName(text(name)), request) << name;
    }
}

TEST(FontName, neverLeadsOutOfItsFolder)
{
    for (const QString &face : {text("../Arial"), text("a/b"), text("a\\b"), text(".hidden"), text("C:Arial"),
                                QString(), text("Ari") + QChar(0) + text("al")}) {
        EXPECT_EQ(fontFileName({face, 10, {}}), text("QL Sans Serif  10.qlg")) << face.toStdString();
        if (!face.contains(QChar(0))) {
            EXPECT_EQ(splitFontFileName(face + text(" B 10.qlg")).face, DefaultFace) << face.toStdString();
        }
    }
}

TEST(FontName, isReadAlsoWhenItsFieldHasCutItOff)
{
    const std::pair<QString, FontRequest> cases[] = {
        {text("Times New Roman Book BI 12.ql"), {text("Times New Roman Book"), 12, {true, true}}},
        {text("Times New Roman Booklet BI 12"), {text("Times New Roman Booklet"), 12, {true, true}}},
        {text("Times New Roman Condensed  "), {text("Times New Roman Condensed"), 0, {}}},
        {text("Times New Roman Condensed Sli"), {text("Times New Roman Condensed Sli"), 0, {}}},
        {text("Arial B 12.qlg") + QChar(0) + text("rest 9.qlg"), {text("Arial"), 12, {true}}},
        {text("Arial X 12.qlg"), {text("Arial X"), 12, {}}},
        {text("12.qlg"), {text("QL Sans Serif"), 12, {}}},
        {text("Arial  99999999.qlg"), {text("Arial  99999999"), 0, {}}},
        {{}, {text("QL Sans Serif"), 0, {}}},
    };
    for (const auto &[name, request] : cases)
        EXPECT_EQ(splitFontFileName(name), request) << name.toStdString();
}

TEST(GlyphLookUp, findsTheEndsOfEveryStretchAndNothingElse)
{
    const std::tuple<char16_t, int, bool> cases[] = {
        {u'(', 0, false},  {u'9', 17, false}, {u'A', 18, false}, {u'[', 44, false}, {u']', 45, false},
        {u'a', 46, false}, {u'z', 71, false}, {u':', 72, false}, {u'&', 73, false}, {u'<', 74, false},
        {u'>', 75, false}, {u'!', 0, true},   {u'%', 4, true},   {u'ü', 6, true},   {u'Æ', 23, true},
        {u'^', 39, true},  {u' ', -1, false}, {u'~', -1, false}, {u'€', -1, false}, {u'\u0141', -1, false},
    };
    for (const auto &[character, index, extended] : cases)
        EXPECT_EQ(lookUpGlyph(character), (GlyphPlace{index, extended})) << static_cast<int>(character);
    int known = 0;
    for (int code = 0; code < 0x10000; ++code)
        known += lookUpGlyph(static_cast<char16_t>(code)).index >= 0;
    EXPECT_EQ(known, 116);
}

} // namespace

} // namespace graphics
