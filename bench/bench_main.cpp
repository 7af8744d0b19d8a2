// For programs with windows: they are shown off-screen, in the tool's own look.

#include "bench_support.h"
#include "platform/desktop/appearance.h"

#include <QApplication>

int main(int argc, char **argv)
{
    bench::choosePlatform();
    QApplication application(argc, argv);
    platform::applyAppearance(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
