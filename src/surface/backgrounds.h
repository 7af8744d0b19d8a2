#pragma once

#include "platform/folders.h"
#include "platform/settings_file.h"
#include "recorder/recorder_settings.h"

#include <QImage>

namespace surface {

// What a standard's background has to be, pixels.
QSize backgroundSize(recorder::VideoStandard standard);

// The pictures under the controls, `picPAL` and `picNTSC`. Their files lie in the user data folder, under
// the names that the settings give.
class Backgrounds
{
public:
    explicit Backgrounds(const platform::Folders &folders) : m_folders(folders) {}

    QString fileName(recorder::VideoStandard standard) const;
    // Read when it is wanted first.
    const QImage &picture(recorder::VideoStandard standard);
    // Reads the file anew. One that is missing, or is no picture of the right size, leaves the previous
    // picture, at start the built-in one.
    void load(recorder::VideoStandard standard);

    // Takes a copy of this file into the user data folder and names it in the settings. Throws RunTimeError.
    void choose(recorder::VideoStandard standard, const QString &path,
                platform::SettingsFile &settings) const;

private:
    QImage &held(recorder::VideoStandard standard)
    {
        return standard == recorder::VideoStandard::Pal ? m_picPAL : m_picNTSC;
    }

    const platform::Folders &m_folders;
    QImage m_picPAL, m_picNTSC;
};

} // namespace surface
