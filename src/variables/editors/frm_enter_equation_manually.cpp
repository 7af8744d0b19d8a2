#include "variables/editors/frm_enter_equation_manually.h"

#include <QHBoxLayout>

#include <array>

namespace variables {

namespace {

constexpr int Digits = 5;
constexpr int FieldWidth = 90; // pixels

// A field and the caption that stands after it.
struct Term
{
    double Coefficients::*coefficient;
    const char *name;
    const char *caption;
    const char16_t *power; // what the caption is raised to, and the sign of the sum
    const char *accessibleName;
};

constexpr std::array<Term, 4> Terms{
    {{&Coefficients::c3, "PolyCoeffsTxt_0", "x   Input", u"\u00b3  +", "Coefficient of the cubic term"},
     {&Coefficients::c2, "PolyCoeffsTxt_1", "x   Input", u"\u00b2  +", "Coefficient of the square term"},
     {&Coefficients::c1, "PolyCoeffsTxt_2", "x   Input  +", u"", "Coefficient of the linear term"},
     {&Coefficients::c0, "PolyCoeffsTxt_3", "", u"", "Constant term"}}};

} // namespace

FrmEnterEquationManually::FrmEnterEquationManually(const Coefficients &initial, const forms::Context &context)
    : DialogOf(QStringLiteral("Enter an equation manually"), initial, context)
{
    auto *row = new QHBoxLayout;
    row->addWidget(new QLabel(QStringLiteral("Output=")));
    for (const Term &term : Terms) {
        auto &field = bind(add<forms::NumberField>(term.name, decimalMark()), term.coefficient);
        field.setFormat([](double number) { return numberText(number, Digits); });
        field.box().setAccessibleName(QLatin1String(term.accessibleName));
        field.box().setFixedWidth(FieldWidth);
        field.box().setAlignment(Qt::AlignRight);
        row->addWidget(&field.box());
        if (*term.caption != '\0')
            row->addWidget(new QLabel(QLatin1String(term.caption)));
        if (*term.power != u'\0')
            row->addWidget(new QLabel(QString::fromUtf16(term.power)));
    }
    body().addLayout(row);
    finish(forms::okAndCancel());
}

} // namespace variables
