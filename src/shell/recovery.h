#pragma once

#include "shell/file_commands.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace shell {

// Keeps the recovery file up to date with the design: after each finished change, from the event loop, at
// most once a second and for at most a tenth of the time. A write that fails is passed over, the next change
// tries again.
class Recovery final : public QObject
{
public:
    explicit Recovery(FileCommands &files);

    // Before this nothing is written: what an earlier run left is still to be asked about.
    void begin() { m_begun = true; }
    void noteChange();
    // At the end of the run. The file goes when the design lies somewhere else.
    void end(bool designIsSafe);

private:
    void write();

    FileCommands &m_files;
    QTimer m_timer;
    QElapsedTimer m_sinceWrite;
    qint64 m_pause = 0; // milliseconds from one write to the next
    bool m_begun = false;
};

} // namespace shell
