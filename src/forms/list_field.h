#pragma once

#include "forms/choice.h"
#include "forms/field.h"

#include <QAbstractButton>
#include <QComboBox>

#include <type_traits>

namespace forms {

// A list whose rows carry values. A value that no row has shows the row `otherwise`, or none when that is -1;
// it is kept unless the user chooses.
class ListField : public Field
{
public:
    ListField(const char *name, const Choices &choices, int otherwise = -1);

    QComboBox &box() const { return static_cast<QComboBox &>(widget()); }
    QString text() const override { return box().currentText(); }
    int row() const override { return box().currentIndex(); }
    void setText(const QString &text) override { box().setCurrentIndex(box().findText(text)); }
    // The value of the chosen row.
    int chosen() const { return box().currentData().toInt(); }
    // Takes the row that it shows for an unknown value: for lists that can name no such value.
    void takeWhatIsShown() { m_takesShown = true; }

    void show(int value);
    template <typename T>
    void store(T &member) const
    {
        if (isTouched())
            member = static_cast<T>(chosen());
    }
    template <typename T>
        requires std::is_enum_v<T>
    void show(T value) { show(static_cast<int>(value)); }

private:
    bool isTouched() const { return row() >= 0 && row() != m_kept; }

    int m_otherwise;
    bool m_takesShown = false;
    int m_kept = -1; // the row that stands for the stored value
};

// A list of texts, where the text itself is the value. A text that is not in it is added.
class TextListField final : public Field
{
public:
    TextListField(const char *name, const QStringList &texts);

    QComboBox &box() const { return static_cast<QComboBox &>(widget()); }
    QString text() const override { return box().currentText(); }
    int row() const override { return box().currentIndex(); }
    void setText(const QString &text) override { box().setCurrentText(text); }

    void show(const QString &text);
    void store(QString &member) const { member = text(); }
};

// A box or button that is on or off; bound to a flag or a byte.
class CheckField final : public Field
{
public:
    CheckField(QAbstractButton *button, const char *name);

    QAbstractButton &button() const { return static_cast<QAbstractButton &>(widget()); }
    bool isOn() const { return button().isChecked(); }
    QString text() const override { return QString::number(row()); }
    int row() const override { return isOn() ? 1 : 0; }
    void setText(const QString &text) override { button().setChecked(text == QLatin1String("1")); }

    template <typename T>
    void show(T value)
    {
        m_shown = value != T{};
        button().setChecked(m_shown);
    }
    template <typename T>
    void store(T &member) const
    {
        if (isOn() != m_shown)
            member = static_cast<T>(isOn());
    }

private:
    bool m_shown = false;
};

} // namespace forms
