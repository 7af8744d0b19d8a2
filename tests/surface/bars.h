#pragma once

#include "support/design_window.h"

namespace test {

// Two bar graphs on a canvas, 130 pixels by 30.
struct Bars : testing::Test
{
    static constexpr QPoint Middle{65, 15};

    DesignWindow w;
    controls::BarGraph &one = w.addBar(100, 100);
    controls::BarGraph &two = w.addBar(150, 180);

    void ctrlClick(const controls::OverlayControl &control)
    {
        click(w, placeOf(control) + Middle, Qt::ControlModifier);
    }
    // Of all controls, in the order of the layout.
    QList<QPoint> places()
    {
        QList<QPoint> places;
        for (const controls::OverlayControl *control : w.design().controls())
            places.append(placeOf(*control));
        return places;
    }
};

} // namespace test
