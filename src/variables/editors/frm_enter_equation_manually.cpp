#include "variables/editors/frm_enter_equation_manually.h"

#include "common/number_parser.h"
#include "variables/editors/dialog_parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace variables {

namespace {

constexpr int Digits = 5;
constexpr int FieldWidth = 90; // pixels

// A field and the caption that stands behind it.
struct Term
{
    const char *caption;
    const char16_t *power; // what the caption is raised to, and the sign of the sum
    const char *accessibleName;
};

constexpr std::array<Term, 4> Terms{{{"x   Input", u"\u00b3  +", "Coefficient of the cubic term"},
                                     {"x   Input", u"\u00b2  +", "Coefficient of the square term"},
                                     {"x   Input  +", u"", "Coefficient of the linear term"},
                                     {"", u"", "Constant term"}}};

} // namespace

FrmEnterEquationManually::FrmEnterEquationManually(const Coefficients &initial,
                                                   const platform::NumberLocale &locale, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Enter an equation manually"));
    const std::array<double, 4> values{initial.c3, initial.c2, initial.c1, initial.c0};
    auto *row = new QHBoxLayout;
    auto *output = new QLabel(QStringLiteral("Output="));
    row->addWidget(output);
    for (std::size_t i = 0; i < Terms.size(); ++i) {
        const QByteArray name = "PolyCoeffsTxt_" + QByteArray::number(static_cast<int>(i));
        m_fields[i] =
            newNumberField(name.constData(), numberText(values[i], Digits), locale.decimalSeparator);
        m_fields[i]->setAccessibleName(QLatin1String(Terms[i].accessibleName));
        m_fields[i]->setFixedWidth(FieldWidth);
        m_fields[i]->setAlignment(Qt::AlignRight);
        row->addWidget(m_fields[i]);
        if (*Terms[i].caption == '\0')
            continue;
        auto *caption = new QLabel(QLatin1String(Terms[i].caption));
        caption->setBuddy(m_fields[i]);
        row->addWidget(caption);
        if (*Terms[i].power != u'\0')
            row->addWidget(new QLabel(QString::fromUtf16(Terms[i].power)));
    }
    output->setBuddy(m_fields.front());
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(row);
    layout->addSpacing(8);
    connect(addButtons(*this, "cmdOk", "cmdCancel").accept, &QPushButton::clicked, this, &QDialog::accept);
    m_fields.front()->setFocus();
}

std::optional<Coefficients> FrmEnterEquationManually::run()
{
    if (exec() != Accepted)
        return std::nullopt;
    return Coefficients{common::parseNumber(m_fields[0]->text()), common::parseNumber(m_fields[1]->text()),
                        common::parseNumber(m_fields[2]->text()), common::parseNumber(m_fields[3]->text())};
}

} // namespace variables
