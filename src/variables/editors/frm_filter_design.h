#pragma once

#include "platform/locale.h"
#include "variables/editors/chart.h"
#include "variables/filter_settings.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>

#include <optional>

namespace variables {

// The window that designs a variable's digital filter and shows its frequency response.
class frmFilterDesign final : public QDialog
{
    Q_OBJECT

public:
    frmFilterDesign(const QString &variable, const FilterSettings &initial,
                    const platform::NumberLocale &locale, QWidget *parent);
    ~frmFilterDesign() override { hide(); } // takes the focus away while there is a window to tell of it

    // Runs the window. The filter, within bounds, or nothing when the user cancels.
    std::optional<FilterSettings> run();

private:
    QGroupBox *newSettings(const FilterSettings &initial);
    QLineEdit *newField(const char *name, double value);
    FilterForm form() const;
    FilterSettings entered() const { return filterWithinBounds(filterEntered(form())); }

    void RegenScreen(); // brings the fields within bounds and draws the response
    void ShowRelevantOptions(const FilterSettings &filter);
    void showNumbers(const FilterSettings &filter);
    QString shown(double value) const;

    QString m_decimalSeparator;
    QComboBox *m_model;    // cmbModel
    QGroupBox *m_settings; // fraSettings
    QComboBox *m_type;     // cmbType
    QLineEdit *m_lower;    // txtLowerFrequency
    QLineEdit *m_upper;    // txtUpperFrequency
    QLineEdit *m_order;    // txtOrder
    QLineEdit *m_ripple;   // txtRipple
    QFormLayout *m_rows;
    Chart *m_chart; // chtResponse
};

} // namespace variables
