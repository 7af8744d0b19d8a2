#include "variables/editors/dialog_parts.h"

#include "forms/numeric_keys.h"

#include <QDialogButtonBox>
#include <QLabel>

namespace variables {

DialogButtons addButtons(QDialog &dialog, const char *acceptName, const char *cancelName)
{
    const DialogButtons buttons{new QPushButton(QStringLiteral("&OK")),
                                new QPushButton(QStringLiteral("&Cancel"))};
    buttons.accept->setObjectName(QLatin1String(acceptName));
    buttons.accept->setDefault(true);
    buttons.cancel->setObjectName(QLatin1String(cancelName));
    buttons.cancel->setAutoDefault(false);
    QObject::connect(buttons.cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    auto *box = new QDialogButtonBox;
    box->addButton(buttons.accept, QDialogButtonBox::AcceptRole);
    box->addButton(buttons.cancel, QDialogButtonBox::RejectRole);
    dialog.layout()->addWidget(box);
    return buttons;
}

QLineEdit *newNumberField(const char *name, const QString &text, const QString &decimalSeparator)
{
    auto *field = new QLineEdit(text);
    field->setObjectName(QLatin1String(name));
    new forms::NumericKeys(field, decimalSeparator);
    return field;
}

void addField(QFormLayout &form, const QString &caption, QWidget &field)
{
    auto *label = new QLabel(caption);
    label->setBuddy(&field);
    field.setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    form.addRow(label, &field);
}

} // namespace variables
