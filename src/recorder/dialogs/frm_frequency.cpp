#include "recorder/dialogs/frm_frequency.h"

#include "platform/guards.h"
#include "recorder/message_rates.h"

#include <QGridLayout>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize GridSize(600, 420); // pixels, at least
constexpr int ButtonsInRow = 2;

// Sets rates for all messages.
struct RateButton
{
    const char *name;
    const char *caption;
    const char *toolTip;
    void (*rates)(MessageTable &);
};

constexpr RateButton RateButtons[] = {
    {"cmdStorageToMax", "Set &storage to the maximum rate",
     "Sets all storage frequencies to maximum frequency", &setStorageToMaximum},
    {"cmdSerialOutputToMax", "Set all serial outputs to &maximum",
     "This is not recommended when a display is used (sets all output frequencies to maximum)",
     &setOutputToMaximum},
    {"cmdSerialOutputToTypically", "Set all serial outputs to &typical display settings",
     "Sets all output frequency to typical settings", &setOutputToTypical},
    {"cmdDisableSerialOut", "&Disable the serial output", "Sets all output frequency to be disabled",
     &disableOutput},
};

} // namespace

frmFrequency::frmFrequency(MessageTable &table, QString file, const forms::Context &context)
    : Dialog(u"Set Message Frequency"_s, context), m_table(table), m_file(std::move(file)),
      m_grid(new MessageGrid(table))
{
    makeResizable();
    auto *heading = new QLabel(u"Set message &update frequency"_s);
    heading->setBuddy(m_grid);
    m_grid->setAccessibleName(u"Set message update frequency"_s);
    m_grid->setMinimumSize(GridSize);
    body().addWidget(heading);
    body().addWidget(m_grid);
    body().addWidget(new QLabel(u"Type a number or a name to go to that message."_s));
    body().addLayout(makeButtons());
    addButtons(forms::okAndCancel());
    m_grid->setFocus();
}

QLayout *frmFrequency::makeButtons()
{
    auto *layout = new QGridLayout;
    for (const RateButton &button : RateButtons) {
        QPushButton *push = makeButton(button.name, button.caption,
                                       [this, &button] { m_grid->messages().set(button.rates); });
        push->setToolTip(QString::fromUtf8(button.toolTip));
        layout->addWidget(push, layout->count() / ButtonsInRow, layout->count() % ButtonsInRow);
    }
    return layout;
}

void frmFrequency::done(int result)
{
    Dialog::done(result);
    platform::reportFailures(prompts(), [this] { platform::updateFile(m_file, writeMessageTable(m_table)); });
}

} // namespace recorder
