#include "fuzz/fuzz_controls.h"

#include "controls/custom_dial/custom_dial.h"
#include "controls/factories.h"
#include "controls/overlay_control.h"
#include "controls/still_host.h"
#include "graphics/dial_scale.h"
#include "layoutfile/family_records.h"
#include "platform/guards.h"
#include "support/block_font.h"

namespace fuzz {

namespace {

using controls::OverlayControl;
using layoutfile::FamilyRecord;
using layoutfile::LayoutRecord;

constexpr QSize Window(24, 20); // that is painted of each control
constexpr int LargestFace = 64; // a dial is drawn as a whole
constexpr std::size_t MostTics = 8;

// A canvas that has nothing to show.
class Host final : public controls::StillHost
{
public:
    const platform::Screen &screen() const override { return m_screen; }
    const platform::NumberLocale &locale() const override { return m_locale; }
    platform::Prompts &prompts() override { return m_prompts; }
    const variables::Catalogue &catalogue() const override { return m_catalogue; }
    const platform::Folders &folders() const override { return m_folders; }
    recorder::VideoStandard VideoType() const override { return recorder::VideoStandard::Pal; }
    std::shared_ptr<const graphics::TextFont> textFont(const graphics::FontRequest &, int) override
    {
        return m_font;
    }
    std::shared_ptr<const graphics::OutlineFont> outlineFont(const QString &,
                                                             const graphics::FontStyle &) override
    {
        return m_outlines;
    }

private:
    static std::shared_ptr<const graphics::TextFont> blockFont()
    {
        const graphics::FontPair files = test::blockFont();
        return std::make_shared<graphics::TextFont>(
            *graphics::TextFont::fromFiles(files.standard, files.extended));
    }

    platform::Screen m_screen;
    platform::NumberLocale m_locale;
    platform::SilentPrompts m_prompts;
    variables::Catalogue m_catalogue;
    platform::Folders m_folders;
    std::shared_ptr<const graphics::TextFont> m_font = blockFont();
    std::shared_ptr<const graphics::OutlineFont> m_outlines =
        std::make_shared<graphics::OutlineFont>(QString(), graphics::FontStyle(), QString());
};

bool isQuickToDraw(const OverlayControl &control)
{
    const auto *dial = dynamic_cast<const controls::CustomDial *>(&control);
    return !dial ||
           (control.outerRect().width() <= LargestFace && control.outerRect().height() <= LargestFace &&
            graphics::ticsOf(dial->get()).size() <= MostTics);
}

// The control of one record: shown, painted and stored again.
void useControl(const FamilyRecord &family, const LayoutRecord &record, const layoutfile::Loading &load,
                controls::ControlHost &host, layoutfile::Gathering &save)
{
    const controls::Family &kind = *controls::familyOf(family.family);
    const auto control = controls::factoryOf(family.family)(kind, host);
    platform::skipFailures([&] { family.build(record, *control, load); });
    platform::skipFailures([&] { control->AssignProperties(); });
    if (!isQuickToDraw(*control))
        return;
    platform::skipFailures([&] {
        controls::Composition onto{QImage(Window, QImage::Format_RGB32), control->outerRect().topLeft()};
        onto.picture.fill(Qt::black);
        control->paint(onto);
    });
    platform::skipFailures([&] { family.gather(*control, save); });
    platform::skipFailures([&] { control->Deserialise(control->Serialise()); });
}

} // namespace

void useControls(const std::vector<LayoutRecord> &records)
{
    static Host host;
    static const platform::Stamp stamp{[] { return QDateTime({2005, 12, 31}, {23, 59}); }, {}, {}};
    platform::NoProgress silent;
    const layoutfile::Loading load(records, host.folders(), stamp, host.screen());
    layoutfile::Gathering save{{}, {}, layoutfile::FontList(nullptr, false, silent), {}, host.screen()};
    for (const FamilyRecord &family : layoutfile::familyRecords()) {
        for (const LayoutRecord &record : records) {
            if (record.type() == family.type)
                useControl(family, record, load, host, save);
        }
    }
    save.fonts.addRecords(save.groups);
    save.images.addRecord(save.groups);
}

} // namespace fuzz
