#include "layoutfile/modLoadVGLFiles.h"

#include "controls/overlay_control.h"
#include "layoutfile/family_records.h"
#include "layoutfile/settings_from_records.h"
#include "platform/file_replace.h"
#include "platform/guards.h"
#include "variables/definition_file.h"

#include <algorithm>
#include <cmath>

namespace layoutfile {

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

void buildControl(const FamilyRecord &family, const RecordBody &body, controls::ControlSurface &surface)
{
    OverlayControl *control = surface.loadControl(family.family);
    if (!control)
        return;
    platform::skipFailures([&] { family.build(body, *control); });
    surface.showControl(*control);
    platform::skipFailures([&] { control->AssignProperties(); });
}

void buildControls(const Records &records, const LoadContext &context)
{
    const auto total = static_cast<int>(controlCount(records));
    int done = 0;
    for (const FamilyRecord &family : familyRecords()) {
        for (const LayoutRecord &record : records) {
            if (record.type() != family.type)
                continue;
            buildControl(family, record.body, context.surface);
            context.progress.setValue(50 + ++done * 40 / total);
        }
    }
}

// Brings the catalogue in line with the file: what the recorder was told about smoothing and limits.
void foldVariables(const Records &records, variables::Catalogue &catalogue)
{
    for (const LayoutRecord &record : records) {
        const auto *entry = std::get_if<VariableEntry>(&record.body);
        if (!entry || entry->variable < 1 || entry->variable > variables::LastIndex)
            continue;
        variables::VariableRecord &variable = catalogue.live[static_cast<std::size_t>(entry->variable)];
        if (std::isfinite(entry->smoothingTime))
            variable.SmoothingTime = entry->smoothingTime;
        if (std::isfinite(entry->maximumRoc))
            variable.MaximumROC = entry->maximumRoc;
    }
    variables::SetupVariables(catalogue);
    catalogue.staging = catalogue.live;
}

} // namespace

bool LoadVGL(const QString &path, const LoadContext &context)
{
    const auto file = validFile(path);
    if (!file) {
        context.prompts.message(platform::Icon::Critical, platform::ProductTitle,
                                QStringLiteral("Invalid File Format"));
        return false;
    }
    context.progress.begin(QStringLiteral("Loading configuration....."));
    const Records records = parseLayout(*file);
    context.progress.setValue(50);

    const recorder::VideoStandard before = context.settings.VideoType;
    const recorder::VideoStandard stored = settingsFromRecords(records, context.settings);
    if (stored != before)
        context.surface.setVideoStandard(stored);
    buildControls(records, context);
    foldVariables(records, context.catalogue);
    const bool filesWritten = platform::reportFailures(context.prompts, [&] {
        platform::replaceFile(context.folders.variablesFile(), variables::saveDefinitions(context.catalogue));
        platform::replaceFile(context.folders.MessagesFile(),
                              recorder::writeMessageTable(context.settings.MessageTable));
    });
    Q_UNUSED(filesWritten); // the design stands either way
    context.progress.end();
    context.surface.refresh();
    return true;
}

QString ExtractThumbnail(const QString &path, const platform::Folders &folders)
{
    QString thumbnailPath;
    platform::skipFailures([&] {
        const QByteArray jpeg = extractThumbnail(platform::readFile(path));
        if (jpeg.isEmpty())
            return;
        const QString target = folders.temporary + QStringLiteral("Thumb.jpg");
        platform::replaceFile(target, jpeg);
        thumbnailPath = target;
    });
    return thumbnailPath;
}

} // namespace layoutfile
