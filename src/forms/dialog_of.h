#pragma once

#include "forms/colour_field.h"
#include "forms/dialog.h"
#include "forms/font_field.h"
#include "forms/list_field.h"
#include "forms/option_field.h"
#include "forms/slider_field.h"
#include "forms/text_field.h"

#include <QCheckBox>

#include <algorithm>
#include <functional>

namespace forms {

// A dialog whose rows are bound to members of a struct of values. `member` is a pointer to a member, or a
// function from the values to a reference to one (or to FontParts). The constructor of a dialog adds its rows
// and then calls finish(). What no row is bound to stays as it was given.
template <typename Values>
class DialogOf : public Dialog
{
public:
    // What stands in the fields, converted. Throws RunTimeError when a text does not fit.
    Values converted() const
    {
        Values copy = m_values;
        for (const Binding &binding : m_bindings)
            binding.store(copy);
        return copy;
    }

    // Runs the dialog. The values that it was closed with, or nothing when the user cancels.
    std::optional<Values> run() { return exec() == Accepted ? std::optional(m_values) : std::nullopt; }

protected:
    DialogOf(const QString &title, Values values, const Context &context)
        : Dialog(title, context), m_values(std::move(values))
    {
    }

    template <typename F, typename Member>
    F &bind(F &field, Member member)
    {
        m_bindings.push_back({&field,
                              [&field, member](Values &values) { field.show(std::invoke(member, values)); },
                              [&field, member](Values &values) {
                                  auto &&target = std::invoke(member, values);
                                  field.store(target);
                              }});
        return field;
    }

    template <typename Member>
    TextField &text(Member member, const RowText &row)
    {
        return inRow(add<TextField>(row.name), member, row);
    }
    template <typename Member>
    NumberField &number(Member member, const RowText &row)
    {
        return inRow(add<NumberField>(row.name, decimalMark()), member, row);
    }
    // An alpha byte.
    template <typename Member>
    PercentField &percent(Member member, const RowText &row)
    {
        return inRow(add<PercentField>(row.name, decimalMark()), member, row);
    }
    template <typename Member>
    ListField &choice(Member member, const RowText &row, const Choices &choices, int otherwise = -1)
    {
        return inRow(add<ListField>(row.name, choices, otherwise), member, row);
    }
    template <typename Member>
    ColourField &colour(Member member, const RowText &row, const char *resetName, quint32 resetColour)
    {
        return inRow(add<ColourField>(row.name, resetName, resetColour, prompts()), member, row);
    }
    template <typename Member>
    SliderField &slider(Member member, const RowText &row, int minimum, int maximum)
    {
        return inRow(add<SliderField>(row.name, minimum, maximum), member, row);
    }
    // `labelName` is the name of the chosen font's caption.
    template <typename Member>
    FontField &font(Member member, const RowText &row, const char *labelName)
    {
        return inRow(add<FontField>(row.name, labelName, prompts()), member, row);
    }
    // A row that the user cannot type in; a follow() fills it.
    TextField &shownText(const RowText &row)
    {
        TextField &field = add<TextField>(row.name);
        field.showOnly();
        addRow(field, row.caption, row.unit);
        return field;
    }
    // A row of radio buttons.
    template <typename Member>
    OptionField &options(Member member, const char *caption, const std::vector<Option> &options)
    {
        return inRow(add<OptionField>(options), member, {options.front().name, caption});
    }
    // A check box with its caption after it.
    template <typename Member>
    CheckField &check(Member member, const char *name, const char *caption)
    {
        CheckField &field = bind(add<CheckField>(new QCheckBox(QString::fromUtf8(caption)), name), member);
        addWide(&field.widget());
        return field;
    }
    // These rows are enabled while the box is on.
    void enableBy(const CheckField &check, std::vector<Field *> rows)
    {
        follow([&check, rows = std::move(rows)] {
            for (Field *row : rows)
                row->setEnabled(check.isOn());
        });
    }

    // Shows the values and adds the buttons: the last step of a constructor.
    void finish(const std::vector<Button> &buttons)
    {
        addButtons(buttons);
        showValues(m_values);
    }
    // The values that untouched fields keep.
    const Values &kept() const { return m_values; }
    // Shows other values; what is not touched from now on keeps them.
    void showValues(const Values &values)
    {
        showRows(values, [](const Field &) { return true; });
        refresh();
    }
    // The same for some of the fields; `values` differ from the kept ones in theirs only.
    void showValues(const Values &values, std::initializer_list<const Field *> fields)
    {
        showRows(values, [fields](const Field &field) {
            return std::find(fields.begin(), fields.end(), &field) != fields.end();
        });
    }

    // Takes the whole copy. What it leaves there is shown from then on.
    virtual void set(Values &) {}

private:
    struct Binding
    {
        const Field *field;
        std::function<void(Values &)> show;
        std::function<void(Values &)> store;
    };

    template <typename F, typename Member>
    F &inRow(F &field, Member member, const RowText &row)
    {
        addRow(field, row.caption, row.unit);
        return bind(field, member);
    }

    template <typename Wanted>
    void showRows(const Values &values, Wanted wanted)
    {
        m_values = values;
        const Quiet quiet(*this);
        for (const Binding &binding : m_bindings) {
            if (wanted(*binding.field))
                binding.show(m_values);
        }
    }

    void take() final
    {
        Values copy = converted();
        set(copy);
        showValues(copy);
    }

    Values m_values;
    std::vector<Binding> m_bindings;
};

} // namespace forms
