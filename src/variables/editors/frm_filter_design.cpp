#include "variables/editors/frm_filter_design.h"

#include "variables/filter_design.h"

namespace variables {

using namespace Qt::StringLiterals;

namespace {

constexpr int NarrowestBody = 300; // pixels
constexpr std::size_t ResponsePoints = 100;
constexpr double StepsPerUnit = 50; // of the chart's horizontal axis
constexpr double AxisLength = 2;    // up to the Nyquist frequency

Chart *newResponseChart()
{
    auto *chart = new Chart(u"Frequency (0Hz to 50Hz)"_s, u"Amplitude"_s);
    chart->setObjectName(u"chtResponse"_s);
    chart->setAccessibleName(u"Chart of the frequency response"_s);
    chart->setMinimumSize(480, 320);
    QMap<double, QString> texts;
    for (int hertz = 0; hertz <= FilterNyquist; hertz += 10)
        texts.insert(hertz * AxisLength / FilterNyquist, QString::number(hertz));
    chart->setHorizontalTexts(texts);
    return chart;
}

} // namespace

frmFilterDesign::frmFilterDesign(const QString &variable, const FilterSettings &initial,
                                 const forms::Context &context)
    : DialogOf(u"Filter design for "_s + variable, initial, context),
      m_model(choice(&FilterSettings::model, {"cmbModel", "Filter &model"}, forms::choicesOf(FilterModels))),
      m_chart(newResponseChart())
{
    addSettings();
    body().addStretch();
    body().addStrut(NarrowestBody);
    addBeside(m_chart);
    finish(forms::okAndCancel());
    react(m_model, [this] { RegenScreen(); });
    RegenScreen();
}

void frmFilterDesign::addSettings()
{
    using F = FilterSettings;
    m_settings = &addGroup("Settings");
    m_settings->setObjectName(u"fraSettings"_s);
    forms::ListField &type = choice(&F::type, {"cmbType", "Filter &type"}, forms::choicesOf(FilterTypes));
    m_upper = &frequency(&F::upper, {"txtUpperFrequency", "&Upper frequency [Hz]"});
    m_lower = &frequency(&F::lower, {"txtLowerFrequency", "&Lower frequency [Hz]"});
    forms::NumberField &order = number(&F::order, {"txtOrder", "Or&der"});
    m_ripple = &number(&F::ripple, {"txtRipple", "&Ripple [dB]"});
    react(type, [this] { RegenScreen(); });
    for (const forms::NumberField *field : {m_upper, m_lower, &order, m_ripple})
        connect(&field->box(), &QLineEdit::editingFinished, this, &frmFilterDesign::RegenScreen);
}

forms::NumberField &frmFilterDesign::frequency(double FilterSettings::*member, const forms::RowText &row)
{
    forms::NumberField &field = number(member, row);
    field.setFormat([mark = decimalMark()](double hertz) {
        return hertz == UnusedFrequency ? QString() : common::shortestText(static_cast<float>(hertz), mark);
    });
    return field;
}

void frmFilterDesign::RegenScreen()
{
    const FilterSettings filter = filterWithinBounds(converted());
    ShowRelevantOptions(filter);
    showValues(filter);
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
    m_upper->setEnabled(usesUpper(filter.type));
    m_lower->setEnabled(usesLower(filter.type));
}

} // namespace variables
