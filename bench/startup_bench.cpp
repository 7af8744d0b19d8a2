// From the start of the process to the first paint of the design window, beside an empty main window with a
// menu. Limit: twice as long. Each start is a process of its own that ends at that paint. It runs on the
// platform that QT_QPA_PLATFORM names, off-screen when it names none.

#include "bench_support.h"
#include "platform/desktop/appearance.h"
#include "shell/start_up.h"

#include <QApplication>
#include <QMenuBar>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using bench::Times;

constexpr double LimitRatio = 2;
constexpr const char *ProgramStart = "--child-program";
constexpr const char *EmptyStart = "--child-empty";
constexpr const char *FolderVariable = "MORVEL_BENCH_FOLDER";

// Ends the process when a widget of this name is painted.
class EndAtPaint final : public QObject
{
public:
    explicit EndAtPaint(const char *name) : m_name(QLatin1String(name)) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == m_name)
            _exit(EXIT_SUCCESS);
        return false;
    }

private:
    QString m_name;
};

int startProgram(int argc, char **argv)
{
    QApplication application(argc, argv);
    const EndAtPaint end("frmInterface");
    platform::applyAppearance(application);
    bench::YesPrompts prompts({});
    const QString root = qEnvironmentVariable(FolderVariable);
    const platform::Folders folders{QStringLiteral(MORVEL_PROGRAM_DIR "/"), root + QStringLiteral("/data/"),
                                    root + QStringLiteral("/temporary/"), root + QStringLiteral("/cache/")};
    shell::StartUp start({folders, platform::userNumberLocale(), platform::systemStamp(), {}}, prompts);
    start.run();
    return QApplication::exec();
}

int startEmpty(int argc, char **argv)
{
    QApplication application(argc, argv);
    const EndAtPaint end("empty");
    QMainWindow window;
    window.setObjectName(QStringLiteral("empty"));
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
    window.showMaximized();
    return QApplication::exec();
}

// Runs this program as one of its children and waits for its end.
bool runChild(const char *role)
{
    char self[] = "/proc/self/exe";
    char *const arguments[] = {self, const_cast<char *>(role), nullptr};
    pid_t child = 0;
    int status = 0;
    return posix_spawn(&child, self, nullptr, nullptr, arguments, environ) == 0 &&
           waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

void startToFirstPaint(benchmark::State &state)
{
    const QTemporaryDir root;
    bench::seededFolders(root);
    qputenv(FolderVariable, root.path().toLocal8Bit());
    bool painted = runChild(ProgramStart) && runChild(EmptyStart); // the disk is warm from here on
    Times own;
    Times peer;
    for (auto _ : state) {
        state.SetIterationTime(own.measure([&] { painted = painted && runChild(ProgramStart); }));
        peer.measure([&] { painted = painted && runChild(EmptyStart); });
    }
    if (!painted)
        state.SkipWithError("a start came to no good end");
    bench::stateLimit(state, own, LimitRatio * peer.median() * 1e3);
    bench::statePeer(state, own, peer);
}

BENCHMARK(startToFirstPaint)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);

} // namespace

int main(int argc, char **argv)
{
    bench::choosePlatform();
    const QByteArray role = argc > 1 ? argv[1] : "";
    if (role == ProgramStart)
        return startProgram(argc, argv);
    if (role == EmptyStart)
        return startEmpty(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
