#pragma once

#include "common/colour.h"
#include "forms/field.h"

#include <QPushButton>
#include <QToolButton>

namespace forms {

// Shows a packed colour; a click opens the colour dialog.
class ColourSwatch final : public QToolButton
{
    Q_OBJECT

public:
    explicit ColourSwatch(platform::Prompts &prompts);
    quint32 colour() const { return m_colour; }
    void setColour(quint32 packed);

signals:
    void colourChanged();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    quint32 m_colour = 0;
};

// A swatch and a button that puts it back to a colour of its own.
class ColourField final : public Field
{
public:
    ColourField(const char *name, const char *resetName, quint32 resetColour, platform::Prompts &prompts);

    ColourSwatch &swatch() const { return static_cast<ColourSwatch &>(widget()); }
    QPushButton &reset() const { return *m_reset; }
    QWidget *cell() override { return m_cell; }
    // The packed colour as a decimal.
    QString text() const override { return QString::number(swatch().colour()); }
    void setText(const QString &text) override { swatch().setColour(text.toUInt()); }

    void show(const common::Colour &colour) { swatch().setColour(colour.packed()); }
    void store(common::Colour &member) const { member.setPacked(swatch().colour()); }

private:
    QPushButton *m_reset;
    QWidget *m_cell;
};

} // namespace forms
