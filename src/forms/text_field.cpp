#include "forms/text_field.h"

#include "forms/numeric_keys.h"

#include <QRegularExpressionValidator>

namespace forms {

namespace {

constexpr double Opaque = 255;
constexpr double Full = 100; // percent

} // namespace

TextField::TextField(const char *name) : Field(new QLineEdit, name)
{
    QObject::connect(&box(), &QLineEdit::textChanged, &box(), [this] { changed(); });
}

void TextField::showOnly()
{
    box().setReadOnly(true);
    box().setFrame(false);
    QPalette palette = box().palette();
    palette.setBrush(QPalette::Base, palette.window());
    box().setPalette(palette);
}

void TextField::show(const QString &text)
{
    m_shown = text;
    box().setText(text);
}

void TextField::store(QString &member) const
{
    if (isTouched())
        member = text();
}

NumberField::NumberField(const char *name, const QString &decimalMark)
    : TextField(name), m_format([decimalMark](double number) {
          return common::shortestText(static_cast<float>(number), decimalMark);
      })
{
    new NumericKeys(&box(), decimalMark);
}

void NumberField::requireDigits()
{
    const QRegularExpression digits(QStringLiteral("[0-9]*"));
    box().setValidator(new QRegularExpressionValidator(digits, &box()));
}

void NumberField::show(double number) { TextField::show(m_format(number)); }

void NumberField::store(float &member) const
{
    if (isTouched())
        member = common::toSingle(number());
}

void NumberField::store(double &member) const
{
    if (isTouched())
        member = number();
}

PercentField::PercentField(const char *name, const QString &decimalMark) : NumberField(name, decimalMark)
{
    setFormat([](double alpha) { return QString::number(common::toInteger<int>(alpha * Full / Opaque)); });
}

void PercentField::store(quint8 &alpha) const
{
    if (isTouched())
        alpha = common::toInteger<quint8>(number() * Opaque / Full);
}

TextArea::TextArea(const char *name) : Field(new QPlainTextEdit, name)
{
    box().setTabChangesFocus(true);
    QObject::connect(&box(), &QPlainTextEdit::textChanged, &box(), [this] { changed(); });
}

QString TextArea::text() const
{
    return box().toPlainText().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

void TextArea::show(const QString &text)
{
    box().setPlainText(text);
    box().moveCursor(QTextCursor::End);
    m_shown = TextArea::text();
}

void TextArea::store(QString &member) const
{
    if (text() != m_shown)
        member = text();
}

} // namespace forms
