#include "layoutfile/modSaveVGLFiles.h"

#include "graphics/thumbnail.h"
#include "layoutfile/family_records.h"
#include "platform/file_replace.h"
#include "platform/guards.h"

#include <algorithm>

namespace layoutfile {

namespace {

using controls::ControlType;
using controls::OverlayControl;
using ControlList = QList<OverlayControl *>;

int countOf(const ControlList &controls, ControlType family)
{
    return static_cast<int>(
        std::count_if(controls.begin(), controls.end(),
                      [family](const OverlayControl *control) { return control->family().type == family; }));
}

bool isFullFrame(const OverlayControl *control)
{
    return control->family().type == ControlType::VideoSource &&
           control->read("curDivisor") == controls::PropertyValue(qint32{1});
}

// The object total scales the progress bar; bar graphs count twice: deliberate.
int objectTotal(const ControlList &controls)
{
    return static_cast<int>(controls.size()) + countOf(controls, ControlType::BarGraph);
}

// The first complaint that the Save command shows.
QString complaint(const ControlList &controls)
{
    if (countOf(controls, ControlType::TrackMap) > 1)
        return QStringLiteral("System does not support more than one Track Map");
    if (std::count_if(controls.begin(), controls.end(), isFullFrame) > 1)
        return QStringLiteral("You can't use multiple Video Sources as background video\n"
                              "Please select one Video Source as a background video");
    if (objectTotal(controls) == 0)
        return QStringLiteral("System can't detect any object(s) to save");
    return {};
}

bool sharesCamera(const std::vector<LayoutRecord> &sources)
{
    for (auto one = sources.begin(); one != sources.end(); ++one) {
        const bool shared = std::any_of(one + 1, sources.end(), [&](const LayoutRecord &other) {
            return std::get<VideoSourceRecord>(other.body).cameraNo ==
                   std::get<VideoSourceRecord>(one->body).cameraNo;
        });
        if (shared)
            return true;
    }
    return false;
}

// Maps `done` of `total` into the stretch of the progress bar that begins at `from`.
void advance(platform::Progress &progress, int from, int length, int done, int total)
{
    progress.setValue(from + done * length / std::max(total, 1));
}

void gatherControls(Gathering &save, const ControlList &controls, platform::Progress &progress)
{
    const int total = objectTotal(controls);
    int done = 0;
    for (OverlayControl *control : controls) {
        for (const FamilyRecord &record : familyRecords()) {
            if (record.family == control->family().type)
                record.gather(*control, save);
        }
        advance(progress, 0, 25, ++done, total);
    }
}

// Enabled variables in catalogue order. The length 1 of a used variable without a program does not count in
// offsets or sums.
void gatherVariables(Gathering &save, const variables::VariableTable &table, platform::Progress &progress)
{
    markReferences(save.used, table);
    for (std::size_t i = 1; i < table.size(); ++i) {
        const variables::VariableRecord &record = table[i];
        if (!record.Enabled)
            continue;
        const quint8 used = save.used.isUsed(static_cast<int>(i)) ? 1 : 0;
        save.groups.add(
            VariableEntry{static_cast<qint32>(i), used, record.SmoothingTime, record.MaximumROC, -1, used});
    }
    save.groups.add(ProgramsRecord{});
    progress.setValue(60);
}

template <typename Record>
void gatherTrigger(RecordGroups &groups, const recorder::RecordingTrigger &trigger)
{
    if (trigger.condition != 0)
        groups.add(Record{trigger.variable, trigger.value, trigger.condition, trigger.time});
}

void gatherGears(RecordGroups &groups, const recorder::RecorderSettings &settings)
{
    GearsRecord gears;
    gears.pulsesPerRevolution = settings.PulsesPerRevolution;
    for (const recorder::GearLimits &limits : settings.GearTable) {
        gears.lower.push_back(limits.lower);
        gears.upper.push_back(limits.upper);
    }
    gears.method = settings.GearMethod;
    gears.variable = settings.GearVariable;
    groups.add(std::move(gears));
}

void gatherMessages(RecordGroups &groups, const recorder::MessageTable &table)
{
    for (const recorder::MessageEntry &entry : table) {
        groups.add(MessageStorageRateRecord{entry.number, entry.storageRate});
        groups.add(MessageOutputRateRecord{entry.number, entry.outputRate});
    }
}

void gatherIcon(RecordGroups &groups, const recorder::SpecialIcon &icon)
{
    if (icon.enabled)
        groups.add(
            SpecialIconRecord{1, icon.width, icon.height, icon.top, icon.left, icon.alpha, {icon.planes}});
}

void gatherSettings(RecordGroups &groups, const recorder::RecorderSettings &settings)
{
    for (const recorder::ChapterCondition &c : settings.ChapterList)
        groups.add(ChapterRecord{c.type, c.value1, c.sign1, c.variable, c.sign2, c.value2});
    if (settings.LapChapterActive == 1)
        groups.add(LapChaptersRecord{settings.LapChapterType});
    gatherTrigger<AutoStartRecord>(groups, settings.autoStart);
    gatherTrigger<AutoStopRecord>(groups, settings.autoStop);
    groups.add(VideoStandardRecord{static_cast<quint8>(settings.VideoType)});
    groups.add(BitRateRecord{static_cast<quint8>(settings.CurrentBitRate + 1),
                             static_cast<quint8>(settings.encodePattern)});
    gatherMessages(groups, settings.MessageTable);
    gatherGears(groups, settings);
    gatherIcon(groups, settings.icon);
}

void gatherThumbnail(RecordGroups &groups, const controls::ControlSurface &surface)
{
    // A layout without its thumbnail is still a layout.
    platform::skipFailures(
        [&] { groups.add(ThumbnailRecord{Bulk{graphics::thumbnailJpeg(surface.renderPreview())}}); });
}

// Ends the progress display on every way out.
class ProgressScope
{
public:
    ProgressScope(platform::Progress &progress, const QString &title) : m_progress(progress)
    {
        progress.begin(title);
    }
    ~ProgressScope() { m_progress.end(); }
    Q_DISABLE_COPY_MOVE(ProgressScope)

private:
    platform::Progress &m_progress;
};

// False when two cameras clash.
bool writeLayout(const QString &path, SaveKind kind, const SaveContext &context, const ControlList &controls)
{
    const ProgressScope scope(context.progress, kind == SaveKind::Command
                                                    ? QStringLiteral("Saving configuration.....")
                                                    : QStringLiteral("Saving workspace....."));
    Gathering save{{}, {}, context.screen};
    gatherThumbnail(save.groups, context.surface);
    gatherControls(save, controls, context.progress);
    if (kind != SaveKind::Backup && sharesCamera(save.groups.of(RecordType::VideoSource)))
        return false;
    markSettings(save.used, context.settings);
    context.progress.setValue(50);
    gatherVariables(save, context.catalogue.live, context.progress);
    gatherSettings(save.groups, context.settings);
    context.progress.setValue(90);
    platform::replaceFile(path, assembleLayout(save.groups, context.stamp));
    context.progress.setValue(100);
    return true;
}

} // namespace

SaveResult SaveVGL(const QString &path, SaveKind kind, const SaveContext &context)
{
    using platform::Icon;
    if (path.isEmpty())
        return SaveResult::NothingToDo;
    const ControlList controls = context.surface.controls();
    if (kind == SaveKind::Command) {
        if (const QString text = complaint(controls); !text.isEmpty()) {
            context.prompts.message(Icon::Critical, platform::ProductTitle, text);
            return SaveResult::Refused;
        }
    }
    if (controls.isEmpty())
        return SaveResult::NothingToDo;
    if (!writeLayout(path, kind, context, controls)) {
        context.prompts.message(
            Icon::Critical, platform::ProductTitle,
            QStringLiteral("Invalid configuration\n"
                           "Current configuration used same camera no for several video objects "));
        return SaveResult::Refused;
    }
    return SaveResult::Written;
}

} // namespace layoutfile
