#include "controls/property_dialog.h"

#include "common/number_text.h"
#include "platform/guards.h"
#include "common/number_parser.h"
#include "forms/numeric_keys.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>

namespace controls {

namespace {

constexpr double AlphaOpaque = 255;
constexpr double PercentFull = 100;
constexpr quint32 StandardColour = 0x0000FF; // red

} // namespace

QString alphaPercentText(quint8 alpha)
{
    return QString::number(common::toInteger<int>(alpha * PercentFull / AlphaOpaque));
}

quint8 alphaFromPercent(const QString &percent, quint8 stored)
{
    if (percent == alphaPercentText(stored))
        return stored;
    return common::toInteger<quint8>(common::parseNumber(percent) * AlphaOpaque / PercentFull);
}

ColourSwatch::ColourSwatch(platform::Prompts &prompts)
{
    setFixedSize(72, 24);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::clicked, this, [this, &prompts] {
        if (const auto chosen = prompts.colour(toQColor(m_colour).rgb())) {
            const QColor colour = QColor::fromRgb(*chosen);
            setColour(static_cast<quint32>(colour.red() | colour.green() << 8 | colour.blue() << 16));
        }
    });
}

void ColourSwatch::setColour(quint32 packed)
{
    m_colour = packed;
    update();
}

void ColourSwatch::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    QPainter painter(this);
    QColor colour = toQColor(m_colour);
    colour.setAlphaF(isEnabled() ? 1.0F : 0.35F);
    painter.fillRect(rect().adjusted(4, 4, -4, -4), colour);
}

PropertyDialog::PropertyDialog(OverlayControl &control, const QString &title, const char *applyName,
                               const char *cancelName)
    : QDialog(control.window()), m_control(control), m_apply(new QPushButton(QStringLiteral("&Apply"))),
      m_cancel(new QPushButton(QStringLiteral("&Cancel")))
{
    setWindowTitle(title);
    auto *layout = new QVBoxLayout(this);
    m_groups = new QVBoxLayout;
    layout->addLayout(m_groups);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_apply->setObjectName(QLatin1String(applyName));
    m_apply->setDefault(true);
    m_cancel->setObjectName(QLatin1String(cancelName));
    connect(m_apply, &QPushButton::clicked, this, &PropertyDialog::apply);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void PropertyDialog::addGroup(const QString &title)
{
    auto *box = new QGroupBox(title);
    m_form = new QFormLayout(box);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_groups->addWidget(box);
}

void PropertyDialog::addRow(const QString &label, QWidget *field, const QString &unit)
{
    auto *caption = new QLabel(label);
    caption->setBuddy(field);
    caption->setMinimumWidth(120);
    field->setAccessibleName(QString(label).remove(QLatin1Char('&')));
    if (unit.isEmpty()) {
        m_form->addRow(caption, field);
        return;
    }
    auto *row = new QHBoxLayout;
    row->addWidget(field);
    auto *unitLabel = new QLabel(unit);
    unitLabel->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("degrees ")));
    row->addWidget(unitLabel);
    m_form->addRow(caption, row);
}

QLineEdit *PropertyDialog::addNumber(const char *name, const QString &label, const QString &text,
                                     const QString &unit)
{
    auto *field = new QLineEdit(text);
    field->setObjectName(QLatin1String(name));
    new forms::NumericKeys(field, m_control.host().locale().decimalSeparator);
    addRow(label, field, unit);
    return field;
}

QComboBox *PropertyDialog::addVariable(const char *name, const QString &label, qint32 variable)
{
    auto *list = new QComboBox;
    list->setObjectName(QLatin1String(name));
    fillVariables(*list, variable);
    addRow(label, list);
    return list;
}

void PropertyDialog::fillVariables(QComboBox &list, qint32 variable) const
{
    const variables::VariableTable &table = m_control.host().catalogue().live;
    const auto addRow = [&](std::size_t index) {
        list.addItem(table[index].DisplayName, static_cast<qint32>(index));
    };
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].Available)
            addRow(i);
    }
    list.setMaxVisibleItems(20);
    if (variable <= 0 || static_cast<std::size_t>(variable) >= table.size()) {
        list.setCurrentIndex(0);
        return;
    }
    if (list.findData(variable) < 0)
        addRow(static_cast<std::size_t>(variable));
    list.setCurrentIndex(list.findData(variable));
}

ColourSwatch *PropertyDialog::addColour(const char *name, const char *resetName, const QString &label,
                                        quint32 colour)
{
    m_swatch = new ColourSwatch(m_control.host().prompts());
    m_swatch->setObjectName(QLatin1String(name));
    m_swatch->setColour(colour);
    m_reset = new QPushButton(QStringLiteral("R&eset"));
    m_reset->setObjectName(QLatin1String(resetName));
    m_reset->setAutoDefault(false);
    connect(m_reset, &QPushButton::clicked, this, [this] { m_swatch->setColour(StandardColour); });
    m_colourLabel = new QLabel(label);
    m_colourLabel->setObjectName(QStringLiteral("lblColour"));
    m_colourLabel->setBuddy(m_swatch);
    m_swatch->setAccessibleName(QString(label).remove(QLatin1Char('&')));
    auto *row = new QHBoxLayout;
    row->addWidget(m_swatch);
    row->addWidget(m_reset);
    row->addStretch();
    m_form->addRow(m_colourLabel, row);
    return m_swatch;
}

void PropertyDialog::addColourVariable(qint32 variable, float minimum, float maximum)
{
    m_colourVariable = new QComboBox;
    m_colourVariable->setObjectName(QStringLiteral("cmbColourVariable"));
    m_colourVariable->addItem(QStringLiteral("None"));
    fillVariables(*m_colourVariable, variable);
    addRow(QStringLiteral("Colour &variable"), m_colourVariable);
    m_colourMinimum = addNumber("txtColourVarMin", QStringLiteral("Colour minimum"), shown(minimum));
    m_colourMaximum = addNumber("txtColourVarMax", QStringLiteral("Colour maximum"), shown(maximum));
    m_form->labelForField(m_colourMinimum)->setObjectName(QStringLiteral("lblColourMin"));
    m_form->labelForField(m_colourMaximum)->setObjectName(QStringLiteral("lblColourMax"));
    const quint32 stored = m_swatch->colour();
    colourVariableChosen(m_colourVariable->currentIndex());
    m_swatch->setColour(stored);
    connect(m_colourVariable, &QComboBox::currentIndexChanged, this, &PropertyDialog::colourVariableChosen);
}

void PropertyDialog::colourVariableChosen(int row)
{
    const bool fixedColour = row == 0;
    m_swatch->setEnabled(fixedColour);
    m_reset->setEnabled(fixedColour);
    m_colourLabel->setVisible(fixedColour);
    for (QLineEdit *limit : {m_colourMinimum, m_colourMaximum}) {
        limit->setEnabled(!fixedColour);
        m_form->labelForField(limit)->setVisible(!fixedColour);
    }
    if (!fixedColour)
        m_swatch->setColour(0);
}

QString PropertyDialog::shown(float value) const
{
    return common::shortestText(value, m_control.host().locale().decimalSeparator);
}

ColourVariableForm PropertyDialog::colourVariableForm() const
{
    return {chosenVariable(*m_colourVariable), m_colourMinimum->text(), m_colourMaximum->text()};
}

void PropertyDialog::finishLayout()
{
    auto *buttons = new QDialogButtonBox;
    buttons->addButton(m_apply, QDialogButtonBox::AcceptRole);
    buttons->addButton(m_cancel, QDialogButtonBox::RejectRole);
    layout()->addWidget(buttons);
}

void PropertyDialog::apply()
{
    platform::Prompts &prompts = m_control.host().prompts();
    platform::reportFailures(prompts, [&] {
        if (const auto complaint = validate()) {
            prompts.message(platform::Icon::Information, platform::ProductTitle, *complaint);
            return;
        }
        write();
        accept();
        applied();
    });
}

} // namespace controls
