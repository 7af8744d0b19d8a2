#include "common/run_time_error.h"
#include "layoutfile/font_list.h"
#include "layoutfile/images.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;
using graphics::PlanePicture;

TEST(Images, areCutByTheSizesOfTheBitmapsAndNeverBeyondTheRecord)
{
    constexpr qint16 Largest = 32767;
    const QByteArray both = "YYYYyyyyUuVvaAaAaAaA123456789UV987654321";
    const graphics::Planes oddPlanes{3, 3, "123456789", "U", "V"};
    const PlanePicture none,
        opaque = PlanePicture::fromFile(oddPlanes, {}),
        odd = PlanePicture::fromFile(oddPlanes, {3, 3, "987654321"}),
        even = PlanePicture::fromFile({4, 2, "YYYYyyyy", "Uu", "Vv"}, {4, 2, "aAaAaAaA"});
    const std::tuple<const char *, QByteArray, BitmapRecord, PlanePicture, PlanePicture> cases[] = {
        {"bytes that nobody names", both + "more", BitmapRecord{4, 2}, even, odd},
        {"cut in the last alpha plane", both.chopped(1), BitmapRecord{4, 2}, even, opaque},
        {"cut in the first chroma plane", both.first(9), BitmapRecord{4, 2}, none, none},
        {"no planes", {}, BitmapRecord{4, 2}, none, none},
        {"the largest size", both, BitmapRecord{Largest, Largest}, none, none},
        {"no width", both.sliced(20), BitmapRecord{0, 2}, none, odd},
        {"negative sides", both.sliced(20), BitmapRecord{-4, -2}, none, odd},
    };
    for (const auto &[name, planes, record, first, second] : cases) {
        const StoredImages images =
            storedImages({{7, record}, {3, BitmapRecord{3, 3}}, {1, ImagePlanesRecord{Bulk{planes}}}});
        EXPECT_TRUE(images.at(7).picture == first) << name;
        EXPECT_TRUE(images.at(3).picture == second) << name;
    }
}

TEST(FontList, countsAsFarAsAByteReaches)
{
    platform::NoProgress silent;
    FontList fonts(nullptr, true, silent);
    for (int size = 0; size < 256; ++size)
        EXPECT_EQ(fonts.add({"Arial", size, {}}, 9).id, size);
    EXPECT_THROW(fonts.add({"Arial", 256, {}}, 9), common::RunTimeError);
}

} // namespace
