#include "common/run_time_error.h"
#include "controls/complexity.h"

#include <gtest/gtest.h>

namespace {

using namespace controls;

TEST(LoadEstimate, termsOfTheKinds)
{
    using namespace complexity;
    const double terms[] = {videoSource(1),
                            videoSource(4),
                            gauge(4, 50),
                            barGraph(50, 60, 20),
                            bitmap(1650, 900, 0, {15, 15}),
                            bitmap(1650, 900, 0, {10, 15}),
                            bitmap(1650, 900, 2, {15, 15}),
                            digitalDisplay(12, 6),
                            textTag(9, 11),
                            trackMap(100, 50, false),
                            trackMap(100, 50, true)};
    const double expected[] = {1.25, 0.65, 0.124, 0.0134, 0.09, 0.135, 0, 0.0864, 0.2079, 0.49, 0.775};
    for (std::size_t i = 0; i < std::size(terms); ++i)
        EXPECT_NEAR(terms[i], expected[i], 1e-9) << i;
    EXPECT_THROW(videoSource(0), common::RunTimeError);
}

TEST(LoadEstimate, asksOverFifteenAndMoreUrgentlyOverTwenty)
{
    const QString question =
        "The designed layout file has %1high complexity and this %2 result in high CPU load on "
        "the hardware device.\nDo you want to continue?";
    const QString high = question.arg("", "may");
    const QString extreme = question.arg("extremely ", "will");
    const std::pair<double, QString> cases[] = {{14.5, {}},   {15.49, {}},      {15.5, high},
                                                {20.5, high}, {20.51, extreme}, {250, extreme}};
    for (const auto &[load, asked] : cases)
        EXPECT_EQ(overloadQuestion(shownLoad(load)).value_or(QString()), asked) << load;
}

} // namespace
