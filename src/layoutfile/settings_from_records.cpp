#include "layoutfile/settings_from_records.h"

#include <algorithm>

namespace layoutfile {

namespace {

using recorder::EncodePattern;
using recorder::RecorderSettings;
using recorder::VideoStandard;

// A value that its list does not hold stands for the first entry.
quint8 listed(quint8 value, quint8 last) { return value <= last ? value : quint8{0}; }

template <typename Record>
recorder::RecordingTrigger trigger(const Record &r)
{
    return {r.variable, listed(r.condition, recorder::LastCondition), r.value, r.time};
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
        m_settings.ChapterList.push_back({listed(r.type, recorder::LastChapterType), r.value1,
                                          listed(r.sign1, recorder::LastSign), r.variable,
                                          listed(r.sign2, recorder::LastSign), r.value2});
    }
    void operator()(const LapChaptersRecord &r)
    {
        m_settings.LapChapterActive = 1;
        m_settings.LapChapterType = listed(r.type, recorder::LastChapterType);
    }
    void operator()(const AutoStartRecord &r) { m_settings.autoStart = trigger(r); }
    void operator()(const AutoStopRecord &r) { m_settings.autoStop = trigger(r); }
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
        m_settings.PulsesPerRevolution = r.pulsesPerRevolution;
        m_settings.GearMethod = listed(r.method, recorder::LastGearMethod);
        m_settings.GearVariable = r.variable;
        const std::size_t count = std::min(r.lower.size(), recorder::MostGears);
        if (count == 0)
            return;
        m_settings.GearTable.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            m_settings.GearTable[i] = {r.lower[i], r.upper[i]};
    }
    void operator()(const SpecialIconRecord &r)
    {
        if (r.entry == 1)
            m_settings.icon = {true, r.top, r.left, r.alpha, pictureOf(r)};
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
