#include "variables/editors/frm_filter_design.h"

#include "common/number_text.h"
#include "variables/editors/dialog_parts.h"
#include "variables/filter_design.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace variables {

namespace {

constexpr int NarrowestWindow = 320; // pixels
constexpr std::size_t ResponsePoints = 100;
constexpr double StepsPerUnit = 50; // of the chart's horizontal axis
constexpr double AxisLength = 2;    // up to the Nyquist frequency

template <typename Choices, typename Value>
QComboBox *newChoice(const char *name, const Choices &choices, Value chosen)
{
    auto *list = new QComboBox;
    list->setObjectName(QLatin1String(name));
    for (const auto &choice : choices) {
        list->addItem(QLatin1String(choice.text));
        if (choice.value == chosen)
            list->setCurrentIndex(list->count() - 1);
    }
    return list;
}

Chart *newResponseChart()
{
    auto *chart = new Chart(QStringLiteral("Frequency (0Hz to 50Hz)"), QStringLiteral("Amplitude"));
    chart->setObjectName(QStringLiteral("chtResponse"));
    chart->setAccessibleName(QStringLiteral("Chart of the frequency response"));
    chart->setMinimumSize(480, 320);
    QMap<double, QString> texts;
    for (int hertz = 0; hertz <= FilterNyquist; hertz += 10)
        texts.insert(hertz * AxisLength / FilterNyquist, QString::number(hertz));
    chart->setHorizontalTexts(texts);
    return chart;
}

} // namespace

frmFilterDesign::frmFilterDesign(const QString &variable, const FilterSettings &initial,
                                 const platform::NumberLocale &locale, QWidget *parent)
    : QDialog(parent), m_decimalSeparator(locale.decimalSeparator),
      m_model(newChoice("cmbModel", FilterModels, initial.model)), m_settings(newSettings(initial)),
      m_chart(newResponseChart())
{
    setWindowTitle(QStringLiteral("Filter design for ") + variable);
    auto *model = new QFormLayout;
    addField(*model, QStringLiteral("Filter &model"), *m_model);
    auto *left = new QVBoxLayout;
    left->addLayout(model);
    left->addWidget(m_settings);
    left->addStretch();
    auto *top = new QHBoxLayout;
    top->addLayout(left);
    top->addWidget(m_chart, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addStrut(NarrowestWindow);
    layout->addLayout(top);
    connect(addButtons(*this, "cmdOk", "cmdCancel").accept, &QPushButton::clicked, this, &QDialog::accept);

    for (const QComboBox *list : {m_model, m_type})
        connect(list, &QComboBox::currentIndexChanged, this, &frmFilterDesign::RegenScreen);
    for (const QLineEdit *field : {m_upper, m_lower, m_order, m_ripple})
        connect(field, &QLineEdit::editingFinished, this, &frmFilterDesign::RegenScreen);
    RegenScreen();
    m_model->setFocus();
}

QGroupBox *frmFilterDesign::newSettings(const FilterSettings &initial)
{
    auto *box = new QGroupBox(QStringLiteral("Settings"));
    box->setObjectName(QStringLiteral("fraSettings"));
    m_rows = new QFormLayout(box);
    m_type = newChoice("cmbType", FilterTypes, initial.type);
    m_upper = newField("txtUpperFrequency", initial.upper);
    m_lower = newField("txtLowerFrequency", initial.lower);
    m_order = newField("txtOrder", initial.order);
    m_ripple = newField("txtRipple", initial.ripple);
    addField(*m_rows, QStringLiteral("Filter &type"), *m_type);
    addField(*m_rows, QStringLiteral("&Upper frequency [Hz]"), *m_upper);
    addField(*m_rows, QStringLiteral("&Lower frequency [Hz]"), *m_lower);
    addField(*m_rows, QStringLiteral("Or&der"), *m_order);
    addField(*m_rows, QStringLiteral("&Ripple [dB]"), *m_ripple);
    return box;
}

QLineEdit *frmFilterDesign::newField(const char *name, double value)
{
    return newNumberField(name, value == UnusedFrequency ? QString() : shown(value), m_decimalSeparator);
}

QString frmFilterDesign::shown(double value) const
{
    return common::shortestText(static_cast<float>(value), m_decimalSeparator);
}

std::optional<FilterSettings> frmFilterDesign::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    return entered();
}

FilterForm frmFilterDesign::form() const
{
    FilterForm form;
    form.model = m_model->currentIndex();
    form.type = m_type->currentIndex();
    form.lower = m_lower->text();
    form.upper = m_upper->text();
    form.ripple = m_ripple->text();
    form.order = m_order->text();
    return form;
}

void frmFilterDesign::RegenScreen()
{
    const FilterSettings filter = entered();
    ShowRelevantOptions(filter);
    showNumbers(filter);
    if (filter.model == FilterModel::None)
        return;
    const FilterResponse response = AdvancedFiltering(filter);
    QList<QPointF> curve;
    for (std::size_t i = 0; i < ResponsePoints; ++i)
        curve.append({static_cast<double>(i) / StepsPerUnit, response.at(i)});
    m_chart->draw({}, curve, {0, 0, AxisLength, 1});
}

void frmFilterDesign::ShowRelevantOptions(const FilterSettings &filter)
{
    m_settings->setVisible(filter.model != FilterModel::None);
    m_chart->setVisible(filter.model != FilterModel::None);
    m_ripple->setVisible(filter.model == FilterModel::Chebyshev);
    m_rows->labelForField(m_ripple)->setVisible(filter.model == FilterModel::Chebyshev);
    m_upper->setEnabled(usesUpper(filter.type));
    m_lower->setEnabled(usesLower(filter.type));
}

// A frequency that the type does not use stays as it is: it may be wanted again.
void frmFilterDesign::showNumbers(const FilterSettings &filter)
{
    if (usesUpper(filter.type))
        m_upper->setText(shown(filter.upper));
    if (usesLower(filter.type))
        m_lower->setText(shown(filter.lower));
    m_order->setText(shown(filter.order));
    m_ripple->setText(shown(filter.ripple));
}

} // namespace variables
