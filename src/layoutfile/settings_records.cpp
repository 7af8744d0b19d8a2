#include "layoutfile/settings_records.h"

#include "common/rounding.h"
#include "layoutfile/field_link.h"

#include <algorithm>

namespace layoutfile {

namespace {

using recorder::EncodePattern;
using recorder::RecorderSettings;
using recorder::VideoStandard;

// The members of a setting beside the fields of its record, for both directions.

void linkChapter(auto &chapter, auto &record, auto field)
{
    field(chapter.type, record.type);
    field(chapter.value1, record.value1);
    field(chapter.sign1, record.sign1);
    field(chapter.variable, record.variable);
    field(chapter.sign2, record.sign2);
    field(chapter.value2, record.value2);
}

void linkTrigger(auto &trigger, auto &record, auto field)
{
    field(trigger.variable, record.variable);
    field(trigger.value, record.value);
    field(trigger.condition, record.condition);
    field(trigger.time, record.time);
}

void linkGears(auto &settings, auto &record, auto field)
{
    field(settings.PulsesPerRevolution, record.pulsesPerRevolution);
    field(settings.GearMethod, record.method);
    field(settings.GearVariable, record.variable);
}

void linkIcon(auto &icon, auto &record, auto field)
{
    field(icon.top, record.top);
    field(icon.left, record.left);
    field(icon.alpha, record.alpha);
}

constexpr quint8 FirstIcon = 1;

void gatherChapters(RecordGroups &groups, const std::vector<recorder::ChapterCondition> &chapters,
                    platform::ProgressScope &progress)
{
    qsizetype done = 0;
    for (const recorder::ChapterCondition &chapter : chapters) {
        ChapterRecord record;
        linkChapter(chapter, record, ToRecord());
        groups.add(record);
        progress.advance(60, 10, ++done, static_cast<qsizetype>(chapters.size()));
    }
}

template <typename Record>
void gatherTrigger(RecordGroups &groups, const recorder::RecordingTrigger &trigger)
{
    if (!trigger.isActive())
        return;
    Record record;
    linkTrigger(trigger, record, ToRecord());
    groups.add(record);
}

void gatherMessages(RecordGroups &groups, const recorder::MessageTable &table)
{
    for (const recorder::MessageEntry &entry : table) {
        groups.add(MessageStorageRateRecord{entry.number, entry.storageRate});
        groups.add(MessageOutputRateRecord{entry.number, entry.outputRate});
    }
}

void gatherGears(RecordGroups &groups, const RecorderSettings &settings)
{
    GearsRecord gears;
    linkGears(settings, gears, ToRecord());
    for (const recorder::GearLimits &limits : settings.GearTable) {
        gears.lower.push_back(limits.lower);
        gears.upper.push_back(limits.upper);
    }
    groups.add(std::move(gears));
}

void gatherIcon(RecordGroups &groups, const recorder::SpecialIcon &icon)
{
    if (!icon.enabled)
        return;
    const graphics::Planes &planes = icon.picture.planes();
    SpecialIconRecord record;
    linkIcon(icon, record, ToRecord());
    record.entry = FirstIcon;
    record.width = common::toInteger<qint16>(planes.width);
    record.height = common::toInteger<qint16>(planes.height);
    record.planes = planes.y + planes.u + planes.v;
    groups.add(std::move(record));
}

// A value that its list does not hold becomes the first entry.
void keepListed(quint8 &value, quint8 last)
{
    if (value > last)
        value = 0;
}

template <typename Record>
recorder::RecordingTrigger triggerOf(const Record &record)
{
    recorder::RecordingTrigger trigger;
    linkTrigger(trigger, record, FromRecord());
    keepListed(trigger.condition, recorder::LastCondition);
    return trigger;
}

graphics::PlanePicture pictureOf(const SpecialIconRecord &icon)
{
    const qsizetype luma = icon.lumaSize(), chroma = icon.chromaSize();
    return graphics::PlanePicture::fromFile({icon.width, icon.height, icon.planes.first(luma),
                                             icon.planes.sliced(luma, chroma), icon.planes.last(chroma)},
                                            {});
}

// One overload for each record that carries a setting. What no dialog could show does not get in: values
// outside their list, records of a message or an icon that does not exist, a gear table without gears.
class SettingsTaker
{
public:
    explicit SettingsTaker(RecorderSettings &settings) : m_settings(settings), m_standard(settings.VideoType)
    {
    }

    VideoStandard standard() const { return m_standard; }
    void setObject(qint16 object) { m_object = object; }

    template <typename Other>
    void operator()(const Other &)
    {
    }
    void operator()(const ChapterRecord &r)
    {
        recorder::ChapterCondition chapter;
        linkChapter(chapter, r, FromRecord());
        keepListed(chapter.type, recorder::LastChapterType);
        keepListed(chapter.sign1, recorder::LastSign);
        keepListed(chapter.sign2, recorder::LastSign);
        m_settings.ChapterList.push_back(chapter);
    }
    void operator()(const LapChaptersRecord &r)
    {
        m_settings.LapChapterActive = 1;
        m_settings.LapChapterType = r.type;
        keepListed(m_settings.LapChapterType, recorder::LastChapterType);
    }
    void operator()(const AutoStartRecord &r) { m_settings.autoStart = triggerOf(r); }
    void operator()(const AutoStopRecord &r) { m_settings.autoStop = triggerOf(r); }
    void operator()(const VideoStandardRecord &r)
    {
        m_standard = r.standard == 0 ? VideoStandard::Ntsc : VideoStandard::Pal;
    }
    void operator()(const BitRateRecord &r)
    {
        if (r.ratePlusOne > 0)
            m_settings.CurrentBitRate = static_cast<quint8>(r.ratePlusOne - 1);
        m_settings.encodePattern =
            static_cast<EncodePattern>(std::min(r.encodePattern, static_cast<quint8>(EncodePattern::IPB)));
    }
    void operator()(const MessageStorageRateRecord &r)
    {
        if (recorder::MessageEntry *entry = message()) {
            entry->number = r.number;
            entry->storageRate = recorder::listedRate(r.rate, entry->kind);
        }
    }
    void operator()(const MessageOutputRateRecord &r)
    {
        if (recorder::MessageEntry *entry = message())
            entry->outputRate = recorder::listedRate(r.rate, entry->kind);
    }
    void operator()(const GearsRecord &r)
    {
        linkGears(m_settings, r, FromRecord());
        keepListed(m_settings.GearMethod, recorder::LastGearMethod);
        const std::size_t count = std::min(r.lower.size(), recorder::MostGears);
        if (count == 0)
            return;
        m_settings.GearTable.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            m_settings.GearTable[i] = {r.lower[i], r.upper[i]};
    }
    void operator()(const SpecialIconRecord &r)
    {
        if (r.entry != FirstIcon)
            return;
        m_settings.icon.enabled = true;
        linkIcon(m_settings.icon, r, FromRecord());
        m_settings.icon.picture = pictureOf(r);
    }

private:
    recorder::MessageEntry *message()
    {
        const int index = m_object - 1;
        const bool known = index >= 0 && index < static_cast<int>(m_settings.MessageTable.size());
        return known ? &m_settings.MessageTable[static_cast<std::size_t>(index)] : nullptr;
    }

    RecorderSettings &m_settings;
    VideoStandard m_standard;
    qint16 m_object = 0;
};

} // namespace

void gatherSettings(RecordGroups &groups, const RecorderSettings &settings, platform::ProgressScope &progress)
{
    gatherChapters(groups, settings.ChapterList, progress);
    if (settings.LapChapterActive == 1)
        groups.add(LapChaptersRecord{settings.LapChapterType});
    progress.setValue(65);
    gatherTrigger<AutoStartRecord>(groups, settings.autoStart);
    progress.setValue(70);
    gatherTrigger<AutoStopRecord>(groups, settings.autoStop);
    progress.setValue(75);
    groups.add(VideoStandardRecord{static_cast<quint8>(settings.VideoType)});
    progress.setValue(80);
    groups.add(BitRateRecord{static_cast<quint8>(settings.CurrentBitRate + 1),
                             static_cast<quint8>(settings.encodePattern)});
    progress.setValue(85);
    gatherMessages(groups, settings.MessageTable);
    progress.setValue(90);
    gatherGears(groups, settings);
    gatherIcon(groups, settings.icon);
}

VideoStandard settingsFromRecords(const std::vector<LayoutRecord> &records, RecorderSettings &settings)
{
    settings.ChapterList.clear();
    SettingsTaker taker(settings);
    for (const LayoutRecord &record : records) {
        taker.setObject(record.object);
        std::visit(taker, record.body);
    }
    return taker.standard();
}

} // namespace layoutfile
