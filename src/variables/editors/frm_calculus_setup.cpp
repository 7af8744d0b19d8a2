#include "variables/editors/frm_calculus_setup.h"

#include "variables/calculus.h"
#include "variables/editors/dialog_parts.h"

#include <QVBoxLayout>

namespace variables {

FrmCalculusSetup::FrmCalculusSetup(qint32 mode, QWidget *parent) : QDialog(parent), m_modes(new QComboBox)
{
    const QString title = QLatin1String(CalculusTitle);
    setWindowTitle(title);
    m_modes->setObjectName(QStringLiteral("CalcCombo"));
    for (const char *text : CalculusModes)
        m_modes->addItem(QLatin1String(text));
    m_modes->setCurrentIndex(mode >= 0 && mode < m_modes->count() ? mode : 0);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto *form = new QFormLayout;
    addField(*form, QStringLiteral("Calculus &mode"), *m_modes);
    layout->addLayout(form);
    layout->addSpacing(8);
    connect(addButtons(*this, "cmdOk", "cmdCancel").accept, &QPushButton::clicked, this, &QDialog::accept);
    m_modes->setFocus();
}

std::optional<qint32> FrmCalculusSetup::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    return m_modes->currentIndex();
}

} // namespace variables
