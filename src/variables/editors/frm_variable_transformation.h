#pragma once

#include "platform/prompts.h"
#include "variables/editors/pick_list.h"
#include "variables/transformation.h"
#include "variables/units.h"

#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace variables {

// The window that chooses a variable's unit or edits its equation. It works on the staging table.
class frmVariableTransformation final : public QDialog
{
    Q_OBJECT

public:
    // `index` is a slot of the catalogue; `generated` keeps the coefficients that a generator left.
    frmVariableTransformation(int index, Catalogue &catalogue, Coefficients &generated,
                              platform::Prompts &prompts, const platform::NumberLocale &locale,
                              QWidget *parent);

    // Runs the window; true when the record is another one afterwards.
    bool run();

private:
    VariableRecord &record() { return m_catalogue.staging[static_cast<std::size_t>(m_index)]; }

    QLayout *newUnitRow();
    QGroupBox *newEquationPart();
    QLayout *newPickLists();
    void showChoice();
    TransformationForm form();
    void insert(const QString &text);
    void takeGenerated(const std::optional<Coefficients> &coefficients);
    void apply();

    int m_index;
    Catalogue &m_catalogue;
    Coefficients &m_generated;
    platform::Prompts &m_prompts;
    const platform::NumberLocale &m_locale;
    bool m_changed = false;
    QString m_shownEquation; // as the box gives it back untouched

    QRadioButton *m_standard; // Option1_0
    QRadioButton *m_custom;   // Option1_1
    QComboBox *m_units;       // StandardTransCombo
    QLabel *m_unitLabel;      // DisplayUnitsLbl
    QGroupBox *m_equationPart;
    QPlainTextEdit *m_equation; // UserFunctionTxt
    QLineEdit *m_userUnits;     // UserUnits
};

} // namespace variables
