#include "variables/editors/frm_variable_transformation.h"

#include "variables/editors/frm_curve_fit.h"
#include "variables/editors/frm_enter_equation_manually.h"
#include "variables/transformation_entries.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

template <typename Entries>
PickList *newPickList(const char *name, const Entries &entries)
{
    auto *list = new PickList(name);
    for (const auto &entry : entries)
        list->addRow(QString(entry.text), QString(entry.meaning));
    return list;
}

} // namespace

frmVariableTransformation::frmVariableTransformation(int index, Catalogue &catalogue, Coefficients &generated,
                                                     const forms::Context &context)
    : DialogOf(transformationTitle(recordOf(catalogue, index)), transformationOf(recordOf(catalogue, index)),
               context),
      m_index(index), m_catalogue(catalogue), m_generated(generated),
      m_standard(add<forms::CheckField>(new QRadioButton(u"&Standard units"_s), "Option1_0")),
      m_units(bind(add<forms::ListField>("StandardTransCombo",
                                         forms::numbered(unitChoices(record(), m_catalogue.units))),
                   &TransformationForm::unit)),
      m_custom(bind(add<forms::CheckField>(new QRadioButton(u"Custom e&quation"_s), "Option1_1"),
                    &TransformationForm::custom)),
      m_equation(bind(add<forms::TextArea>("UserFunctionTxt"), &TransformationForm::equation))
{
    makeResizable();
    body().addLayout(newUnitRow());
    body().addWidget(&m_custom.button());
    body().addWidget(newEquationPart(), 1);
    finish({{"OkayCmd", "&OK", forms::Press::Accept}, {"CancelCmd", "&Cancel", forms::Press::Cancel}});
    const bool custom = kept().custom;
    (custom ? m_custom : m_standard).button().setChecked(true);
    m_standard.setEnabled(!hasOwnEquation(record()));
    (custom ? m_equation.widget() : m_units.widget()).setFocus();
    resize(1080, 660);
}

QLayout *frmVariableTransformation::newUnitRow()
{
    m_units.box().setAccessibleName(u"Standard units"_s);
    m_units.box().setMinimumWidth(280);
    auto *unitLabel = new QLabel;
    unitLabel->setObjectName(u"DisplayUnitsLbl"_s);
    unitLabel->setTextFormat(Qt::PlainText);
    follow([this, unitLabel] {
        unitLabel->setText(variables::unitLabel(record(), m_units.row(), m_catalogue.units));
        m_units.setEnabled(m_standard.isOn());
    });
    auto *row = new QHBoxLayout;
    row->addWidget(&m_standard.button());
    row->addWidget(&m_units.box());
    row->addSpacing(16);
    row->addWidget(new QLabel(u"Units as displayed:"_s));
    row->addWidget(unitLabel);
    row->addStretch();
    return row;
}

QGroupBox *frmVariableTransformation::newEquationPart()
{
    m_equation.box().setAccessibleName(u"Equation"_s);
    m_equation.box().setFixedHeight(fontMetrics().lineSpacing() * 5);
    auto *part = new QGroupBox;
    follow([this, part] { part->setEnabled(m_custom.isOn()); });
    auto *layout = new QVBoxLayout(part);
    layout->addWidget(&m_equation.box());
    layout->addLayout(newGeneratorRow());
    layout->addWidget(new QLabel(u"Valid entries for the custom formula:"_s));
    layout->addLayout(newPickLists(), 1);
    return part;
}

QLayout *frmVariableTransformation::newGeneratorRow()
{
    auto &units = bind(add<forms::TextField>("UserUnits"), &TransformationForm::units);
    units.box().setFixedWidth(80);
    auto *unitsCaption = new QLabel(u"&Units to display:"_s);
    units.setCaption(unitsCaption);
    auto *fromTable = makeButton("cmdGenerateA", "&Generate an equation from a table",
                                 [this] { takeGenerated(frmCurveFit(within()).run()); });
    auto *byHand = makeButton("cmdEnterEquation", "&Enter an equation manually", [this] {
        takeGenerated(FrmEnterEquationManually(m_generated, within()).run());
    });
    for (QPushButton *button : {fromTable, byHand})
        button->setEnabled(hasOwnEquation(record()));
    auto *row = new QHBoxLayout;
    row->addWidget(unitsCaption);
    row->addWidget(&units.box());
    row->addStretch();
    row->addWidget(fromTable);
    row->addWidget(byHand);
    return row;
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
         {Column{u"&Variables"_s, newPickList("MSFlexGridVarNames", variableEntries(m_catalogue.staging)), 4},
          Column{u"Co&nstants"_s, newPickList("MSFlexGridConstants", ConstantEntries), 3},
          Column{u"&Maths functions"_s, newPickList("MathFunctGrid", FunctionEntries), 4}}) {
        connect(column.list, &PickList::picked, this, &frmVariableTransformation::insert);
        auto *label = new QLabel(column.caption);
        label->setBuddy(column.list);
        column.list->setAccessibleName(QString(column.caption).remove('&'_L1));
        auto *layout = new QVBoxLayout;
        layout->addWidget(label);
        layout->addWidget(column.list, 1);
        columns->addLayout(layout, column.share);
    }
    return columns;
}

// As if typed at the caret.
void frmVariableTransformation::insert(const QString &text)
{
    m_equation.box().setFocus();
    m_equation.box().insertPlainText(text);
}

void frmVariableTransformation::takeGenerated(const std::optional<Coefficients> &coefficients)
{
    if (!coefficients)
        return;
    m_generated = *coefficients;
    m_equation.box().selectAll();
    insert(polynomialText(m_generated, m_index));
}

std::optional<forms::Verdict> frmVariableTransformation::validate(const forms::Typed &) const
{
    if (const auto complaint = variables::validate(converted(), m_index, context().locale))
        return forms::refusal(*complaint, platform::Icon::Critical);
    return std::nullopt;
}

void frmVariableTransformation::set(TransformationForm &typed)
{
    const VariableRecord before = record();
    storeTransformation(typed, record(), m_catalogue.units);
    m_changed = record() != before;
}

bool frmVariableTransformation::run()
{
    exec();
    return m_changed;
}

} // namespace variables
