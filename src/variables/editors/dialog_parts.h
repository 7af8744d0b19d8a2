#pragma once

#include <QDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace variables {

// What the editors of this folder have in common.

struct DialogButtons
{
    QPushButton *accept;
    QPushButton *cancel; // closes the dialog
};

// OK and Cancel below everything else, under these object names. The dialog has a vertical layout.
DialogButtons addButtons(QDialog &dialog, const char *acceptName, const char *cancelName);

// A field for numbers; keys that no number holds are dropped.
QLineEdit *newNumberField(const char *name, const QString &text, const QString &decimalSeparator);

// A row whose caption, less its "&", is the field's accessible name.
void addField(QFormLayout &form, const QString &caption, QWidget &field);

} // namespace variables
