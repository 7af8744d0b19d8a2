#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

namespace platform {

// What a saved layout is stamped with: the clock, the logged-on user and the computer's network name.
struct Stamp
{
    std::function<QDateTime()> now;
    QString userName;
    QString computerName;
};

Stamp systemStamp();

} // namespace platform
