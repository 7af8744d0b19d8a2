#include "surface/library_icons.h"

#include "controls/factories.h"
#include "controls/still_host.h"
#include "graphics/picture_loader.h"
#include "platform/guards.h"
#include "surface/overlay_picture.h"
#include "surface/placing.h"

#include <QFileInfo>

#include <utility>

namespace surface {

using controls::Box;
using controls::OverlayControl;

namespace {

constexpr int PictureSide = 183;    // pixels: 203 less the editing frame
constexpr int LargestControl = 146; // in it: the rest is margin
constexpr QSize LargestShown = recorder::canvasSize(recorder::VideoStandard::Pal);
const QColor Plate(0x2f, 0x3b, 0x4a);

// Answers what another host answers.
class Nowhere final : public controls::StillHost
{
public:
    explicit Nowhere(ControlHost &host) : m_host(host) {}

    const platform::Screen &screen() const override { return m_host.screen(); }
    const platform::NumberLocale &locale() const override { return m_host.locale(); }
    platform::Prompts &prompts() override { return m_host.prompts(); }
    const variables::Catalogue &catalogue() const override { return m_host.catalogue(); }
    const platform::Folders &folders() const override { return m_host.folders(); }
    recorder::VideoStandard VideoType() const override { return m_host.VideoType(); }
    std::shared_ptr<const graphics::TextFont> textFont(const graphics::FontRequest &request,
                                                       int usualSize) override
    {
        return m_host.textFont(request, usualSize);
    }
    std::shared_ptr<const graphics::OutlineFont> outlineFont(const QString &face,
                                                             const graphics::FontStyle &style) override
    {
        return m_host.outlineFont(face, style);
    }

private:
    ControlHost &m_host;
};

// The control alone, as the recorder would draw it.
QImage picture(OverlayControl &control)
{
    place(control, {});
    place(control, control.host().screen().toTwips(QPointF(-control.area().topLeft())));
    QImage ground(control.area().size().boundedTo(LargestShown).expandedTo({1, 1}), QImage::Format_RGB32);
    ground.fill(Plate);
    return overlayPicture(std::move(ground), {&control});
}

bool isUsual(const Box &box, const platform::Screen &screen)
{
    constexpr int Side = graphics::MaxPictureSide;
    const controls::Box largest = controls::framed({{}, graphics::paddedSize({Side, Side})}, screen);
    return box.Width >= 0 && box.Width <= largest.Width && box.Height >= 0 && box.Height <= largest.Height;
}

} // namespace

QImage libraryIcon(const controls::Family &family, controls::ControlHost &host, const IconFilling &fill)
{
    Nowhere nowhere(host);
    const auto control = controls::factoryOf(family.type)(family, nowhere);
    setStartSize(*control, {});
    fill(*control);
    const QImage alone = picture(*control);
    QRect place({}, alone.size().scaled(LargestControl, LargestControl, Qt::KeepAspectRatio));
    QImage icon(PictureSide, PictureSide, QImage::Format_RGB32);
    icon.fill(Plate);
    place.moveCenter(icon.rect().center());
    QPainter(&icon).drawImage(place.topLeft(),
                              alone.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return icon;
}

void fillStandard(OverlayControl &control)
{
    control.applyInitialProperties();
    control.showSample();
}

void fillConfigured(OverlayControl &control, const QStringList &texts)
{
    const QPointF corner = cornerOf(control);
    if (platform::skipFailures([&] { control.Deserialise(texts); }) &&
        isUsual(control.box(), control.host().screen())) {
        // Some texts hold another one.
        control.moveTo(static_cast<float>(corner.x()), static_cast<float>(corner.y()));
        return;
    }
    setStartSize(control, corner);
    control.applyInitialProperties();
}

QString thumbnailName(const QString &folder, QDateTime now)
{
    for (;; now = now.addSecs(1)) {
        QString name = now.toString(QStringLiteral("yy")) + QString::number(now.date().dayOfYear()) +
                       now.toString(QStringLiteral("hhmmss'.bmp'"));
        if (!QFileInfo::exists(folder + name))
            return name;
    }
}

} // namespace surface
