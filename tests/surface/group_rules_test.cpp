#include "surface/alignment.h"
#include "surface/clipboard.h"

#include <gtest/gtest.h>

namespace {

using namespace surface;

using controls::Box;

TEST(Group, offsetsAreFromTheSmallestCorner)
{
    using Corners = std::vector<QPointF>;
    const std::pair<Corners, Corners> cases[] = {
        {{}, {}},
        {{{-150, 90}}, {{0, 0}}},
        {{{300, 90}, {-150, 450}, {75, 75}}, {{450, 15}, {0, 375}, {225, 0}}}, // no control stands there
    };
    for (const auto &[corners, offsets] : cases)
        EXPECT_EQ(offsetsToSmallest(corners), offsets);
}

QString textOf(const QList<Box> &boxes)
{
    QStringList corners;
    for (const Box &box : boxes)
        corners.append(QString("%1,%2").arg(box.Left).arg(box.Top));
    return corners.join(' ');
}

const QList<Box> Three{{300, 900, 600, 150}, {0, 150, 300, 450}, {750, 0, 150, 300}};

TEST(Group, edgesMeetAtTheOutermostOne)
{
    const std::pair<Qt::Edge, const char *> cases[] = {{Qt::LeftEdge, "0,900 0,150 0,0"},
                                                       {Qt::RightEdge, "300,900 600,150 750,0"},
                                                       {Qt::TopEdge, "300,0 0,0 750,0"},
                                                       {Qt::BottomEdge, "300,900 0,600 750,750"}};
    for (const auto &[edge, places] : cases)
        EXPECT_EQ(textOf(aligned(Three, edge)).toStdString(), places);
    EXPECT_TRUE(aligned({}, Qt::LeftEdge).isEmpty());
}

TEST(Group, gapsBecomeEqualBetweenTheOutermost)
{
    const std::tuple<QList<Box>, Qt::Orientation, const char *> cases[] = {
        {Three, Qt::Horizontal, "225,900 0,150 750,0"}, // they overlap by 75
        {Three, Qt::Vertical, "300,900 0,375 750,0"},
        {Three.mid(0, 2), Qt::Vertical, "300,900 0,150"},
    };
    for (const auto &[boxes, along, places] : cases)
        EXPECT_EQ(textOf(spaced(boxes, along)).toStdString(), places);
}

} // namespace
