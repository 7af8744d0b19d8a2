#pragma once

#include <QTextDocument>

namespace platform {

// What makes a tool tip show this text as it stands: a name from a user or a file may look like a tag.
inline QString toolTipOf(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

} // namespace platform
