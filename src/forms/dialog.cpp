#include "forms/dialog.h"

#include "forms/columns.h"
#include "forms/screen_fit.h"
#include "platform/guards.h"

#include <QDialogButtonBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QSet>

#include <algorithm>

namespace forms {

namespace {

constexpr int CaptionWidth = 120;  // pixels, at least
constexpr int HighestGroups = 690; // pixels; with frame and buttons 760, the room on a small screen
constexpr const char *WidestUnit = "degrees ";

QLabel *makeCaption(const char *text)
{
    auto *label = new QLabel(QString::fromUtf8(text));
    label->setMinimumWidth(CaptionWidth);
    return label;
}

// Where the desktop's order of buttons puts it.
QDialogButtonBox::ButtonRole roleOf(Press press)
{
    switch (press) {
    case Press::Apply:
        return QDialogButtonBox::ActionRole;
    case Press::Accept:
        return QDialogButtonBox::AcceptRole;
    case Press::Cancel:
        break;
    }
    return QDialogButtonBox::RejectRole;
}

// Rows may stand without a group.
void beginRows(QFormLayout *&form, QVBoxLayout &body)
{
    if (form)
        return;
    form = new QFormLayout;
    body.addLayout(form);
}

} // namespace

Dialog::Dialog(const QString &title, const Context &context)
    : QDialog(context.parent), m_context(context), m_across(new QHBoxLayout), m_body(new QVBoxLayout)
{
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(m_across, 1);
    m_across->addLayout(m_body);
}

// A field that loses the focus with the window would still tell of it.
Dialog::~Dialog() { hide(); }

Typed Dialog::typed() const
{
    Typed typed;
    for (const auto &field : m_fields) {
        typed.texts.insert(field->name(), field->text());
        typed.rows.insert(field->name(), field->row());
    }
    return typed;
}

void Dialog::own(std::unique_ptr<Field> field)
{
    react(*field, [this] { refresh(); });
    m_fields.push_back(std::move(field));
}

void Dialog::react(Field &field, std::function<void()> reaction)
{
    field.whenChanged([this, reaction = std::move(reaction)] {
        if (!m_showing)
            reaction();
    });
}

void Dialog::refresh()
{
    for (const auto &follower : m_followers)
        follower();
}

QGroupBox &Dialog::addGroup(const char *title)
{
    auto *group = new QGroupBox(QString::fromUtf8(title));
    m_form = new QFormLayout(group);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_body->addWidget(group);
    m_groups.push_back(group);
    return *group;
}

void Dialog::addRow(Field &field, const char *caption, const char *unit)
{
    beginRows(m_form, *m_body);
    QLabel *label = makeCaption(caption);
    field.setCaption(label);
    if (*unit == '\0') {
        m_form->addRow(label, field.cell());
        return;
    }
    auto *unitLabel = new QLabel(QString::fromUtf8(unit));
    unitLabel->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1String(WidestUnit)));
    auto *row = new QHBoxLayout;
    row->addWidget(field.cell());
    row->addWidget(unitLabel);
    m_form->addRow(label, row);
}

void Dialog::addRow(const char *caption, QLayout *cells)
{
    beginRows(m_form, *m_body);
    m_form->addRow(QString::fromUtf8(caption), cells);
}

void Dialog::addTurns(Field &field, Field &other)
{
    beginRows(m_form, *m_body);
    QLabel *label = makeCaption("");
    field.setCaption(label);
    other.setCaption(label);
    m_form->addRow(label, sideBySide({field.cell(), other.cell()}));
}

void Dialog::showTurn(Field &shown, Field &hidden, const char *caption)
{
    hidden.cell()->hide();
    shown.cell()->show();
    shown.caption()->setText(QString::fromUtf8(caption));
    shown.setCaption(shown.caption());
}

void Dialog::addWide(QWidget *widget)
{
    beginRows(m_form, *m_body);
    m_form->addRow(widget);
}

QPushButton *Dialog::makeButton(const char *name, const char *caption, std::function<void()> pressed)
{
    auto *button = new QPushButton(QString::fromUtf8(caption));
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this,
            [this, pressed = std::move(pressed)] { platform::reportFailures(prompts(), pressed); });
    return button;
}

QLabel &Dialog::addLabel(const char *name, const char *caption)
{
    beginRows(m_form, *m_body);
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    m_form->addRow(new QLabel(QString::fromUtf8(caption)), label);
    return *label;
}

void Dialog::addButtons(const std::vector<Button> &buttons)
{
    auto *box = new QDialogButtonBox;
    bool first = true;
    for (const Button &button : buttons) {
        auto *push = new QPushButton(QString::fromUtf8(button.caption));
        push->setObjectName(QLatin1String(button.name));
        push->setAutoDefault(false);
        push->setDefault(std::exchange(first, false));
        connect(push, &QPushButton::clicked, this, [this, what = button.press] { press(what); });
        box->addButton(push, roleOf(button.press));
    }
    arrangeColumns();
    fitScreen(*this, *m_across);
    layout()->addWidget(box);
    keepMnemonicsUnique();
    setTabs();
}

QPushButton &Dialog::button(const char *name) const { return *findChild<QPushButton *>(QLatin1String(name)); }

void Dialog::arrangeColumns()
{
    std::vector<int> heights;
    for (const QGroupBox *group : m_groups)
        heights.push_back(group->sizeHint().height());
    const std::vector<int> sizes = columnSizes(heights, m_body->spacing(), HighestGroups);
    if (sizes.size() < 2)
        return;
    auto *columns = new QHBoxLayout;
    auto group = m_groups.begin();
    for (const int size : sizes) {
        auto *column = new QVBoxLayout;
        for (int i = 0; i < size; ++i, ++group) {
            m_body->removeWidget(*group);
            column->addWidget(*group);
        }
        column->addStretch();
        columns->addLayout(column);
    }
    m_body->insertLayout(0, columns);
}

// The first caption keeps a mnemonic that several ask for.
void Dialog::keepMnemonicsUnique()
{
    QSet<QKeySequence> taken;
    const auto settle = [&taken](auto *widget) {
        const QKeySequence key = QKeySequence::mnemonic(widget->text());
        if (key.isEmpty())
            return;
        if (taken.contains(key))
            widget->setText(widget->text().remove(QLatin1Char('&')));
        taken.insert(key);
    };
    const QList<QDialogButtonBox *> boxes = findChildren<QDialogButtonBox *>();
    for (const QDialogButtonBox *box : boxes)
        std::ranges::for_each(box->buttons(), settle);
    std::ranges::for_each(findChildren<QLabel *>(), [&](QLabel *label) {
        if (label->buddy())
            settle(label);
    });
    std::ranges::for_each(findChildren<QAbstractButton *>(), [&](QAbstractButton *button) {
        if (!qobject_cast<QDialogButtonBox *>(button->parentWidget()))
            settle(button);
    });
}

// Fields may have been made in another order than they stand in; the buttons come last anyway.
void Dialog::setTabs()
{
    QWidget *last = nullptr;
    const auto next = [&last](QWidget *widget) {
        if (last)
            setTabOrder(last, widget);
        last = widget;
    };
    for (const auto &field : m_fields) {
        next(&field->widget());
        for (auto *beside : field->cell()->findChildren<QAbstractButton *>()) {
            if (beside != &field->widget() && beside->focusPolicy() != Qt::NoFocus)
                next(beside);
        }
    }
}

void Dialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    auto *box = m_fields.empty() ? nullptr : qobject_cast<QLineEdit *>(&m_fields.front()->widget());
    if (box)
        box->selectAll();
}

void Dialog::press(Press press)
{
    if (press == Press::Cancel) {
        reject();
        return;
    }
    platform::reportFailures(prompts(), [&] {
        if (!isSettled())
            return;
        take();
        if (press == Press::Accept)
            accept();
        applied();
    });
}

bool Dialog::isSettled()
{
    while (const auto verdict = validate(typed())) {
        if (!isConfirmed(*verdict) || !correct(verdict->corrections))
            return false;
    }
    return true;
}

bool Dialog::isConfirmed(const Verdict &verdict)
{
    switch (verdict.kind) {
    case Verdict::Kind::Refusal:
        prompts().message(verdict.icon, platform::ProductTitle, verdict.text);
        return false;
    case Verdict::Kind::OkCancel:
        return prompts().confirm(verdict.icon, platform::ProductTitle, verdict.text);
    case Verdict::Kind::Silent:
        return true;
    }
    return false;
}

// Whether a field is another one: a correction that corrects nothing must not be asked for again.
bool Dialog::correct(const QList<Correction> &corrections)
{
    bool different = false;
    for (const Correction &correction : corrections) {
        const auto field = std::ranges::find(m_fields, correction.field,
                                             [](const auto &candidate) { return candidate->name(); });
        if (field == m_fields.end() || (*field)->text() == correction.text)
            continue;
        (*field)->setText(correction.text);
        different = true;
    }
    return different;
}

} // namespace forms
