#include "layoutfile/layout_file.h"
#include "layoutfile/save_checks.h"

#include <gtest/gtest.h>

namespace {

using namespace layoutfile;

TEST(SaveChecks, complainOfOneThingAtATime)
{
    EXPECT_EQ(saveComplaint({4, 2, 2}), "System does not support more than one Track Map");
    EXPECT_EQ(saveComplaint({3, 1, 2}), "You can't use multiple Video Sources as background video\n"
                                        "Please select one Video Source as a background video");
    EXPECT_EQ(saveComplaint({0, 0, 0}), "System can't detect any object(s) to save");
    EXPECT_EQ(saveComplaint({2, 1, 1}), "");
}

TEST(SaveChecks, findTheCameraThatIsNamedTwice)
{
    RecordGroups groups;
    for (const quint8 camera : std::array<quint8, 4>{1, 3, 2, 3}) {
        EXPECT_FALSE(sharesCamera(groups.of(RecordType::VideoSource)));
        VideoSourceRecord source;
        source.cameraNo = camera;
        groups.add(source);
    }
    EXPECT_TRUE(sharesCamera(groups.of(RecordType::VideoSource)));
}

} // namespace
