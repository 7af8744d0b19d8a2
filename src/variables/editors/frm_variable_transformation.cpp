#include "variables/editors/frm_variable_transformation.h"

#include "platform/guards.h"
#include "variables/editors/dialog_parts.h"
#include "variables/editors/frm_curve_fit.h"
#include "variables/editors/frm_enter_equation_manually.h"
#include "variables/transformation_entries.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace variables {

namespace {

template <typename Entries>
PickList *newPickList(const char *name, const Entries &entries)
{
    auto *list = new PickList(name);
    for (const auto &entry : entries)
        list->addRow(QString(entry.text), QString(entry.meaning));
    return list;
}

QPushButton *newGenerator(const char *name, const QString &caption)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QRadioButton *newOption(const char *name, const QString &caption)
{
    auto *option = new QRadioButton(caption);
    option->setObjectName(QLatin1String(name));
    return option;
}

} // namespace

frmVariableTransformation::frmVariableTransformation(int index, Catalogue &catalogue, Coefficients &generated,
                                                     platform::Prompts &prompts,
                                                     const platform::NumberLocale &locale, QWidget *parent)
    : QDialog(parent), m_index(index), m_catalogue(catalogue), m_generated(generated), m_prompts(prompts),
      m_locale(locale), m_standard(newOption("Option1_0", QStringLiteral("&Standard units"))),
      m_custom(newOption("Option1_1", QStringLiteral("Custom e&quation")))
{
    setWindowTitle(transformationTitle(record()));
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(newUnitRow());
    layout->addWidget(m_custom);
    layout->addWidget(newEquationPart(), 1);
    connect(addButtons(*this, "OkayCmd", "CancelCmd").accept, &QPushButton::clicked, this,
            &frmVariableTransformation::apply);

    const bool own = hasOwnEquation(record());
    const bool custom = transformationOf(record()).custom;
    (custom ? m_custom : m_standard)->setChecked(true);
    m_standard->setEnabled(!own);
    connect(m_custom, &QRadioButton::toggled, this, &frmVariableTransformation::showChoice);
    showChoice();
    (custom ? static_cast<QWidget *>(m_equation) : m_units)->setFocus();
    resize(1080, 660);
}

QLayout *frmVariableTransformation::newUnitRow()
{
    m_units = new QComboBox;
    m_units->setObjectName(QStringLiteral("StandardTransCombo"));
    m_units->setAccessibleName(QStringLiteral("Standard units"));
    m_units->addItems(unitChoices(record(), m_catalogue.units));
    m_units->setCurrentIndex(transformationOf(record()).unit);
    m_units->setMinimumWidth(280);
    m_unitLabel = new QLabel;
    m_unitLabel->setObjectName(QStringLiteral("DisplayUnitsLbl"));
    m_unitLabel->setTextFormat(Qt::PlainText);
    const auto showUnit = [this] {
        m_unitLabel->setText(unitLabel(record(), m_units->currentIndex(), m_catalogue.units));
    };
    connect(m_units, &QComboBox::currentIndexChanged, this, showUnit);
    showUnit();
    auto *row = new QHBoxLayout;
    row->addWidget(m_standard);
    row->addWidget(m_units);
    row->addSpacing(16);
    row->addWidget(new QLabel(QStringLiteral("Units as displayed:")));
    row->addWidget(m_unitLabel);
    row->addStretch();
    return row;
}

QGroupBox *frmVariableTransformation::newEquationPart()
{
    m_equation = new QPlainTextEdit;
    m_equation->setObjectName(QStringLiteral("UserFunctionTxt"));
    m_equation->setAccessibleName(QStringLiteral("Equation"));
    m_equation->setTabChangesFocus(true);
    m_equation->setPlainText(record().CustomTransformation);
    m_equation->moveCursor(QTextCursor::End);
    m_equation->setFixedHeight(fontMetrics().lineSpacing() * 5);
    m_shownEquation = m_equation->toPlainText();
    m_userUnits = new QLineEdit(record().CustomUnits);
    m_userUnits->setObjectName(QStringLiteral("UserUnits"));
    m_userUnits->setAccessibleName(QStringLiteral("Units to display"));
    m_userUnits->setFixedWidth(80);
    auto *unitsCaption = new QLabel(QStringLiteral("&Units to display:"));
    unitsCaption->setBuddy(m_userUnits);
    auto *fromTable = newGenerator("cmdGenerateA", QStringLiteral("&Generate an equation from a table"));
    auto *byHand = newGenerator("cmdEnterEquation", QStringLiteral("&Enter an equation manually"));
    for (QPushButton *button : {fromTable, byHand})
        button->setEnabled(hasOwnEquation(record()));
    connect(fromTable, &QPushButton::clicked, this,
            [this] { takeGenerated(frmCurveFit(m_locale, this).run()); });
    connect(byHand, &QPushButton::clicked, this,
            [this] { takeGenerated(FrmEnterEquationManually(m_generated, m_locale, this).run()); });

    auto *row = new QHBoxLayout;
    row->addWidget(unitsCaption);
    row->addWidget(m_userUnits);
    row->addStretch();
    row->addWidget(fromTable);
    row->addWidget(byHand);
    m_equationPart = new QGroupBox;
    auto *layout = new QVBoxLayout(m_equationPart);
    layout->addWidget(m_equation);
    layout->addLayout(row);
    layout->addWidget(new QLabel(QStringLiteral("Valid entries for the custom formula:")));
    layout->addLayout(newPickLists(), 1);
    return m_equationPart;
}

QLayout *frmVariableTransformation::newPickLists()
{
    struct Column
    {
        QString caption;
        PickList *list;
        int share; // of the width
    };
    auto *columns = new QHBoxLayout;
    for (const Column &column :
         {Column{QStringLiteral("&Variables"),
                 newPickList("MSFlexGridVarNames", variableEntries(m_catalogue.staging)), 4},
          Column{QStringLiteral("Co&nstants"), newPickList("MSFlexGridConstants", ConstantEntries), 3},
          Column{QStringLiteral("&Maths functions"), newPickList("MathFunctGrid", FunctionEntries), 4}}) {
        connect(column.list, &PickList::picked, this, &frmVariableTransformation::insert);
        auto *label = new QLabel(column.caption);
        label->setBuddy(column.list);
        column.list->setAccessibleName(QString(column.caption).remove(QLatin1Char('&')));
        auto *layout = new QVBoxLayout;
        layout->addWidget(label);
        layout->addWidget(column.list, 1);
        columns->addLayout(layout, column.share);
    }
    return columns;
}

void frmVariableTransformation::showChoice()
{
    m_units->setEnabled(m_standard->isChecked());
    m_equationPart->setEnabled(m_custom->isChecked());
}

// An equation that was left alone is given back as it stands in the record: the box only knows one kind of
// line end.
TransformationForm frmVariableTransformation::form()
{
    TransformationForm form;
    form.custom = m_custom->isChecked();
    form.unit = m_units->currentIndex();
    const QString typed = m_equation->toPlainText();
    form.equation = typed == m_shownEquation
                        ? record().CustomTransformation
                        : QString(typed).replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    form.units = m_userUnits->text();
    return form;
}

// As if typed at the caret.
void frmVariableTransformation::insert(const QString &text)
{
    m_equation->setFocus();
    m_equation->insertPlainText(text);
}

void frmVariableTransformation::takeGenerated(const std::optional<Coefficients> &coefficients)
{
    if (!coefficients)
        return;
    m_generated = *coefficients;
    m_equation->selectAll();
    insert(polynomialText(m_generated, m_index));
}

void frmVariableTransformation::apply()
{
    platform::reportFailures(m_prompts, [this] {
        const TransformationForm typed = form();
        if (const auto complaint = validate(typed, m_index, m_locale)) {
            m_prompts.message(platform::Icon::Critical, platform::ProductTitle, *complaint);
            return;
        }
        const VariableRecord before = record();
        storeTransformation(typed, record(), m_catalogue.units);
        m_changed = record() != before;
        accept();
    });
}

bool frmVariableTransformation::run()
{
    exec();
    return m_changed;
}

} // namespace variables
