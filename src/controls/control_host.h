#pragma once

#include "graphics/font_name.h"
#include "graphics/text_font.h"
#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/prompts.h"
#include "platform/screen.h"
#include "recorder/recorder_settings.h"
#include "variables/catalogue.h"

#include <QImage>
#include <QPoint>

#include <memory>

namespace controls {

class OverlayControl;

// What a control asks of the canvas it stands on.
class ControlHost
{
public:
    virtual ~ControlHost() = default;

    virtual bool IsPlayMode() const = 0;
    virtual bool isCapturing() const = 0; // pictures of controls are being made
    virtual const platform::Screen &screen() const = 0;
    virtual const platform::NumberLocale &locale() const = 0;
    virtual platform::Prompts &prompts() = 0;
    virtual const variables::Catalogue &catalogue() const = 0;
    virtual recorder::VideoStandard VideoType() const = 0;
    // A font to draw with, never null, as FontStore::open() finds or makes it: without a window or message.
    // `usualSize`, in points, is the family's and serves where the request's size does not.
    virtual std::shared_ptr<const graphics::TextFont> textFont(const graphics::FontRequest &request,
                                                               int usualSize) = 0;

    // What stands below the inner area of `control`: background, grid and the controls beneath it.
    virtual QImage captureBelow(const OverlayControl &control) = 0;
    virtual void showControlMenu(OverlayControl &control, const QPoint &globalPosition) = 0;
    virtual void showGroupMenu(const QPoint &globalPosition) = 0;
    virtual void ResetControlGridColour() = 0;
    virtual void RefreshBackground() = 0;
    virtual void UserControlChanged() = 0;
};

} // namespace controls
