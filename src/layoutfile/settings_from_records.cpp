#include "layoutfile/settings_from_records.h"

#include <algorithm>

namespace layoutfile {

namespace {

using recorder::EncodePattern;
using recorder::RecorderSettings;
using recorder::VideoStandard;

constexpr std::size_t MostGears = 7;

// One overload for each record that carries a setting; values that the recorder could not hold are left out.
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
        m_settings.ChapterList.push_back({r.type, r.value1, r.sign1, r.variable, r.sign2, r.value2});
    }
    void operator()(const LapChaptersRecord &r)
    {
        m_settings.LapChapterActive = 1;
        m_settings.LapChapterType = r.type;
    }
    void operator()(const AutoStartRecord &r)
    {
        m_settings.autoStart = {r.variable, r.condition, r.value, r.time};
    }
    void operator()(const AutoStopRecord &r)
    {
        m_settings.autoStop = {r.variable, r.condition, r.value, r.time};
    }
    void operator()(const VideoStandardRecord &r)
    {
        m_standard = r.standard == 0 ? VideoStandard::Ntsc : VideoStandard::Pal;
    }
    void operator()(const BitRateRecord &r)
    {
        if (r.ratePlusOne > 0)
            m_settings.CurrentBitRate = static_cast<quint8>(r.ratePlusOne - 1);
        if (r.encodePattern <= static_cast<quint8>(EncodePattern::IPB))
            m_settings.encodePattern = static_cast<EncodePattern>(r.encodePattern);
    }
    void operator()(const MessageStorageRateRecord &r)
    {
        if (recorder::MessageEntry *entry = message()) {
            entry->number = r.number;
            entry->storageRate = r.rate;
        }
    }
    void operator()(const MessageOutputRateRecord &r)
    {
        if (recorder::MessageEntry *entry = message())
            entry->outputRate = r.rate;
    }
    void operator()(const GearsRecord &r)
    {
        m_settings.PulsesPerRevolution = r.pulsesPerRevolution;
        m_settings.GearMethod = r.method;
        m_settings.GearVariable = r.variable;
        const std::size_t count = std::min(r.lower.size(), MostGears);
        if (count == 0)
            return;
        m_settings.GearTable.resize(count);
        for (std::size_t i = 0; i < count; ++i)
            m_settings.GearTable[i] = {r.lower[i], r.upper[i]};
    }
    void operator()(const SpecialIconRecord &r)
    {
        if (r.entry == 1)
            m_settings.icon = {true, r.width, r.height, r.top, r.left, r.alpha, r.planes};
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
