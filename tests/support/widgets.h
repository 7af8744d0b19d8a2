#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QtTest/QtTest>

#include <functional>
#include <gtest/gtest.h>

namespace test {

// The child of this type and name.
template <typename Child>
Child &child(const QObject &parent, const char *name)
{
    return *parent.findChild<Child *>(QLatin1String(name));
}

// Shows a window and waits until the keys go there.
inline void show(QWidget &window)
{
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

inline void press(const QWidget &in, const char *button) { child<QAbstractButton>(in, button).click(); }

// Does this in the modal window that opens next.
inline void whenOpened(const std::function<void(QWidget &)> &inside)
{
    QTimer::singleShot(0, [inside] {
        QWidget *window = QApplication::activeModalWidget();
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        inside(*window);
    });
}

// Presses `from` (pixels within the widget), goes through the points of `way` (pixels from the press) and
// releases at the last one.
inline void drag(QWidget &widget, QPoint from, const QList<QPoint> &way)
{
    const QPoint press = widget.mapToGlobal(from);
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    for (const QPoint &step : way)
        QTest::mouseMove(&widget, widget.mapFromGlobal(press + step));
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, widget.mapFromGlobal(press + way.last()));
}

inline void click(QWidget &widget, QPoint at, Qt::KeyboardModifiers modifiers = {},
                  Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mouseClick(&widget, button, modifiers, at);
}

} // namespace test
