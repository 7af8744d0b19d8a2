#include "platform/settings_keys.h"

#include "common/number_text.h"
#include "common/rounding.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace platform {

namespace {

constexpr int NumberBuffer = 10;
constexpr int PathBuffer = 4096;

// The text of a key; empty when it is missing.
QString textOf(const SettingsFile &file, const NumberKey &key)
{
    return file.read(QLatin1String(key.section), QLatin1String(key.key), {}, NumberBuffer);
}

template <typename Read>
QRect rectOf(const PanelKeys &panel, const Screen &screen, Read read)
{
    const auto pixels = [&](const NumberKey &key) { return screen.storedToPixels(read(key)); };
    return {pixels(panel.left), pixels(panel.top), pixels(panel.width), pixels(panel.height)};
}

} // namespace

int NumberKey::readUnclamped(const SettingsFile &file) const
{
    const QString text =
        file.read(QLatin1String(section), QLatin1String(key), QString::number(fallback), NumberBuffer);
    return common::toIntegerClamped<int>(common::leadingNumber(text));
}

int NumberKey::read(const SettingsFile &file) const
{
    const int value = readUnclamped(file);
    if (value < low)
        return belowLow;
    return value > high ? high : value;
}

void NumberKey::write(SettingsFile &file, int value) const
{
    file.write(QLatin1String(section), QLatin1String(key), QString::number(value));
}

QString TextKey::read(const SettingsFile &file) const
{
    return file.read(QLatin1String(section), QLatin1String(key), QLatin1String(fallback), bufferSize);
}

void TextKey::write(SettingsFile &file, const QString &value) const
{
    file.write(QLatin1String(section), QLatin1String(key), value);
}

QString PathKey::read(const SettingsFile &file) const
{
    const QString stored = file.read(QLatin1String(section), QLatin1String(key), {}, PathBuffer);
    return QUrl::fromPercentEncoding(stored.toLatin1());
}

void PathKey::write(SettingsFile &file, const QString &path) const
{
    file.write(QLatin1String(section), QLatin1String(key),
               QString::fromLatin1(QUrl::toPercentEncoding(path, "/")));
}

bool PanelKeys::stored(const SettingsFile &file) const
{
    const QStringList texts{textOf(file, left), textOf(file, top), textOf(file, width), textOf(file, height)};
    return std::ranges::any_of(texts, [](const QString &text) { return !text.isEmpty(); });
}

QRect PanelKeys::read(const SettingsFile &file, const Screen &screen) const
{
    return rectOf(*this, screen, [&file](const NumberKey &key) { return key.read(file); });
}

QRect PanelKeys::readUnclamped(const SettingsFile &file, const Screen &screen) const
{
    return rectOf(*this, screen, [&file](const NumberKey &key) { return key.readUnclamped(file); });
}

void PanelKeys::write(SettingsFile &file, const QRect &pixels, const Screen &screen) const
{
    left.write(file, screen.pixelsToStored(pixels.left()));
    top.write(file, screen.pixelsToStored(pixels.top()));
    width.write(file, screen.pixelsToStored(pixels.width()));
    height.write(file, screen.pixelsToStored(pixels.height()));
}

} // namespace platform
