#pragma once

#include <QString>

#include <array>

namespace controls {

// What a text tag without a variable can show. The row is what a layout stores, so the order stays.
inline constexpr std::array TextTypes{"Text",
                                      "String 1",
                                      "String 2",
                                      "String 3",
                                      "String 4",
                                      "Date(dd/mm/yy)",
                                      "Date(mm/dd/yy)",
                                      "Date(dd/mm/yyyy)",
                                      "Date(mm/dd/yyyy)",
                                      "Date(dd mon yyyy)",
                                      "Time(hh:mm)",
                                      "Time(hh:mm:ss)",
                                      "String 5",
                                      "String 6",
                                      "VID_EXP:Driver",
                                      "VID_EXP:Location",
                                      "VID_EXP:Date",
                                      "VID_EXP:Note"};

// The text to store for a field of this row that is named so: the recorder gets the pattern of a date or
// time, which stands between brackets.
QString fieldText(int row, const QString &name);

} // namespace controls
