#pragma once

#include "common/fixed_string.h"
#include "common/number_parser.h"
#include "common/rounding.h"
#include "forms/field.h"

#include <QLineEdit>
#include <QPlainTextEdit>

namespace forms {

// A text box of one line.
class TextField : public Field
{
public:
    explicit TextField(const char *name);

    QLineEdit &box() const { return static_cast<QLineEdit &>(widget()); }
    QString text() const override { return box().text(); }
    void setText(const QString &text) override { box().setText(text); }

    // Takes no typing from now on, and looks like it.
    void showOnly();

    void show(const QString &text);
    void store(QString &member) const;
    // Shown without the blanks that fill it up.
    template <int N>
    void show(const common::FixedString<N> &text)
    {
        box().setMaxLength(N);
        show(static_cast<const QString &>(text).trimmed());
    }
    template <int N>
    void store(common::FixedString<N> &member) const
    {
        if (isTouched())
            member = text();
    }

protected:
    bool isTouched() const { return text() != m_shown; }

private:
    QString m_shown;
};

// A text box for numbers; keys that no number holds are dropped.
class NumberField : public TextField
{
public:
    NumberField(const char *name, const QString &decimalMark);

    // Takes no text that is not a number in whole from now on; else what can be read of it counts.
    void requireNumber() { m_parse = &common::requireNumber; }
    // Takes no other keys than digits from now on.
    void requireDigits();
    // Another way to write a number than the plain one.
    void setFormat(std::function<QString(double)> format) { m_format = std::move(format); }

    void show(double number);
    // All throw RunTimeError for a number that does not fit.
    template <std::integral T>
    void store(T &member) const
    {
        if (isTouched())
            member = common::toInteger<T>(number());
    }
    void store(float &member) const;
    void store(double &member) const;

protected:
    double number() const { return m_parse(text()); }

private:
    double (*m_parse)(const QString &) = &common::parseNumber;
    std::function<QString(double)> m_format;
};

// An alpha byte, shown and typed as a percentage.
class PercentField final : public NumberField
{
public:
    PercentField(const char *name, const QString &decimalMark);
    void store(quint8 &alpha) const; // throws RunTimeError past a byte
};

// A text box of several lines. The box only knows one kind of line end; what is stored has "\r\n".
class TextArea final : public Field
{
public:
    explicit TextArea(const char *name);

    QPlainTextEdit &box() const { return static_cast<QPlainTextEdit &>(widget()); }
    QString text() const override;
    void setText(const QString &text) override { box().setPlainText(text); }

    void show(const QString &text);
    void store(QString &member) const;

private:
    QString m_shown; // as the box gives it back untouched
};

} // namespace forms
