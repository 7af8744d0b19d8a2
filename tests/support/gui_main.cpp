#include "platform/desktop/appearance.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("MORVEL_TEST_SCALED"))
        qputenv("QT_SCALE_FACTOR", "1");
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    platform::applyAppearance(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
