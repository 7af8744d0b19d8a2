#include "surface/library_icons.h"

#include "controls/factories.h"
#include "platform/guards.h"
#include "surface/overlay_picture.h"

#include <algorithm>

namespace surface {

namespace {

constexpr int PictureSide = 183; // pixels: 203 less the editing frame
const QColor Plate(0x2f, 0x3b, 0x4a);

// Hills under the sun.
QImage samplePicture()
{
    QImage picture(104, 104, QImage::Format_RGB32);
    picture.fill(QColor(0x8f, 0xc4, 0xe8));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xd8, 0x4d));
    painter.drawEllipse(68, 12, 24, 24);
    painter.setBrush(QColor(0x3f, 0x8f, 0x5a));
    painter.drawPolygon(QPolygon({{0, 104}, {0, 70}, {36, 34}, {104, 104}}));
    painter.setBrush(QColor(0x2e, 0x6d, 0x45));
    painter.drawPolygon(QPolygon({{30, 104}, {74, 56}, {104, 84}, {104, 104}}));
    return picture;
}

// So that there is something to see, the icon shows two thirds of the scale, black writing in white, and a
// picture.
void showWell(controls::OverlayControl &control)
{
    platform::skipFailures([&] { control.write("newForeColour", 0xFFFFFF); });
    platform::skipFailures([&] {
        const QImage picture = samplePicture();
        QImage opaque(picture.size(), picture.format());
        opaque.fill(Qt::white);
        control.write("newSourceImg", picture);
        control.write("newAlfaImg", opaque);
    });
    platform::skipFailures([&] {
        const float low = std::get<float>(control.read("curMin"));
        const float high = std::get<float>(control.read("curMax"));
        control.write("newDefaultVal", low + (high - low) * 2 / 3);
    });
}

// The square round a control and a little more: small ones are shown larger.
QRect withMargin(const QRect &control)
{
    const int side = std::max(control.width(), control.height()) * 5 / 4;
    QRect square(0, 0, side, side);
    square.moveCenter(control.center());
    return square;
}

QImage standardPicture(const controls::Family &family, controls::ControlHost &host)
{
    const auto control = controls::factoryOf(family.type)(family, host);
    const float side = host.screen().toTwipsX(PictureSide);
    const QSizeF start = control->startSize();
    const auto width = static_cast<float>(start.width());
    const auto height = static_cast<float>(start.height());
    control->setBox({(side - width) / 2, (side - height) / 2, width, height});
    control->applyInitialProperties();
    const controls::Box box = control->box();
    control->moveTo((side - box.Width) / 2, (side - box.Height) / 2);
    control->updatePosition();
    showWell(*control);

    QImage plate(PictureSide, PictureSide, QImage::Format_RGB32);
    plate.fill(Plate);
    const QRect middle = withMargin(control->outerRect()) & plate.rect();
    return overlayPicture(plate, {control.get()})
        .copy(middle)
        .scaled(plate.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

void GenerateIcons(controls::ControlHost &host, const platform::Folders &folders,
                   platform::Progress &progress)
{
    platform::ProgressScope scope(progress, QStringLiteral("Preparing the control library....."));
    const std::span<const controls::Family> families = controls::families();
    for (std::size_t i = 0; i < families.size(); ++i) {
        const controls::Family &family = families[i];
        platform::skipFailures([&] {
            standardPicture(family, host).save(folders.cache + QLatin1String(family.iconFile), "BMP");
        });
        scope.advance(0, 100, static_cast<qsizetype>(i) + 1, static_cast<qsizetype>(families.size()));
    }
}

} // namespace surface
