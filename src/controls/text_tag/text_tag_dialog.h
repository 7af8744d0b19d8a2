#pragma once

#include "controls/text/text_dialog.h"
#include "controls/text_tag/text_tag.h"

namespace controls {

// A text tag with the type that its dialog shows.
struct TypedText : TextTagValues
{
    int textType = 0; // row of the list of types
};

// As the dialog shows it.
TypedText typedText(const TextTagValues &values);
// The values that it stands for; `kept` is what was shown at first.
TextTagValues storedValues(const TypedText &typed, const TypedText &kept);

std::optional<forms::Verdict> validateTextTag(const forms::Typed &typed);

// "Simple Text Properties".
class TextTagDialog final : public TextDialog<TextTag, TypedText>
{
public:
    explicit TextTagDialog(TextTag &tag);

protected:
    std::optional<forms::Verdict> validate(const forms::Typed &typed) const override
    {
        return validateTextTag(typed);
    }
    void set(TypedText &values) override;

private:
    forms::TextField &addContent(); // answers the text
};

} // namespace controls
