#pragma once

#include <QString>

#include <optional>

namespace recorder {

// Rates of the encoded video, Mbps.
inline constexpr int LowestBitRate = 2;
inline constexpr int HighestBitRate = 12;

// Kbps.
inline constexpr int AudioRate = 128;
int videoRate(int megabitsPerSecond);
int multiplexRate();

// Estimated use of the card in GB per hour, with two decimals.
double usagePerHour(int megabitsPerSecond);
// What fits on a card of this size.
double hoursOnCard(int gigabytes, int megabitsPerSecond);

// What the rate is good for; nothing for a rate that cannot be chosen.
std::optional<QString> bitRateNote(int megabitsPerSecond);
bool isTooHighForDvd(int megabitsPerSecond);

QString bitRateCaption(quint8 megabitsPerSecond);

} // namespace recorder
