#pragma once

#include "common/number_text.h"
#include "platform/prompts.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace forms {

// What stands in the fields of a dialog, by their names. A rule reads it without a window.
struct Typed
{
    QHash<QString, QString> texts;
    QHash<QString, int> rows; // of lists, -1 where none is chosen; 1 for a check box that is on

    QString text(const char *field) const { return texts.value(QLatin1String(field)); }
    // The plain numeric value of a text: "12.5px" is 12.5, "0,5" is 0.
    double number(const char *field) const { return common::leadingNumber(text(field)); }
    int row(const char *field) const { return rows.value(QLatin1String(field), -1); }
    bool isOn(const char *field) const { return row(field) == 1; }
};

// The text that a field gets in the place of what was typed.
struct Correction
{
    QString field;
    QString text;
};

// What a rule says to what was typed. A refusal keeps the dialog open. A question does so too unless it is
// answered with OK: then the corrections are made and the rules are asked again. A silent correction is made
// without asking.
struct Verdict
{
    enum class Kind { Refusal, OkCancel, Silent };

    Kind kind = Kind::Refusal;
    platform::Icon icon = platform::Icon::Information;
    QString text;
    QList<Correction> corrections;
};

inline Verdict refusal(const QString &text, platform::Icon icon = platform::Icon::Information)
{
    return {Verdict::Kind::Refusal, icon, text, {}};
}

} // namespace forms
