#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace variables {

// Group numbers of the variable tree.
enum class VariableGroup : qint32 {
    Standard = 1,
    ExternalInput = 2,
    Gps = 3,
    UserDefined = 4,
    Serial = 5,
    External = 6,
    Debugging = 7,
    LapTiming = 8,
    Misc = 9
};

inline constexpr int LastIndex = 8000;     // catalogue slots are 0 to 8000
inline constexpr int NotFound = LastIndex; // name look-ups answer with the sentinel slot
inline constexpr int FirstUserVariable = 6001;
inline constexpr int LastUserVariable = 6025;

// One slot of the catalogue. Booleans go to files as 0 and -1.
struct VariableRecord
{
    QString DisplayName; // BaseName [unit]; made by normalise()
    QString PhysicalName;
    QString BaseName;
    qint32 IndexNumber = 0; // 0 marks an empty slot
    bool Enabled = false;
    bool AlwaysOn = false;
    bool Available = false;
    qint32 VariableType = 0; // VariableGroup
    float DefaultMin = 0;
    float DefaultMax = 0;
    qint32 FilterDesign = 0;
    float FilterLowVal = 0;
    float FilterHighVal = 0;
    float FilterRipple = 0; // dB
    qint32 FilterOrder = 0;
    QString ApplyTransformation; // UnitName of the conversion in force
    QStringList AllowTransformations;
    bool UseCustomTrans = false;
    QString CustomTransformation; // equation text
    QString CustomUnits;
    QString Description;
    float SmoothingTime = 0; // seconds; 0 means none
    float MaximumROC = 0;    // 0 means none
    qint32 calculus = 0;
    quint8 Misc = 0;

    bool operator==(const VariableRecord &) const = default;
};

struct UnitRecord
{
    QString UnitName; // the key
    QString Description;
    QString Conversion;
    QString Uniit; // the unit's label; its name is spelt so in the files too

    bool operator==(const UnitRecord &) const = default;
};

using VariableTable = QList<VariableRecord>; // LastIndex + 1 slots; a copy is made when one of two is edited
using UnitTable = std::vector<UnitRecord>;   // row 0 is blank

// Everything the recorder can log or compute. Files are made from `live`; editors work on `staging`. The two
// are the same whenever no edit is in progress.
struct Catalogue
{
    VariableTable live = VariableTable(LastIndex + 1);
    VariableTable staging = live;
    UnitTable units = UnitTable(1);
    // The user's definitions could not be read at the start. Until others are loaded the definition files
    // stay as they are: what lies here is not what the user had.
    bool definitionsLost = false;
    bool hasUnwrittenEdits = false; // the files in the user data folder are older than `live`
};

// Whether the recorder has a variable of this index at all.
bool isPermitted(int index);

// Normalises the record of this slot: its flags, its rates if it is never smoothed, its display name.
void normalise(VariableRecord &record, int index, const UnitTable &units);
// Normalises all of `live`. `staging` is the same afterwards.
void SetupVariables(Catalogue &catalogue);

// The unit that a variable's value is shown in: its own text, or the label of the conversion in force. A
// conversion that is in no row has the label of row 0.
const QString &shownUnit(const VariableRecord &record, const UnitTable &units);

// BaseName [unit]: the display name of one record.
QString displayName(const VariableRecord &record, const UnitTable &units);

enum class NameField { BaseName, PhysicalName };

// The slot of a typed or stored name, compared without regard to case and blanks at the ends: the whole
// names, else `name` cut at its first "[" with the whole names, else both cut. NotFound when there is none.
// Slots are scanned from 0. What is chosen from a list is not looked up: rows carry their index.
int findByName(const VariableTable &table, const QString &name, NameField field = NameField::BaseName);

// The row of `unitName`, compared exactly; 0, the blank row, when there is none.
std::size_t findUnit(const UnitTable &units, const QString &unitName);

} // namespace variables
