// The start of the launched program to an idle window, beside an empty main window with a menu: the time to
// the first paint (limit: 1.45 times as long), to the idle loop (1.5 times) and the memory that is the
// process's own share by then (1.8 times). Each start is a process of its own. They run on the platform that
// QT_QPA_PLATFORM names, off-screen when it names none.

#include "bench_support.h"
#include "platform/desktop/appearance.h"
#include "shell/seed_user_data.h"
#include "shell/start_up.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDataStream>
#include <QDir>
#include <QMenuBar>
#include <QTimer>

#include <chrono>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;
using bench::Times;

constexpr const char *RoleVariable = "MORVEL_BENCH_ROLE";
constexpr const char *ReportVariable = "MORVEL_BENCH_REPORT";
constexpr const char *ProgramRole = "program";
constexpr const char *EmptyRole = "empty";

// What a start took; absolute times until the parent has subtracted its own.
struct Start
{
    double paint = 0; // seconds
    double idle = 0;
    double memory = 0; // MB, shared pages by their share
};

double now()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double proportionalMemory()
{
    QFile rollup(QStringLiteral("/proc/self/smaps_rollup"));
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

// Notes the first paint of the window of this name, waits until the event loop has nothing to do for a while,
// reports and ends the process.
class StartObserver final : public QObject
{
public:
    explicit StartObserver(const char *window) : m_window(QLatin1String(window))
    {
        qApp->installEventFilter(this);
        const auto *loop = QAbstractEventDispatcher::instance();
        connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, [this] { m_start.idle = now(); });
        connect(loop, &QAbstractEventDispatcher::awake, this, &StartObserver::wake);
        m_alarm.start(Pause * 2);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (m_start.paint == 0 && event->type() == QEvent::Paint && watched->objectName() == m_window)
            m_start.paint = now();
        return false;
    }

private:
    static constexpr auto Pause = 150ms;

    void wake()
    {
        if (m_start.paint == 0 || now() - m_start.idle < std::chrono::duration<double>(Pause).count())
            return;
        QFile report(qEnvironmentVariable(ReportVariable));
        const bool isOpen = report.open(QIODevice::WriteOnly);
        QDataStream(&report) << m_start.paint << m_start.idle << proportionalMemory();
        report.close();
        _exit(isOpen ? EXIT_SUCCESS : EXIT_FAILURE);
    }

    QString m_window;
    QTimer m_alarm; // wakes a loop that sleeps
    Start m_start;
};

int startProgram(int argc, char **argv)
{
    QApplication application(argc, argv);
    const StartObserver observer("frmInterface");
    const platform::Folders folders = platform::desktopFolders(QStringLiteral(MORVEL_PROGRAM_DIR));
    platform::registerShippedFaces(folders.shippedFaces());
    platform::applyAppearance(application);
    bench::YesPrompts prompts({});
    if (!shell::completeUserData(folders, prompts))
        return EXIT_FAILURE;
    shell::StartUp start({folders, platform::userNumberLocale(), platform::systemStamp(), {}}, prompts);
    start.run();
    return QApplication::exec();
}

int startEmpty(int argc, char **argv)
{
    QApplication application(argc, argv);
    const StartObserver observer("empty");
    QMainWindow window;
    window.setObjectName(QStringLiteral("empty"));
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
    window.showMaximized();
    return QApplication::exec();
}

// A user's folders.
class Stage
{
public:
    Stage()
    {
        QFile::remove(bench::seededFolders(m_root).defaultLayoutFile()); // a start into an empty design
        qputenv("XDG_DATA_HOME", m_root.filePath(QStringLiteral("data")).toLocal8Bit());
        qputenv("XDG_CACHE_HOME", m_root.filePath(QStringLiteral("cache")).toLocal8Bit());
        qputenv(ReportVariable, report().toLocal8Bit());
    }

    // Nothing when the start came to no good end.
    std::optional<Start> run(const char *role) const
    {
        QFile::remove(report());
        qputenv(RoleVariable, role);
        QByteArray path("/proc/self/exe");
        char *const arguments[] = {path.data(), nullptr};
        pid_t child = 0;
        int status = 0;
        const double begin = now();
        if (posix_spawn(&child, path.constData(), nullptr, nullptr, arguments, environ) != 0 ||
            waitpid(child, &status, 0) != child || status != 0)
            return {};
        QFile file(report());
        if (!file.open(QIODevice::ReadOnly))
            return {};
        Start start;
        QDataStream(&file) >> start.paint >> start.idle >> start.memory;
        return Start{start.paint - begin, start.idle - begin, start.memory};
    }

private:
    QString report() const { return m_root.filePath(QStringLiteral("report")); }

    QTemporaryDir m_root;
};

// One start of the program beside each start of the empty window.
void compareStarts(benchmark::State &state, double Start::*figure, double limit)
{
    const Stage stage;
    stage.run(ProgramRole); // the disk is warm from here on
    stage.run(EmptyRole);
    Times own;
    Times peer;
    while (state.KeepRunning()) {
        const auto program = stage.run(ProgramRole);
        const auto other = stage.run(EmptyRole);
        if (!program || !other)
            return state.SkipWithError("a start came to no good end");
        state.SetIterationTime((*program).paint);
        own.add((*program).*figure);
        peer.add((*other).*figure);
    }
    state.counters["own"] = own.median();
    state.counters["peer"] = peer.median();
    state.counters["ratio"] = own.median() / peer.median();
    state.SetLabel(own.median() <= limit * peer.median() ? "within the limit" : "OVER THE LIMIT");
}

void firstPaint(benchmark::State &state) { compareStarts(state, &Start::paint, 1.45); }

void idleLoop(benchmark::State &state) { compareStarts(state, &Start::idle, 1.5); }

void memory(benchmark::State &state) { compareStarts(state, &Start::memory, 1.8); }

void rounds(benchmark::internal::Benchmark *benchmark)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);
}

BENCHMARK(firstPaint)->Apply(rounds);
BENCHMARK(idleLoop)->Apply(rounds);
BENCHMARK(memory)->Apply(rounds);

} // namespace

int main(int argc, char **argv)
{
    bench::choosePlatform();
    const QByteArray role = qgetenv(RoleVariable);
    if (role == ProgramRole)
        return startProgram(argc, argv);
    if (role == EmptyRole)
        return startEmpty(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
