#pragma once

#include "controls/bar_graph/bar_graph.h"
#include "controls/digital_display/digital_display.h"
#include "controls/gauge/gauge.h"
#include "controls/text_tag/text_tag.h"
#include "platform/file_replace.h"
#include "platform/settings_keys.h"
#include "shell/frm_main.h"
#include "support/test_world.h"
#include "support/widgets.h"
#include "surface/canvas.h"

#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QToolBar>

namespace test {

inline const QColor PalGround(0, 128, 0);
inline const QColor NtscGround(0, 0, 160);

// A main window over a world of its own, on plain backgrounds. A spacing of 0 means neither dots nor
// snapping.
struct DesignWindow
{
    explicit DesignWindow(int gridSpacing = 0)
    {
        for (const auto &[name, height, colour] :
             {std::tuple("PALVIDEOBackImg.bmp", 576, PalGround), {"NTSCVIDEOBackImg.bmp", 480, NtscGround}}) {
            QImage ground(720, height, QImage::Format_RGB32);
            ground.fill(colour);
            ground.save(world.state.folders.inUserData(name));
        }
        platform::SettingsFile settings(world.state.folders.ConfigFile());
        platform::keys::GridSize.write(settings, gridSpacing);
        settings.save();
        window.design().load();
        window.refreshFromState();
        window.resize(1400, 900);
        show(window);
    }

    surface::frmInterface &design() { return window.design(); }
    surface::Canvas &canvas() { return *window.findChild<surface::Canvas *>(); }
    operator QWidget &() { return canvas(); } // takes mouse and keys
    // What the canvas shows at one of its pixels.
    QColor shown(QPoint at) { return canvas().grab().toImage().pixelColor(at); }
    QString text(const char *label)
    {
        return window.findChild<QWidget *>(QLatin1String(label))->property("text").toString();
    }
    QAction &action(const char *name)
    {
        auto *found = window.findChild<QAction *>(QLatin1String(name));
        for (QAction *menu : window.menuBar()->actions())
            found = found ? found : menu->menu()->findChild<QAction *>(QLatin1String(name));
        return *found;
    }
    void run(const char *name) { action(name).trigger(); }
    void pressToolButton(const char *name)
    {
        QTest::mouseClick(window.findChild<QToolBar *>()->widgetForAction(&action(name)), Qt::LeftButton);
    }

    // New controls with their corner at this canvas pixel.
    auto &addGauge(int x, int y) { return add<controls::Gauge>(Type::Gauge, x, y); }
    auto &addBar(int x, int y) { return add<controls::BarGraph>(Type::BarGraph, x, y); }
    auto &addDisplay(int x, int y) { return add<controls::DigitalDisplay>(Type::DigitalDisplay, x, y); }
    auto &addTag(int x, int y) { return add<controls::TextTag>(Type::TextTag, x, y); }

    World world;
    shell::frmMain window{world.state, world.prompts};

private:
    using Type = controls::ControlType;

    template <typename Control>
    Control &add(Type type, int x, int y)
    {
        design().addControl(type, QPointF(x * 15, y * 15));
        return static_cast<Control &>(*design().controls().last());
    }
};

// A layout file with this many bar graphs.
inline void writeLayout(const QString &path, int bars)
{
    DesignWindow w;
    for (int i = 0; i < bars; ++i)
        w.addBar(10 * i, 40 * i);
    w.window.files().saveWorkspace();
    platform::replaceFile(path, platform::readFile(w.world.state.folders.workspaceFile()));
}

// The corner of a control, canvas pixels.
inline QPoint placeOf(const controls::OverlayControl &control) { return control.outerRect().topLeft(); }

inline void press(DesignWindow &w, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(&w.canvas(), key, modifiers);
}

// Drags data over the canvas and lets it go there when the canvas takes it.
inline bool drop(surface::Canvas &canvas, QPoint at, const QString &format, const QByteArray &data)
{
    QMimeData carried;
    carried.setData(format, data);
    QDragEnterEvent enter(at, Qt::CopyAction, &carried, Qt::LeftButton, {});
    QApplication::sendEvent(&canvas, &enter);
    QDragMoveEvent over(at, Qt::CopyAction, &carried, Qt::LeftButton, {});
    QApplication::sendEvent(&canvas, &over);
    QDropEvent letGo(at, Qt::CopyAction, &carried, Qt::LeftButton, {});
    if (over.isAccepted())
        QApplication::sendEvent(&canvas, &letGo);
    return over.isAccepted();
}

// Runs the open popup menu's entry of this name.
inline void choose(const QString &name)
{
    QWidget *popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    auto *own = popup->findChild<QAction *>(name);
    popup->close();
    (own ? own : QApplication::activeWindow()->findChild<QAction *>(name))->trigger();
}

inline qint32 whole(const controls::OverlayControl &control, const char *reader)
{
    return std::get<qint32>(control.read(reader));
}

} // namespace test

inline void PrintTo(const QString &text, std::ostream *out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QColor &colour, std::ostream *out) { *out << colour.name().toStdString(); }
