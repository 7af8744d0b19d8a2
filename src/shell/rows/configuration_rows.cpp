// The Configuration menu.

#include "recorder/bit_rate.h"
#include "recorder/dialogs/frm_auto_chapter_mark.h"
#include "recorder/dialogs/frm_frequency.h"
#include "recorder/dialogs/frm_gear_display.h"
#include "recorder/dialogs/frm_manual_bit_rate.h"
#include "recorder/dialogs/frm_rpm.h"
#include "recorder/dialogs/frm_special_icons.h"
#include "recorder/dialogs/frm_start_stop_rec.h"
#include "shell/frm_main.h"
#include "shell/rows/command_rows.h"

namespace shell {

using recorder::EncodePattern;

namespace {

template <EncodePattern Pattern>
constexpr Command pattern(const char *name, const char *caption)
{
    return {.places = EncodePatternMenu,
            .name = name,
            .caption = caption,
            .run = [](frmMain &w) { w.state().settings.encodePattern = Pattern; },
            .isChecked = [](const frmMain &w) { return w.state().settings.encodePattern == Pattern; }};
}

constexpr Command Rows[] = {
    {.places = ConfigurationMenu,
     .name = "mnuAutoStartStopRec",
     .caption = "Auto Start/Stop Recording",
     .run =
         [](frmMain &w) {
             recorder::RecorderSettings &settings = w.state().settings;
             recorder::frmStartStopRec(settings.autoStart, settings.autoStop, w.state().catalogue.live,
                                       w.dialogContext())
                 .exec();
         },
     .isMorvelOnly = true},
    {.places = ConfigurationMenu,
     .name = "mnuAutoChapterMark",
     .caption = "Auto Chapter Markers",
     .run =
         [](frmMain &w) {
             recorder::frmAutoChapterMark(w.state().settings, w.state().catalogue.live, w.dialogContext())
                 .exec();
         },
     .isMorvelOnly = true},
    {.places = ConfigurationMenu, .name = "dashsp", .isMorvelOnly = true},
    {.places = ConfigurationMenu,
     .name = "mnuSetMsgFrequency",
     .caption = "Message Frequency",
     .run =
         [](frmMain &w) {
             ProgramState &state = w.state();
             recorder::frmFrequency dialog(state.settings.MessageTable, state.folders.MessagesFile(),
                                           w.dialogContext());
             if (dialog.exec() == QDialog::Accepted)
                 state.startMessages = state.settings.MessageTable; // as the file has it
         }},
    {.places = ConfigurationMenu,
     .name = "mnuGearDisplay",
     .caption = "Gear Display",
     .run =
         [](frmMain &w) {
             recorder::frmGearDisplay(w.state().settings, w.state().catalogue.live, w.dialogContext()).exec();
         }},
    {.places = ConfigurationMenu,
     .name = "mnuRPM",
     .caption = "RPM",
     .run =
         [](frmMain &w) {
             recorder::frmRPM(w.state().settings.PulsesPerRevolution, w.dialogContext()).exec();
         }},
    {.places = ConfigurationMenu,
     .name = "mnuSpecialIcons",
     .caption = "Special Icons",
     .run = [](frmMain &w) { recorder::frmSpecialIcons(w.state().settings.icon, w.dialogContext()).exec(); }},
    {.places = ConfigurationMenu, .name = "l4", .isMorvelOnly = true},
    {.places = ConfigurationMenu,
     .name = "mnuBitRate",
     .captionOf =
         [](const frmMain &w) { return recorder::bitRateCaption(w.state().settings.CurrentBitRate); },
     .icon = "menu/bitrate",
     .run =
         [](frmMain &w) {
             recorder::frmManualBitRate(w.state().settings.CurrentBitRate, w.dialogContext()).exec();
         },
     .isMorvelOnly = true},
    {.places = ConfigurationMenu,
     .opens = EncodePatternMenu,
     .name = "mnuEncodePattern",
     .caption = "Encode Pattern",
     .isMorvelOnly = true},
    pattern<EncodePattern::I>("mnuI", "I"),
    pattern<EncodePattern::IP>("mnuIP", "IP"),
    pattern<EncodePattern::IPB>("mnuIPB", "IPB"),
};

} // namespace

std::span<const Command> configurationRows() { return Rows; }

} // namespace shell
