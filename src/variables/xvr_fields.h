#pragma once

namespace variables {

// The fields of a variable's block, in the order in which they are written. `field` writes or reads one by
// its tag and has a function for each form of text:
//   number       decimal; read as its longest leading number, always with "."
//   localNumber  decimal; read as a whole in the system's own form
//   text         as it stands
//   list         texts with "#" between them
//   equation     on one line: "#" for CR, "$" for LF
//   label        without NULs and blanks round it; read as it stands
void visitXvr(auto &record, auto &&field)
{
    field.localNumber("IndexNumber", record.IndexNumber);
    field.text("PhysicalName", record.PhysicalName);
    field.text("BaseName", record.BaseName);
    field.number("Enabled", record.Enabled);
    field.number("AlwaysOn", record.AlwaysOn);
    field.number("Available", record.Available);
    field.localNumber("VariableType", record.VariableType);
    field.localNumber("DefaultMin", record.DefaultMin);
    field.localNumber("DefaultMax", record.DefaultMax);
    field.number("FilterDesign", record.FilterDesign);
    field.number("FilterLowVal", record.FilterLowVal);
    field.number("FilterHighVal", record.FilterHighVal);
    field.number("FilterRipple", record.FilterRipple);
    field.number("FilterOrder", record.FilterOrder);
    field.text("ApplyTransformation", record.ApplyTransformation);
    field.list("AllowTransformations", record.AllowTransformations);
    field.number("UseCustomTrans", record.UseCustomTrans);
    field.equation("CustomTransformation", record.CustomTransformation);
    field.label("CustomUnits", record.CustomUnits);
    field.text("Description", record.Description);
    field.localNumber("SmoothingTime", record.SmoothingTime);
    field.localNumber("MaximumROC", record.MaximumROC);
    field.number("calculus", record.calculus);
    field.number("Misc", record.Misc);
}

} // namespace variables
