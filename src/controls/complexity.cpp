#include "controls/complexity.h"

#include "common/rounding.h"
#include "controls/geometry.h"

#include <cmath>

namespace controls {

using namespace Qt::StringLiterals;

namespace complexity {

double videoSource(double divisor)
{
    if (divisor == 0)
        throw common::RunTimeError(u"Division by zero"_s);
    return 0.8 / divisor + 0.45;
}

double gauge(double pointerWidth, double pointerLength) { return pointerWidth * pointerLength * 0.00062; }

double barGraph(double start, double end, double barWidth)
{
    return std::fabs(start - end) * barWidth * 0.000067;
}

double bitmap(double outerWidth, double outerHeight, double variable, const platform::Screen &screen)
{
    if (variable != 0)
        return 0;
    constexpr double Frames = BothFrames;
    const QPointF inner = screen.toPixels(QPointF(outerWidth - Frames, outerHeight - Frames));
    return inner.x() * inner.y() * 0.000018;
}

double digitalDisplay(double fontSize, qsizetype textLength)
{
    return fontSize * static_cast<double>(textLength) * 0.0012;
}

double textTag(double fontSize, qsizetype textLength)
{
    return fontSize * static_cast<double>(textLength) * 0.0021;
}

double trackMap(double width, double height, bool mapShown)
{
    return width * height * (mapShown ? 0.000155 : 0.000098);
}

} // namespace complexity

int shownLoad(double complexity) { return common::toIntegerClamped<int>(complexity); }

std::optional<QString> overloadQuestion(int load)
{
    constexpr int HighAbove = 15;
    constexpr int ExtremelyHighAbove = 20;
    if (load <= HighAbove)
        return std::nullopt;
    const QString question =
        load > ExtremelyHighAbove
            ? u"The designed layout file has extremely high complexity and this will result in high CPU "
              "load on the hardware device."_s
            : u"The designed layout file has high complexity and this may result in high CPU load on the "
              "hardware device."_s;
    return question + u"\nDo you want to continue?"_s;
}

} // namespace controls
