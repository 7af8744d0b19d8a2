#include "recorder/dialogs/frm_start_stop_rec.h"

#include "recorder/variable_list.h"

#include <array>

namespace recorder {

using namespace Qt::StringLiterals;

struct TriggerNames
{
    const char *title;
    const char *variable;
    const char *condition;
    const char *value;
    const char *time;
};

namespace {

constexpr TriggerNames Start{"Auto Start Conditions", "cmbvariable_0", "cmbStartCondition", "txtStartVal",
                             "txtStartTrigerTime"};
constexpr TriggerNames Stop{"Auto Stop Conditions", "cmbvariable_1", "cmbStopCondition", "txtStopVal",
                            "txtStopTrigerTime"};
constexpr std::array Conditions{"Not Active", "<", ">"};
constexpr qint32 FirstVariable = 1;

// What was stored counts as untouched from then on.
template <typename F, typename Member>
void keep(F &field, Member &member)
{
    field.store(member);
    field.show(member);
}

} // namespace

frmStartStopRec::frmStartStopRec(RecordingTrigger &autoStart, RecordingTrigger &autoStop,
                                 const variables::VariableTable &table, const forms::Context &context)
    : Dialog(u"Auto Start / Stop Recording"_s, context)
{
    m_rows.push_back(addRows(Start, autoStart, table));
    m_rows.push_back(addRows(Stop, autoStop, table));
    addGroup("Note :");
    auto *note = new QLabel(u"Please note that the autostart will only trigger if the autostop "
                            "condition is also false"_s);
    note->setWordWrap(true);
    addWide(note);
    addButtons(forms::okAndCancel());
}

frmStartStopRec::Rows frmStartStopRec::addRows(const TriggerNames &names, RecordingTrigger &trigger,
                                               const variables::VariableTable &table)
{
    if (trigger.variable == 0)
        trigger.variable = FirstVariable;
    const Rows rows{trigger, add<forms::ListField>(names.variable, enabledVariables(table, trigger.variable)),
                    add<forms::ListField>(names.condition, forms::numbered(Conditions)),
                    add<forms::NumberField>(names.value, decimalMark()),
                    add<forms::NumberField>(names.time, decimalMark())};
    addGroup(names.title);
    addRow(rows.variable, "&Variable");
    addRow(rows.condition, "&Condition");
    addRow(rows.value, "V&alue");
    addRow(rows.time, "&Trigger Time");
    rows.variable.show(trigger.variable);
    rows.condition.show(trigger.condition);
    rows.value.show(trigger.value);
    rows.time.show(trigger.time);
    for (forms::NumberField *number : {&rows.value, &rows.time})
        number->requireNumber();
    return rows;
}

void frmStartStopRec::take()
{
    for (const Rows &rows : m_rows) {
        if (rows.variable.row() < 0 && rows.condition.row() != 0)
            throw common::RunTimeError(u"No variable is chosen for the condition"_s);
        keep(rows.variable, rows.trigger.variable);
    }
    for (const Rows &rows : m_rows)
        keep(rows.condition, rows.trigger.condition);
    for (const Rows &rows : m_rows)
        keep(rows.value, rows.trigger.value);
    for (const Rows &rows : m_rows)
        keep(rows.time, rows.trigger.time);
}

} // namespace recorder
