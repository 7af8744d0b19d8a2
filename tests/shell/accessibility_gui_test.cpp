// Every window and dialog that a command, a control or a button opens can be used from the keyboard and by
// accessibility tools.

#include "graphics/dialogs/frm_font_gen.h"
#include "shell/frm_start_splash.h"
#include "support/design_window.h"
#include "variables/editors/variable_editors.h"

#include <QAccessible>
#include <QDialog>
#include <QGroupBox>
#include <QPointer>

namespace {

// The key after the "&"; null when there is none.
QChar mnemonicOf(const QString &caption)
{
    const QKeySequence keys = QKeySequence::mnemonic(caption);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key()).toUpper();
}

// Parts of a field that answer for themselves.
bool isPart(const QWidget &widget)
{
    const QString name = widget.objectName();
    return name.startsWith("qt_") || widget.parentWidget()->inherits("QComboBox") ||
           widget.inherits("QScrollBar");
}

class Walk
{
public:
    QStringList faults;
    QSet<QString> visited; // titles

    // Does this, and walks through the dialogs that open meanwhile.
    void open(const std::function<void()> &action)
    {
        const QWidget *before = QApplication::activeModalWidget();
        QPointer<QWidget> inspected;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget *opened = QApplication::activeModalWidget();
            if (!opened || opened == before)
                return;
            if (inspected != opened) {
                inspected = opened;
                inspect(*opened);
                pressButtons(*opened);
            }
            qobject_cast<QDialog *>(opened)->reject();
        });
        timer.start(1);
        action();
    }

    void inspect(const QWidget &window)
    {
        visited.insert(window.windowTitle());
        QSet<QChar> used;
        const auto use = [&](const QString &caption) {
            const QChar key = mnemonicOf(caption);
            if (!key.isNull() && used.contains(key))
                fault(window, caption, "its mnemonic is used twice");
            used.insert(key);
        };
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            if (!widget->isVisibleTo(&window) || widget->window() != &window)
                continue;
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *button = qobject_cast<const QAbstractButton *>(widget);
            const auto *group = qobject_cast<const QGroupBox *>(widget);
            if (label && !mnemonicOf(label->text()).isNull() && !label->buddy())
                fault(window, label->text(), "it has no buddy");
            if (label || button || group)
                use(label ? label->text() : button ? button->text() : group->title());
            if (widget->focusPolicy() & Qt::TabFocus && !isPart(*widget) && nameOf(*widget).isEmpty())
                fault(window, QString(widget->metaObject()->className()) + ' ' + widget->objectName(),
                      "it has no accessible name");
        }
    }

    void inspectMenu(const QString &name, const QList<QAction *> &entries)
    {
        QSet<QChar> used;
        for (const QAction *entry : entries) {
            const QChar key = mnemonicOf(entry->text());
            if (!key.isNull() && used.contains(key))
                faults.append(name + ": " + entry->text() + ": its mnemonic is used twice");
            used.insert(key);
        }
    }

private:
    static QString nameOf(const QWidget &widget)
    {
        return QAccessible::queryAccessibleInterface(const_cast<QWidget *>(&widget))->text(QAccessible::Name);
    }
    void fault(const QWidget &window, const QString &what, const char *why)
    {
        faults.append(QString("%1: %2: %3").arg(window.windowTitle(), what, why));
    }
    // First what enables or shows others, then what opens others.
    void pressButtons(QWidget &dialog)
    {
        static const QStringList Ends{"cmdOk",   "cmdApply", "cmdAdd",   "cmdCancel",
                                      "cmdExit", "OkayCmd",  "CancelCmd"};
        for (auto *button : dialog.findChildren<QAbstractButton *>()) {
            if (button->isCheckable() && button->isEnabled())
                button->click();
        }
        inspect(dialog);
        for (auto *button : dialog.findChildren<QPushButton *>()) {
            if (button->isEnabled() && dialog.isVisible() && !Ends.contains(button->objectName()))
                open([button] { button->click(); });
        }
    }
};

TEST(Accessibility, EveryWindowHasNamesBuddiesAndMnemonicsOfItsOwn)
{
    test::World world;
    world.addVariable(6001, "Mine", qint32(variables::VariableGroup::UserDefined));
    platform::SilentPrompts prompts;
    shell::frmMain window(world.state, prompts);
    window.design().load();
    test::show(window);
    Walk walk;
    walk.inspect(window);
    walk.inspectMenu("menu bar", window.menuBar()->actions());
    for (QWidget *widget : QApplication::allWidgets()) {
        if (auto *menu = qobject_cast<QMenu *>(widget))
            walk.inspectMenu(menu->objectName(), menu->actions());
    }
    walk.inspect(shell::frmStartSplash(world.state.folders, &window)); // runs events before it is modal
    for (const controls::Family &family : controls::families()) {
        walk.open([&] {
            window.design().addControl(family.type, {1500, 1500});
            window.design().pressKey(Qt::Key_Return);
        });
    }
    for (const shell::Command &command : shell::commands()) {
        const QString name = command.name;
        if (!name.isEmpty() && name != "mnuExit" && name != "mnuAbout")
            walk.open([&] { window.findChild<QAction *>(name)->trigger(); });
    }
    variables::VariableEditors editors(world.state.catalogue, prompts, world.state.locale);
    walk.open([&] { editors.editTransformation(6001, &window); });
    walk.open([&] { editors.editFilter(5, &window); });
    walk.open([&] { editors.editCalculus(5, &window); });
    const forms::Context context{prompts, world.state.locale, &window};
    walk.open([&] { graphics::frmFontGen(world.state.fonts, {}, context).exec(); });
    EXPECT_EQ(walk.faults.join('\n'), "");
    EXPECT_GE(walk.visited.size(), 19); // it got where it should
}

} // namespace
