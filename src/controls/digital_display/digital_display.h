#pragma once

#include "controls/text/text_control.h"

namespace controls {

// The digital display: a variable as a number or a time.
struct DigitalDisplayValues : TextValues
{
    static constexpr qint16 UsualSize = 12;

    DigitalDisplayValues() : TextValues(TextAlign::Right, UsualSize, 255) {}

    quint8 curDecPlaces = 2;  // digits after the decimal mark; 0 for the plain number
    quint8 curDecMark = 0;    // 0 dot, otherwise comma
    quint8 curTimeFormat = 0; // 0 a number, otherwise a time of seconds
};

const PropertyTable &digitalDisplayProperties();

// The default value as it is shown. Both marks are the same in every locale.
QString displayText(const DigitalDisplayValues &values);

class DigitalDisplay final : public ControlOf<DigitalDisplayValues, TextControl>
{
public:
    using ControlOf::ControlOf;

    void applyInitialProperties() override;
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return digitalDisplayProperties(); }
    QString shownText(const TextValues &values) const override;
    int usualSize() const override { return DigitalDisplayValues::UsualSize; }
};

} // namespace controls
