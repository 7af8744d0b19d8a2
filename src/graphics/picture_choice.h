#pragma once

#include "platform/prompts.h"

namespace graphics {

// What asks for a picture file, with a preview. An empty folder is the one of the last choice.
platform::FileRequest pictureRequest(const QString &folder = {});

// The picture of a file that the user chose. A null image, and a message that says what is wrong with it,
// where it is none.
QImage chosenPicture(const QString &path, platform::Prompts &prompts);

} // namespace graphics
