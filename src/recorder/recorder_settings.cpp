#include "recorder/recorder_settings.h"

namespace recorder {

void resetForNewLayout(RecorderSettings &settings, const MessageTable &startMessages)
{
    RecorderSettings fresh;
    fresh.VideoType = settings.VideoType;
    fresh.MessageTable = startMessages;
    settings = std::move(fresh);
}

QString standardCaption(VideoStandard standard)
{
    return QStringLiteral("%1 %2 x %3")
        .arg(standard == VideoStandard::Pal ? "PAL" : "NTSC")
        .arg(CanvasWidth)
        .arg(canvasHeight(standard));
}

} // namespace recorder
