#pragma once

#include <QString>

namespace platform {

// What a long task shows while it runs. Between begin() and end() the display is on top of the window; a step
// within another one takes its place for the time being.
class Progress
{
public:
    virtual ~Progress() = default;
    virtual void begin(const QString &title) = 0;
    virtual void setValue(int percent) = 0; // 0 to 100
    virtual void end() = 0;
};

// Shows `progress` under a title until the scope is left, on every way out.
class ProgressScope
{
public:
    ProgressScope(Progress &progress, const QString &title) : m_progress(progress) { progress.begin(title); }
    ~ProgressScope() { m_progress.end(); }
    Q_DISABLE_COPY_MOVE(ProgressScope)

    // `done` of `total` steps, in the stretch of the bar that begins at `from`.
    void advance(int from, int length, qsizetype done, qsizetype total)
    {
        m_progress.setValue(from + static_cast<int>(done * length / qMax<qsizetype>(total, 1)));
    }
    void setValue(int percent) { m_progress.setValue(percent); }

private:
    Progress &m_progress;
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
