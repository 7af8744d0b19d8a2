#pragma once

#include "controls/overlay_control.h"

#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <optional>

namespace controls {

// The percentage that a dialog shows for an alpha byte, and the byte for a percentage as typed: `stored`
// itself when its text was left alone. Throws RunTimeError past a byte.
QString alphaPercentText(quint8 alpha);
quint8 alphaFromPercent(const QString &percent, quint8 stored);

// What a colour-variable group holds as typed.
struct ColourVariableForm
{
    qint32 variable = 0; // catalogue index; 0 is "None"
    QString minimum;
    QString maximum;
};

// The swatch of a colour property: shows the colour, a click opens the colour dialog.
class ColourSwatch final : public QToolButton
{
    Q_OBJECT

public:
    explicit ColourSwatch(platform::Prompts &prompts);
    quint32 colour() const { return m_colour; }
    void setColour(quint32 packed);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    quint32 m_colour = 0;
};

// What all property dialogs share: fields under their contract names in groups of labelled rows, numeric key
// filter, variable lists, colour swatch, colour variable, alpha percentage, and the road of an Apply:
// validate the typed form, convert every field, write all at once.
class PropertyDialog : public QDialog
{
    Q_OBJECT

protected:
    PropertyDialog(OverlayControl &control, const QString &title, const char *applyName,
                   const char *cancelName);

    // A titled group; rows are added to the last group.
    void addGroup(const QString &title);
    QLineEdit *addNumber(const char *name, const QString &label, const QString &text,
                         const QString &unit = {});
    // The list of available variables; a stored variable that is not offered any more is still shown. Each
    // row carries its catalogue index, since several variables may have one name.
    QComboBox *addVariable(const char *name, const QString &label, qint32 variable);
    ColourSwatch *addColour(const char *name, const char *resetName, const QString &label, quint32 colour);
    // "None" or a variable that changes the colour of `swatch`'s graphic between two limits.
    void addColourVariable(qint32 variable, float minimum, float maximum);
    void addRow(const QString &label, QWidget *field, const QString &unit = {});

    // A float as a field shows it, with the locale's decimal mark.
    QString shown(float value) const;
    // The catalogue index of the chosen row; 0 for "None".
    static qint32 chosenVariable(const QComboBox &list) { return list.currentData().toInt(); }
    ColourVariableForm colourVariableForm() const;

    // The first message that applies to what is typed; nothing when all is well.
    virtual std::optional<QString> validate() const = 0;
    // Converts every field (throws RunTimeError when one does not fit) and only then writes all of them.
    virtual void write() = 0;
    // After the dialog has gone.
    virtual void applied() = 0;

    void finishLayout(); // last step of a dialog's constructor

private:
    void apply();
    void fillVariables(QComboBox &list, qint32 variable) const;
    void colourVariableChosen(int row);

    OverlayControl &m_control;
    QVBoxLayout *m_groups;
    QFormLayout *m_form = nullptr;
    QPushButton *m_apply;
    QPushButton *m_cancel;
    // The colour and its variable exclude each other.
    ColourSwatch *m_swatch = nullptr;
    QPushButton *m_reset = nullptr;
    QLabel *m_colourLabel = nullptr;
    QComboBox *m_colourVariable = nullptr;
    QLineEdit *m_colourMinimum = nullptr;
    QLineEdit *m_colourMaximum = nullptr;
};

} // namespace controls
