#pragma once

#include "common/number_parser.h"

#include <QKeyEvent>
#include <QObject>

namespace forms {

// Swallows the keys that no number holds before the text box it is made for sees them. What stands in the box
// already (an exponent that the program shows) and what is pasted is left alone.
class NumericKeys final : public QObject
{
public:
    NumericKeys(QObject *box, QString decimalSeparator)
        : QObject(box), m_decimalSeparator(std::move(decimalSeparator))
    {
        box->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const QString typed = static_cast<QKeyEvent *>(event)->text();
        return !typed.isEmpty() && typed.front().isPrint() &&
               !common::isNumericKey(typed.front(), m_decimalSeparator);
    }

private:
    QString m_decimalSeparator;
};

} // namespace forms
