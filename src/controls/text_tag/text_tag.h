#pragma once

#include "controls/text/text_control.h"

namespace controls {

// The simple text: a fixed text, or a field that the recorder fills in; a variable may hide it.
struct TextTagValues : TextValues
{
    static constexpr qint16 UsualSize = 9;

    // The default value has a double duty, deliberately: without a variable it holds the text's type, the row
    // in the list of types; with one it is the value at design time.
    TextTagValues() : TextValues(TextAlign::Left, UsualSize, 0) { text = UsualText; }

    static inline const QString UsualText = QStringLiteral("Simple Text");
    static constexpr qsizetype LongestText = 30; // characters
};

const PropertyTable &textTagProperties();

// The text as a layout holds it, in the code page: without NULs, cut to its longest.
QByteArray storedText(const QString &text);

class TextTag final : public ControlOf<TextTagValues, TextControl>
{
public:
    using ControlOf::ControlOf;

    void applyInitialProperties() override;
    void showSample() override { m_values.curColour.setPacked(0xFFFFFF); }
    double complexity() const override;

protected:
    const PropertyTable &properties() const override { return textTagProperties(); }
    QString shownText(const TextValues &values) const override;
    int usualSize() const override { return TextTagValues::UsualSize; }
};

} // namespace controls
