#pragma once

#include "controls/bar_graph/bar_graph.h"
#include "controls/property_dialog.h"

namespace controls {

// What the dialog of the bar graph holds, as typed.
struct BarGraphForm
{
    qint32 variable = 0; // catalogue index
    int barType = 0;
    QString startX, startY, endX, endY, barWidth; // pixels
    quint32 colour = 0;
    QString min, max, defaultVal;
    QString alfa; // percent
    ColourVariableForm colourVariable;
};

std::optional<QString> validate(const BarGraphForm &form);

// The line of a bar of this type as the dialog shows it. Places between two pixels are shown as they are, so
// that an Apply leaves the bar where it stands.
struct BarLine
{
    float startX, startY, endX, endY, barWidth; // pixels
};
BarLine barLine(const BarGraph &bar, int barType);

// "Bar Graph Properties".
class BarGraphDialog final : public PropertyDialog
{
    Q_OBJECT

public:
    explicit BarGraphDialog(BarGraph &bar);

protected:
    std::optional<QString> validate() const override { return controls::validate(form()); }
    void write() override;
    void applied() override;

private:
    BarGraphForm form() const;
    void showLine(int barType);

    BarGraph &m_bar;
    qint16 m_length = 0; // of the applied bar, pixels
    QComboBox *m_variable;
    QLineEdit *m_min, *m_max, *m_defaultVal;
    QComboBox *m_barType;
    QLineEdit *m_startX, *m_startY, *m_endX, *m_endY, *m_barWidth;
    ColourSwatch *m_colour;
    QLineEdit *m_alfa;
};

} // namespace controls
