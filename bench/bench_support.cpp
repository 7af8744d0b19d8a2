#include "bench_support.h"

#include "platform/file_replace.h"
#include "shell/seed_user_data.h"
#include "variables/definition_file.h"

#include <QApplication>
#include <QDir>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>

namespace bench {

void YesPrompts::message(platform::Icon, const QString &, const QString &text)
{
    qFatal("the program says: %s", qPrintable(text));
}

void choosePlatform()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.warning=false");
}

platform::Folders seededFolders(const QTemporaryDir &root)
{
    const auto folder = [&root](const char *name) {
        QDir(root.path()).mkpath(QLatin1String(name));
        return root.filePath(QLatin1String(name)) + QLatin1Char('/');
    };
    platform::Folders folders;
    folders.program = QStringLiteral(MORVEL_PROGRAM_DIR "/");
    folders.applicationData = folder("data");
    folders.temporary = folder("temporary");
    folders.cache = folder("cache");
    shell::seedUserData(folders, shell::shippedFiles(folders));
    return folders;
}

void showExposed(QWidget &window)
{
    window.show();
    while (!window.windowHandle()->isExposed())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

Program::Program()
{
    m_state.folders = seededFolders(m_root);
    m_state.stamp = platform::systemStamp();
    variables::loadDefinitions(platform::readFile(m_state.folders.variablesFile()), m_state.catalogue);
    recorder::readMessageTable(platform::readFile(m_state.folders.MessagesFile()),
                               m_state.settings.MessageTable);
    m_state.startMessages = m_state.settings.MessageTable;
    m_window = std::make_unique<shell::frmMain>(m_state, m_prompts);
    design().load();
    m_window->refreshFromState();
    m_window->resize(1440, 900);
    showExposed(*m_window);
    m_window->activateWindow();
    QApplication::processEvents();
}

void Program::addControls(int count)
{
    constexpr int Columns = 20;
    constexpr int Rows = 10;                 // then the next layer
    constexpr QPoint Step(30 * 15, 54 * 15); // twips
    for (int i = 0; i < count; ++i) {
        const QPointF place(i % Columns * Step.x(), i / Columns % Rows * Step.y());
        design().addControl(i % 2 == 0 ? controls::ControlType::Gauge : controls::ControlType::BarGraph,
                            place);
    }
    QApplication::processEvents();
}

void Program::takeFonts(const Program &from) const
{
    const QDir fonts(from.m_state.folders.FontFolder());
    const QString here = m_state.folders.FontFolder();
    QDir().mkpath(here);
    for (const QString &name : fonts.entryList(QDir::Files))
        QFile::copy(fonts.filePath(name), here + name);
}

namespace {

constexpr QPoint Grip(30, 12); // within what is dragged

void sendMouse(QWidget &widget, const QWidget &canvas, QEvent::Type type, QPoint point)
{
    const QPoint global = canvas.mapToGlobal(point);
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, widget.mapFromGlobal(global), global, button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

QPoint wayPoint(int step)
{
    constexpr int Steps = 70;
    const int there = step % (2 * Steps);
    const int at = there < Steps ? there : 2 * Steps - there;
    return {8 * at, 6 * at};
}

void startDrag(QWidget &widget, const QWidget &canvas, QPoint place)
{
    sendMouse(widget, canvas, QEvent::MouseButtonPress, place + Grip);
    dragTo(widget, canvas, place + QPoint(20, 20));
}

void dragTo(QWidget &widget, const QWidget &canvas, QPoint place)
{
    sendMouse(widget, canvas, QEvent::MouseMove, place + Grip);
    QApplication::processEvents();
}

bool PaintCounter::eventFilter(QObject *, QEvent *event)
{
    m_paints += event->type() == QEvent::Paint ? 1 : 0;
    return false;
}

void PaintCounter::expect(int steps, benchmark::State &state) const
{
    if (m_paints < steps * 9 / 10) // a real display may join two steps in one
        state.SkipWithError("steps were not painted");
}

double Times::median() const
{
    std::vector<double> sorted = m_seconds;
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    return *middle;
}

double Times::best() const { return *std::min_element(m_seconds.begin(), m_seconds.end()); }

Comparison measureSaves(benchmark::State &state, Program &program,
                        const std::function<void(const QByteArray &)> &peer)
{
    program.files().mnuSaveConfig();
    const QByteArray bytes = platform::readFile(program.savePath());
    Comparison times;
    while (state.KeepRunning()) {
        state.SetIterationTime(times.own.measure([&] { program.files().mnuSaveConfig(); }));
        times.peer.measure([&] { peer(bytes); });
    }
    state.counters["bytes"] = static_cast<double>(bytes.size());
    return times;
}

Comparison measureLoads(benchmark::State &state, Program &writer, const std::function<void()> &peer)
{
    writer.files().mnuSaveConfig();
    Comparison times;
    while (state.KeepRunning()) {
        Program reader;
        reader.takeFonts(writer);
        state.SetIterationTime(times.own.measure([&] {
            reader.files().load(writer.savePath());
            QApplication::processEvents(); // what was loaded is painted
        }));
        times.peer.measure(peer);
        if (reader.design().controls().size() != writer.design().controls().size())
            state.SkipWithError("controls are missing");
    }
    return times;
}

void stateLimit(benchmark::State &state, const Times &own, double milliseconds)
{
    state.counters["best_ms"] = own.best() * 1e3;
    state.counters["median_ms"] = own.median() * 1e3;
    state.counters["limit_ms"] = milliseconds;
    state.SetLabel(own.median() * 1e3 <= milliseconds ? "within the limit" : "OVER THE LIMIT");
}

void statePeer(benchmark::State &state, const Times &own, const Times &peer)
{
    state.counters["peer_ms"] = peer.median() * 1e3;
    state.counters["ratio"] = own.median() / peer.median();
}

} // namespace bench
