#pragma once

#include <QString>

namespace platform {

// What a long task shows while it runs. Between begin() and end() the display is on top of the window.
class Progress
{
public:
    virtual ~Progress() = default;
    virtual void begin(const QString &title) = 0;
    virtual void setValue(int percent) = 0; // 0 to 100
    virtual void end() = 0;
};

// For tasks that show nothing.
class NoProgress final : public Progress
{
public:
    void begin(const QString &) override {}
    void setValue(int) override {}
    void end() override {}
};

} // namespace platform
