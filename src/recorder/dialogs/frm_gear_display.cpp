#include "recorder/dialogs/frm_gear_display.h"

#include "forms/numeric_keys.h"
#include "platform/guards.h"
#include "recorder/dialogs/frm_gear_ratios.h"

#include <QHeaderView>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr quint8 SensorMethod = 1;
constexpr quint8 SensorOption = 0;
constexpr quint8 SpeedOption = 1;

GearSetup setupOf(const RecorderSettings &settings)
{
    const bool bySensor = settings.GearMethod == SensorMethod;
    return {QString::number(settings.GearTable.size()), bySensor ? SensorOption : SpeedOption,
            settings.GearVariable};
}

} // namespace

std::optional<forms::Verdict> validateGears(const forms::Typed &typed)
{
    if (gearCount(typed.text("txtNumOfGears")))
        return std::nullopt;
    return forms::refusal(u"Number of gears should be 1 to %1"_s.arg(MostGears), platform::Icon::Critical);
}

frmGearDisplay::frmGearDisplay(RecorderSettings &settings, const variables::VariableTable &table,
                               const forms::Context &context)
    : DialogOf(u"Gear indicator setup"_s, setupOf(settings), context), m_settings(settings), m_table(table),
      m_grid(new GearGrid(decimalMark())),
      m_chart(new SpanChart("picBands", u"Bands of the gears"_s, static_cast<int>(MostGears)))
{
    addGroup("Method");
    addMethod();
    addGroup("Gears");
    addCount();
    addLimits();
    finish(forms::okAndCancel());
    setTabOrder(&button("cmdGearRatio"), &m_count->box());
    setTabOrder(&m_count->box(), m_grid);
}

void frmGearDisplay::addMethod()
{
    using V = GearSetup;
    const auto &method = options(&V::option, "",
                                 {{"GearMethodOption_0", "Calculate gear based on gearbox &sensor"},
                                  {"GearMethodOption_1", "Calculate gear based on speed and R&PM"}});
    auto &variable =
        choice(&V::variable, {"cmbVarID", "&Variable"}, enabledVariables(m_table, kept().variable));
    QPushButton *ratios =
        makeButton("cmdGearRatio", "Click here to calculate from gear &ratios", [this] { askForRatios(); });
    addWide(ratios);
    auto *help = new QLabel;
    help->setObjectName(u"Helplbl"_s);
    addWide(help);
    follow([&method, &variable, ratios, help] {
        const bool bySensor = method.row() == SensorOption;
        variable.setEnabled(bySensor);
        ratios->setEnabled(!bySensor);
        help->setText(bySensor ? u"Enter upper and lower limits in volts"_s
                               : u"Enter upper and lower limits as kph per 1000rpm"_s);
    });
}

void frmGearDisplay::addCount()
{
    const QByteArray caption = u"Set &number of gears 1-%1"_s.arg(MostGears).toUtf8();
    m_count = &text(&GearSetup::count, {"txtNumOfGears", caption.constData()});
    new forms::NumericKeys(&m_count->box(), decimalMark());
    react(*m_count, [this] { takeCount(); });
    connect(&m_count->box(), &QLineEdit::editingFinished, this, &frmGearDisplay::complainOfCount);
}

void frmGearDisplay::addLimits()
{
    m_grid->setAccessibleName(u"Limits of the gears"_s);
    m_grid->gears().show(m_settings.GearTable);
    m_grid->setFixedHeight(m_grid->horizontalHeader()->sizeHint().height() + 2 * m_grid->frameWidth() +
                           static_cast<int>(MostGears) * m_grid->verticalHeader()->defaultSectionSize());
    connect(&m_grid->gears(), &QAbstractItemModel::modelReset, this, &frmGearDisplay::drawChart);
    connect(&m_grid->gears(), &QAbstractItemModel::dataChanged, this, &frmGearDisplay::drawChart);
    addWide(m_grid);
    addBeside(m_chart);
    drawChart();
}

void frmGearDisplay::takeCount()
{
    if (const auto count = gearCount(m_count->text()))
        m_grid->gears().setCount(*count);
}

// Once the box is left for another field; what a button does complains itself.
void frmGearDisplay::complainOfCount()
{
    const bool isLeft = isVisible() && isActiveWindow() && !m_count->box().hasFocus();
    if (isLeft && !qobject_cast<QPushButton *>(focusWidget()))
        isCountRefused();
}

bool frmGearDisplay::isCountRefused()
{
    const auto verdict = validate(typed());
    if (!verdict)
        return false;
    prompts().message(verdict->icon, platform::ProductTitle, verdict->text);
    m_count->box().setFocus();
    m_count->box().selectAll();
    return true;
}

void frmGearDisplay::askForRatios()
{
    if (isCountRefused())
        return;
    GearModel &gears = m_grid->gears();
    forms::Context inside = context();
    inside.parent = this;
    const auto ratios = frmGearRatios(m_ratios, gears.count(), inside).run();
    if (!ratios)
        return;
    m_ratios = *ratios;
    gears.show(gearBands(m_ratios, gears.count()));
}

void frmGearDisplay::drawChart()
{
    platform::skipFailures([this] { drawBands(*m_chart, m_grid->gears().limits(), decimalMark()); });
}

void frmGearDisplay::set(GearSetup &setup)
{
    const bool bySensor = setup.option == SensorOption;
    if (bySensor && variableName(setup.variable, m_table).isEmpty())
        throw common::RunTimeError(u"No variable is chosen for the gearbox sensor"_s);
    m_settings.GearTable = m_grid->gears().limits();
    m_settings.GearVariable = bySensor ? setup.variable : 0;
    m_settings.GearMethod = bySensor ? SensorMethod : 0;
}

} // namespace recorder
