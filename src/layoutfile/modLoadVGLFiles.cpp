#include "layoutfile/modLoadVGLFiles.h"

#include "controls/overlay_control.h"
#include "layoutfile/family_records.h"
#include "layoutfile/fold_variables.h"
#include "layoutfile/settings_records.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "variables/definition_file.h"

#include <algorithm>
#include <functional>

namespace layoutfile {

using namespace Qt::StringLiterals;

namespace {

using controls::OverlayControl;
using Records = std::vector<LayoutRecord>;

// Nothing when the file cannot be read or is no layout.
std::optional<QByteArray> validFile(const QString &path)
{
    QByteArray bytes;
    const bool read = platform::skipFailures([&] { bytes = platform::readFile(path); });
    return read && IsValidVGL(bytes) ? std::optional(bytes) : std::nullopt;
}

qsizetype controlCount(const Records &records)
{
    return std::count_if(records.begin(), records.end(), [](const LayoutRecord &record) {
        const auto families = familyRecords();
        return std::any_of(families.begin(), families.end(),
                           [&](const FamilyRecord &family) { return family.type == record.type(); });
    });
}

void buildControl(const FamilyRecord &family, const LayoutRecord &record, const Loading &load,
                  controls::ControlSurface &surface)
{
    OverlayControl &control = surface.loadControl(family.family);
    platform::skipFailures([&] { family.build(record, control, load); });
    surface.showControl(control);
    platform::skipFailures([&] { control.AssignProperties(); });
}

ObjectNames claimedParts(const Records &records)
{
    ObjectNames parts;
    for (const FamilyRecord &family : familyRecords()) {
        for (const LayoutRecord &record : records) {
            if (family.claimParts && record.type() == family.type)
                family.claimParts(record.body, parts);
        }
    }
    return parts;
}

void tellDamagedImages(int count, platform::Prompts &prompts)
{
    if (count == 0)
        return;
    const QString which =
        count == 1 ? u"the pictures of one bitmap"_s : u"the pictures of %1 bitmaps"_s.arg(count);
    prompts.message(platform::Icon::Warning, platform::ProductTitle,
                    u"The layout does not hold %1 in full. Choose them again in the properties: a bitmap "
                    "without pictures is not saved."_s.arg(which));
}

// What is written beside the design, which stands whether or not it can be.
class Written
{
public:
    bool attempt(const std::function<void()> &write)
    {
        const auto reason = platform::failureOf(write);
        if (reason && m_reason.isEmpty())
            m_reason = *reason;
        return !reason;
    }
    // Mostly all fails for the same reason: it is told once.
    void tellFailure(platform::Prompts &prompts) const
    {
        if (!m_reason.isEmpty()) {
            prompts.message(
                platform::Icon::Warning, platform::ProductTitle,
                u"The layout is loaded, but not everything that comes with it could be written.\n"_s +
                    m_reason);
        }
    }

private:
    QString m_reason; // the first one
};

void buildControls(const Records &records, const LoadContext &context, platform::ProgressScope &progress,
                   Written &written)
{
    Loading load(records, context.folders, context.stamp, context.screen);
    const ObjectNames parts = claimedParts(records);
    written.attempt([&] { load.keepCopies(parts); });
    tellDamagedImages(load.damagedImages(parts), context.prompts);
    const qsizetype total = controlCount(records);
    qsizetype done = 0;
    for (const FamilyRecord &family : familyRecords()) {
        for (const LayoutRecord &record : records) {
            if (record.type() != family.type)
                continue;
            if (!parts.contains({record.type(), record.object}))
                buildControl(family, record, load, context.surface);
            progress.advance(50, 40, ++done, total);
        }
    }
}

// A picture for the eye only: one that cannot be written is no failure.
QString writeThumbnail(const QByteArray &jpeg, const platform::Folders &folders)
{
    const QString path = folders.inTemporary("Thumb.jpg");
    const bool written =
        platform::skipFailures([&] { platform::replaceFile(path, jpeg, platform::Flush::None); });
    return written ? path : QString();
}

Records readRecords(const QByteArray &file, const platform::Folders &folders,
                    platform::ProgressScope &progress)
{
    constexpr int ReadingEnds = 50;
    Records records = parseLayout(file);
    int read = 0;
    for (const LayoutRecord &record : records) {
        if (const auto *thumbnail = std::get_if<ThumbnailRecord>(&record.body))
            writeThumbnail(thumbnail->data.bytes, folders);
        progress.setValue(std::min(++read, ReadingEnds));
    }
    return records;
}

// The definition and message files follow the design, each for itself.
void writeTables(const LoadContext &context, Written &written)
{
    variables::Catalogue &catalogue = context.catalogue;
    if (!catalogue.definitionsLost) {
        const bool follows = written.attempt([&] {
            platform::updateFile(context.folders.variablesFile(), variables::saveDefinitions(catalogue));
        });
        catalogue.hasUnwrittenEdits = catalogue.hasUnwrittenEdits || !follows;
    }
    written.attempt([&] {
        platform::updateFile(context.folders.MessagesFile(),
                             recorder::writeMessageTable(context.settings.MessageTable));
    });
}

} // namespace

bool LoadVGL(const QString &path, const LoadContext &context)
{
    const auto file = validFile(path);
    if (!file) {
        context.prompts.message(platform::Icon::Critical, platform::ProductTitle, u"Invalid File Format"_s);
        return false;
    }
    Written written;
    {
        platform::ProgressScope progress(context.progress, u"Loading configuration....."_s);
        const Records records = readRecords(*file, context.folders, progress);
        const recorder::VideoStandard before = context.settings.VideoType;
        const recorder::VideoStandard stored = settingsFromRecords(records, context.settings);
        if (stored != before)
            context.surface.setVideoStandard(stored);
        buildControls(records, context, progress, written);
        foldVariables(records, context.catalogue, context.locale);
        writeTables(context, written);
    }
    context.surface.refresh();
    written.tellFailure(context.prompts);
    return true;
}

QString ExtractThumbnail(const QString &path, const platform::Folders &folders)
{
    QByteArray jpeg;
    platform::skipFailures([&] { jpeg = extractThumbnail(platform::readFile(path)); });
    return jpeg.isEmpty() ? QString() : writeThumbnail(jpeg, folders);
}

} // namespace layoutfile
