#pragma once

#include "forms/field.h"
#include "platform/locale.h"

#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <memory>
#include <utility>
#include <vector>

namespace forms {

// What a dialog needs of the program.
struct Context
{
    platform::Prompts &prompts;
    platform::NumberLocale locale;
    QWidget *parent = nullptr;
};

// What a button does: writes and leaves the dialog open, writes and closes it, or closes it.
enum class Press { Apply, Accept, Cancel };

struct Button
{
    const char *name;
    const char *caption;
    Press press;
};

inline std::vector<Button> okAndCancel()
{
    return {{"cmdOk", "&OK", Press::Accept}, {"cmdCancel", "&Cancel", Press::Cancel}};
}
// An Apply that closes.
inline std::vector<Button> applyAndCancel()
{
    return {{"cmdApply", "&Apply", Press::Accept}, {"cmdCancel", "&Cancel", Press::Cancel}};
}

// A dialog of titled groups with rows of fields, and buttons below. A press of Apply or OK asks the rules,
// then converts and sets the values; a text that does not fit its type ends it before anything is written.
// Tab order, buddies and accessible names follow the rows, and no two captions share a mnemonic. Groups that
// would make it too high stand in several columns.
class Dialog : public QDialog
{
    Q_OBJECT

public:
    ~Dialog() override;

    // What stands in the fields, for the rules.
    Typed typed() const;

protected:
    Dialog(const QString &title, const Context &context);

    const Context &context() const { return m_context; }
    platform::Prompts &prompts() const { return m_context.prompts; }
    const QString &decimalMark() const { return m_context.locale.decimalSeparator; }

    // A field of its own, without a row: for a place in another layout, or for addRow().
    template <typename F, typename... Arguments>
    F &add(Arguments &&...arguments)
    {
        auto field = std::make_unique<F>(std::forward<Arguments>(arguments)...);
        F &added = *field;
        own(std::move(field));
        return added;
    }
    // A titled group; rows are added to the last one.
    QGroupBox &addGroup(const char *title);
    void addRow(Field &field, const char *caption, const char *unit = "");
    void addRow(const char *caption, QLayout *cells);
    // Two fields in one row with one caption, of which one shows at a time.
    void addTurns(Field &field, Field &other);
    static void showTurn(Field &shown, Field &hidden, const char *caption);
    // A widget over the whole width of the group.
    void addWide(QWidget *widget);
    // A button that does something else than close the dialog; it belongs where it is put.
    QPushButton *makeButton(const char *name, const char *caption, std::function<void()> pressed);
    // A row with a text that the program shows.
    QLabel &addLabel(const char *name, const char *caption);
    // The layout that the groups stand in.
    QVBoxLayout &body() const { return *m_body; }
    // To the right of the groups; takes the room that is left.
    void addBeside(QWidget *widget) { m_across->addWidget(widget, 1); }
    // A dialog has the size of what stands in it unless the user may change it.
    void makeResizable() { layout()->setSizeConstraint(QLayout::SetDefaultConstraint); }

    // Derives what shows and is enabled from the fields: runs once the values are shown and after each
    // change.
    void follow(std::function<void()> follower) { m_followers.push_back(std::move(follower)); }
    void refresh();
    // Runs after each change of the field that is not the program's own.
    void react(Field &field, std::function<void()> reaction);
    // The last step of a constructor; the first button is the default one.
    void addButtons(const std::vector<Button> &buttons);
    QPushButton &button(const char *name) const;

    // What stands in the first box can be typed over.
    void showEvent(QShowEvent *event) override;
    // The first verdict that applies; nothing when all is well.
    virtual std::optional<Verdict> validate(const Typed &) const { return std::nullopt; }
    // Converts every field and only then sets the values. Throws RunTimeError when one does not fit.
    virtual void take() = 0;
    // After a dialog that closes has gone, or an Apply has been made.
    virtual void applied() {}

    // While one lives, changes of the fields are the program's own.
    class Quiet
    {
    public:
        explicit Quiet(Dialog &dialog) : m_dialog(dialog), m_before(std::exchange(dialog.m_showing, true)) {}
        ~Quiet() { m_dialog.m_showing = m_before; }
        Q_DISABLE_COPY_MOVE(Quiet)

    private:
        Dialog &m_dialog;
        bool m_before;
    };

private:
    void own(std::unique_ptr<Field> field);
    void press(Press press);
    bool isSettled();
    bool isConfirmed(const Verdict &verdict);
    bool correct(const QList<Correction> &corrections);
    void arrangeColumns();
    void keepMnemonicsUnique();
    void setTabs();

    Context m_context;
    std::vector<std::unique_ptr<Field>> m_fields;
    std::vector<std::function<void()>> m_followers;
    QHBoxLayout *m_across;
    QVBoxLayout *m_body;
    std::vector<QGroupBox *> m_groups;
    QFormLayout *m_form = nullptr;
    bool m_showing = false;
};

} // namespace forms
