#include "layoutfile/modSaveVGLFiles.h"

#include "graphics/thumbnail.h"
#include "layoutfile/family_records.h"
#include "layoutfile/program_pass.h"
#include "layoutfile/save_checks.h"
#include "layoutfile/settings_records.h"
#include "platform/guards.h"

#include <algorithm>

namespace layoutfile {

using namespace Qt::StringLiterals;

namespace {

using controls::OverlayControl;
using platform::ProgressScope;
using ControlList = QList<OverlayControl *>;

const QString SharedCamera = u"Invalid configuration\n"
                             "Current configuration used same camera no for several video objects "_s;

// A copy for the case of need. Nothing is said as it is made, and shared cameras do not refuse it.
bool isSpare(SaveKind kind) { return kind == SaveKind::Backup || kind == SaveKind::Recovery; }

std::vector<ControlKind> kindsOf(const ControlList &controls)
{
    std::vector<ControlKind> kinds;
    for (const OverlayControl *control : controls)
        kinds.push_back({control->family().type, control->isFullFrame()});
    return kinds;
}

int progressSteps(const ControlList &controls)
{
    int steps = 0;
    for (const OverlayControl *control : controls)
        steps += recordOf(control->family().type).progressSteps;
    return steps;
}

// A control that cannot be stored ends the user's Save, which says so. A silent save goes on without it: the
// rest of the design must not be lost with it.
void gatherControls(Gathering &save, SaveKind kind, const ControlList &controls, ProgressScope &progress)
{
    const int total = progressSteps(controls);
    int done = 0;
    for (const OverlayControl *control : controls) {
        const FamilyRecord &family = recordOf(control->family().type);
        const auto gather = [&] { family.gather(*control, save); };
        if (kind == SaveKind::Command)
            gather();
        else
            platform::skipFailures(gather);
        done += family.progressSteps;
        progress.advance(0, 25, done, total);
    }
    save.fonts.addRecords(save.groups);
    save.images.addRecord(save.groups);
}

// The records that stand in front of the variables. A control may have more than one among them.
void writeControls(LayoutWriter &file, const RecordGroups &groups, int total, ProgressScope &progress)
{
    int done = 0;
    file.put(groups, RecordType::Gauge, [&](const LayoutRecord &record) {
        done = std::min(done + progressStepsOf(record.type()), total);
        progress.advance(25, 25, done, total);
    });
}

void gatherVariables(Gathering &save, const SaveContext &context, ProgressScope &progress)
{
    const variables::VariableTable &table = context.catalogue.live;
    markReferences(save.used, table);
    const auto count =
        std::count_if(table.begin(), table.end(), [](const auto &record) { return record.Enabled; });
    ProgramPass pass(context.catalogue, save.used, context.locale);
    qsizetype done = 0;
    for (qsizetype i = 1; i < table.size(); ++i) {
        if (!table[i].Enabled)
            continue;
        save.groups.add(pass.entry(static_cast<int>(i)));
        progress.advance(50, 10, ++done, count);
    }
    save.groups.add(ProgramsRecord{Bulk{pass.programs()}});
}

// A layout without its thumbnail is still a layout.
void gatherThumbnail(RecordGroups &groups, SaveKind kind, const SaveContext &context)
{
    platform::skipFailures([&] {
        const graphics::Thumbnail made = graphics::thumbnailOf(context.surface.renderPreview());
        if (made.fault.isEmpty())
            groups.add(ThumbnailRecord{Bulk{made.jpeg}});
        else if (!isSpare(kind))
            context.prompts.message(platform::Icon::None, platform::ProductTitle, made.fault);
    });
}

LayoutBytes assembled(SaveKind kind, const SaveContext &context, const ControlList &controls)
{
    // Recovery makes no fonts: nothing but the tool reads it.
    Gathering save{{},
                   {},
                   FontList(kind == SaveKind::Recovery ? nullptr : &context.fonts, kind == SaveKind::Command,
                            context.progress),
                   {},
                   context.screen};
    if (kind != SaveKind::Recovery)
        gatherThumbnail(save.groups, kind, context);
    ProgressScope progress(context.progress, kind == SaveKind::Command ? u"Saving configuration....."_s
                                                                       : u"Saving workspace....."_s);
    gatherControls(save, kind, controls, progress);
    if (!isSpare(kind) && sharesCamera(save.groups.of(RecordType::VideoSource)))
        return {{}, SharedCamera};
    markSettings(save.used, context.settings);
    LayoutWriter file(context.stamp);
    writeControls(file, save.groups, progressSteps(controls), progress);
    gatherVariables(save, context, progress);
    gatherSettings(save.groups, context.settings, progress);
    LayoutBytes made{file.finish(save.groups), {}, save.fonts.replaced()};
    progress.setValue(100);
    return made;
}

} // namespace

LayoutBytes layoutBytes(SaveKind kind, const SaveContext &context)
{
    const ControlList controls = context.surface.controls();
    if (kind == SaveKind::Command) {
        if (const QString complaint = saveComplaint(kindsOf(controls)); !complaint.isEmpty())
            return {{}, complaint};
    }
    return controls.isEmpty() ? LayoutBytes() : assembled(kind, context, controls);
}

} // namespace layoutfile
