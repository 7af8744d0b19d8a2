#include "recorder/bit_rate.h"

#include "common/rounding.h"

namespace recorder {

namespace {

constexpr double Step = 1024; // from K to M, and from M to G
constexpr double BitsPerByte = 8;
constexpr double SecondsPerHour = 3600;
constexpr double MultiplexPerHour = 25; // MB
constexpr int LowestAboveDvd = 7;       // Mbps

const char *quality(int megabitsPerSecond)
{
    switch (megabitsPerSecond) {
    case 2:
    case 3:
        return "Low quality, okay for analysis not for presentation";
    case 4:
        return "Okay quality, recommended for analysis but quite low for DVDs";
    case 5:
        return "Standard quality, recommended for analysis and \"okay\" for DVDs";
    case 6:
        return "Good quality, \"overkill\" for analysis but excellent for DVDs";
    case 7:
    case 8:
    case 9:
        return "High quality, can be only viewed on PC, cannot be used for DVD generation";
    case 10:
    case 11:
    case 12:
        return "Extreme quality, only required when broadcast quality cameras are used, can be only viewed "
               "on PC, cannot be used for DVD generation";
    default:
        return nullptr;
    }
}

} // namespace

int videoRate(int megabitsPerSecond) { return megabitsPerSecond * static_cast<int>(Step); }

int multiplexRate() { return common::toInteger<int>(MultiplexPerHour / SecondsPerHour * Step); }

double usagePerHour(int megabitsPerSecond)
{
    const double video = megabitsPerSecond / BitsPerByte * Step; // KB per second
    const double audio = AudioRate / BitsPerByte;
    const double perHour = (video + audio) * SecondsPerHour / Step + MultiplexPerHour; // MB
    return common::roundHalfEven(perHour / Step * 100) / 100;
}

double hoursOnCard(int gigabytes, int megabitsPerSecond)
{
    return gigabytes / usagePerHour(megabitsPerSecond);
}

std::optional<QString> bitRateNote(int megabitsPerSecond)
{
    const char *text = quality(megabitsPerSecond);
    if (!text)
        return std::nullopt;
    return QStringLiteral("%1 Mbps - %2").arg(megabitsPerSecond).arg(QLatin1String(text));
}

bool isTooHighForDvd(int megabitsPerSecond) { return megabitsPerSecond >= LowestAboveDvd; }

QString bitRateCaption(quint8 megabitsPerSecond)
{
    return QStringLiteral("Bit Rate %1 Mbps").arg(megabitsPerSecond);
}

} // namespace recorder
