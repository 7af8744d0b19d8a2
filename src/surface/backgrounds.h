#pragma once

#include "platform/folders.h"
#include "platform/settings_file.h"
#include "recorder/recorder_settings.h"

#include <QImage>

#include <array>

namespace surface {

// The pictures under the controls, `picPAL` and `picNTSC`. Their files lie in the user data folder, under
// the names that the settings give.
class Backgrounds
{
public:
    explicit Backgrounds(const platform::Folders &folders) : m_folders(folders) {}

    QString fileName(recorder::VideoStandard standard) const;
    // Read when it is wanted first.
    const QImage &picture(recorder::VideoStandard standard);
    // Reads the file anew. One that is missing or is no picture leaves the previous picture, at start the
    // built-in one.
    void load(recorder::VideoStandard standard);

    struct Copy
    {
        QString path; // in the user data folder
        QByteArray bytes;
    };
    // Names a copy of this file in the settings; it is yet to be written. Throws RunTimeError.
    Copy choose(recorder::VideoStandard standard, const QString &path,
                platform::SettingsFile &settings) const;

private:
    QImage &held(recorder::VideoStandard standard)
    {
        return m_pictures.at(static_cast<std::size_t>(standard));
    }

    const platform::Folders &m_folders;
    std::array<QImage, 2> m_pictures; // by standard
};

} // namespace surface
