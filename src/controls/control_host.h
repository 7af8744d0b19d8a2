#pragma once

#include "graphics/font_name.h"
#include "graphics/outline_font.h"
#include "graphics/text_font.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/prompts.h"
#include "platform/screen.h"
#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

#include <QPointF>
#include <QRect>
#include <QStringList>

#include <memory>

namespace controls {

class OverlayControl;

// What a control asks of the canvas it stands on, and what it tells it.
class ControlHost
{
public:
    virtual ~ControlHost() = default;

    virtual const platform::Screen &screen() const = 0;
    virtual const platform::NumberLocale &locale() const = 0;
    virtual platform::Prompts &prompts() = 0;
    virtual const variables::Catalogue &catalogue() const = 0;
    virtual const platform::Folders &folders() const = 0;
    virtual recorder::VideoStandard VideoType() const = 0;
    // A font to draw with, never null, as FontStore::open() finds or makes it: without a window or message.
    // `usualSize`, in points, is the family's and serves where the request's size does not.
    virtual std::shared_ptr<const graphics::TextFont> textFont(const graphics::FontRequest &request,
                                                               int usualSize) = 0;
    // The outlines of a face, never null.
    virtual std::shared_ptr<const graphics::OutlineFont> outlineFont(const QString &face,
                                                                     const graphics::FontStyle &style) = 0;

    // Moves the control's outer corner there, canvas pixels.
    virtual void Reposition(OverlayControl &control, QPointF corner) = 0;
    // Stacks the control above or below all others of its family, where it does not stand so already.
    virtual void restack(OverlayControl &control, bool above) = 0;
    // Keep what a paste needs; after a cut that removes the control.
    virtual void Copy(OverlayControl &control, const QStringList &arr) = 0;
    virtual void Cut(OverlayControl &control, const QStringList &arr) = 0;
    virtual void Delete(OverlayControl &control) = 0;
    // The property dialog of the control's family, until it is closed.
    virtual void showProperties(OverlayControl &control) = 0;
    virtual void UserControlChanged() = 0;
    // What the control shows within `area`, canvas pixels, is not what it showed before.
    virtual void redrawControl(const OverlayControl &control, const QRect &area) = 0;
};

} // namespace controls
