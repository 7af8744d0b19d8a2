#pragma once

#include "common/code_page.h"
#include "common/colour.h"
#include "common/fixed_string.h"
#include "layoutfile/record_types.h"

namespace layoutfile {

// The two directions of a link(values, record, field), which names each property of a family, or each member
// of a setting, beside its record field. Both sides are of one type, but that a colour is stored as Y, U, V
// or, where no recorder draws it, packed, and a text of fixed width in the code page.

struct ToRecord
{
    template <typename T>
    void operator()(const T &value, T &stored) const
    {
        stored = value;
    }
    void operator()(const common::Colour &value, common::Yuv &stored) const { stored = value.yuv(); }
    void operator()(const common::Colour &value, qint32 &stored) const
    {
        stored = static_cast<qint32>(value.packed());
    }
    template <int N>
    void operator()(const common::FixedString<N> &value, PaddedText<N> &stored) const
    {
        stored.text = common::toCodePage(value);
    }
};

struct FromRecord
{
    template <typename T>
    void operator()(T &value, const T &stored) const
    {
        value = stored;
    }
    void operator()(common::Colour &value, const common::Yuv &stored) const
    {
        value = common::Colour::fromFile(stored);
    }
    void operator()(common::Colour &value, const qint32 &stored) const
    {
        value.setPacked(static_cast<quint32>(stored));
    }
    template <int N>
    void operator()(common::FixedString<N> &value, const PaddedText<N> &stored) const
    {
        value = common::fromCodePage(stored.text);
    }
};

// The scale of a shown variable.
void linkScale(auto &values, auto &record, auto field)
{
    field(values.curVarID, record.variable);
    field(values.curMin, record.min);
    field(values.curMax, record.max);
    field(values.curDefaultVal, record.defaultValue);
}

// A colour, and the variable that may change it.
void linkColour(auto &values, auto &record, auto field)
{
    field(values.curColour, record.colour);
    field(values.curColourVariable, record.colourVariable);
    field(values.curColourVarMin, record.colourVariableMin);
    field(values.curColourVarMax, record.colourVariableMax);
}

// The variable that hides a control, and between which limits it shows.
void linkLimits(auto &values, auto &record, auto field)
{
    field(values.curVarID, record.variable);
    field(values.curLowerLimit, record.lowerLimit);
    field(values.curUpperLimit, record.upperLimit);
    field(values.curDefaultVal, record.defaultValue);
}

// Takes over what was read from a record. The box first: its resize rule must not touch the values; the
// position properties follow from it.
template <typename Control, typename Values>
void place(Control &control, const Values &values)
{
    control.setBox(values.box);
    control.set(values);
    control.updatePosition();
}

} // namespace layoutfile
