#pragma once

#include "support/design_window.h"

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include <memory>

// Driving a property dialog by its fields' names.
namespace test {

inline QLineEdit &box(QDialog &dialog, const QString &name)
{
    return *dialog.findChild<QLineEdit *>("txt" + name);
}
inline QComboBox &list(QDialog &dialog, const char *name) { return child<QComboBox>(dialog, name); }

// What the text boxes show, by name: "Max=160 Min=0".
inline QString shown(QDialog &dialog)
{
    QStringList texts;
    for (const QLineEdit *field : dialog.findChildren<QLineEdit *>())
        texts.append(field->objectName().mid(3) + '=' + field->text());
    texts.sort();
    return texts.join(' ');
}

// Types texts that are written in the same way.
inline void type(QDialog &dialog, const QString &texts)
{
    for (const QString &text : texts.split(' ', Qt::SkipEmptyParts)) {
        QLineEdit &field = box(dialog, text.section('=', 0, 0));
        field.selectAll();
        QTest::keyClicks(&field, text.section('=', 1));
    }
}

// A control in a window of its own, with its corner at this canvas pixel.
template <typename Dialog, typename Control, controls::ControlType Type, int X = 100, int Y = 200>
struct Properties : testing::Test
{
    Control &add()
    {
        w.design().addControl(Type, QPointF(X * 15, Y * 15));
        return static_cast<Control &>(*w.design().controls().last());
    }

    // A dialog in which these texts were typed and the button was pressed.
    std::unique_ptr<Dialog> pressed(const char *button, const QString &texts)
    {
        auto dialog = std::make_unique<Dialog>(control);
        dialog->show();
        type(*dialog, texts);
        press(*dialog, button);
        return dialog;
    }

    struct Refusal
    {
        const char *texts;
        QString message;
        platform::Icon icon = platform::Icon::Information;
    };

    // An empty message is the general one. Nothing may be written.
    void expectRefusals(const char *button, std::initializer_list<Refusal> refusals)
    {
        const QStringList before = control.Serialise();
        const controls::Box place = control.box();
        for (const auto &[texts, message, icon] : refusals) {
            SCOPED_TRACE(texts);
            w.world.prompts.expectMessage(message);
            EXPECT_TRUE(pressed(button, texts)->isVisible());
            EXPECT_EQ(w.world.prompts.shown().back().icon,
                      message.isNull() ? platform::Icon::Critical : icon);
            EXPECT_EQ(control.Serialise(), before);
            EXPECT_EQ(control.box(), place);
        }
    }

    DesignWindow w;
    Control &control = add();
};

} // namespace test
