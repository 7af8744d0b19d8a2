#include "make_data/catalogue_builder.h"

#include "variables/expression/compiler.h"
#include "variables/units.h"

#include <QHash>

namespace make_data {

namespace {

using variables::VariableGroup;
using variables::VariableRecord;

constexpr int UnitCells = 4;
constexpr int VariableCells = 8;
constexpr int UserVariableCells = VariableCells + 2; // equation and unit
constexpr int LastGroup = static_cast<int>(VariableGroup::Misc);

// Names that must not be given twice; remembers the line that each was given in.
class NameRegister
{
public:
    explicit NameRegister(const QString &what) : m_what(what) {}

    void enter(RowReader &row, const QString &name, const QString &key)
    {
        if (key.isEmpty())
            return row.complain(QStringLiteral("the %1 is missing").arg(m_what));
        if (m_lines.contains(key))
            return row.complain(
                QStringLiteral("the %1 \"%2\" is taken by line %3").arg(m_what, name).arg(m_lines[key]));
        m_lines.insert(key, row.line());
    }

private:
    QString m_what;
    QHash<QString, int> m_lines;
};

// A name as the catalogue's look-up compares it.
QString lookUpKey(const QString &name) { return name.section(QLatin1Char('['), 0, 0).trimmed().toUpper(); }

void checkConversion(RowReader &row, const QString &conversion)
{
    if (conversion.isEmpty())
        return row.complain(QStringLiteral("the conversion is missing"));
    const QStringList parts = conversion.split(QLatin1Char('$'));
    if (parts.size() != 1 && parts.size() != 3 && parts.size() != 5)
        return row.complain(QStringLiteral("a conversion has two or four \"$\", or none"));
    for (qsizetype i = 1; i < parts.size(); ++i)
        row.number(parts[i]);
    // Whether it compiles does not depend on the variable that shows the unit.
    const bool needsProgram = !variables::readConversion(conversion).isIdentity;
    if (needsProgram && variables::conversionProgram(conversion, 1, {}).isEmpty())
        row.complain(QStringLiteral("the conversion does not compile"));
}

variables::UnitTable buildUnits(const TextTable &table, Problems &problems)
{
    variables::UnitTable units(1);
    NameRegister names(QStringLiteral("unit name"));
    for (const Row &source : table.rows) {
        RowReader row(table, source, problems);
        if (!row.hasCells(UnitCells))
            continue;
        names.enter(row, row.text(0), row.text(0));
        checkConversion(row, row.text(2));
        units.push_back({row.text(0), row.text(3), row.text(2), row.text(1)});
    }
    return units;
}

class VariablesBuilder
{
public:
    VariablesBuilder(variables::Catalogue &catalogue, const TextTable &table, Problems &problems)
        : m_catalogue(catalogue), m_table(table), m_problems(problems)
    {
    }

    void addRow(const Row &source)
    {
        RowReader row(m_table, source, m_problems);
        if (row.isHeading())
            openGroup(row);
        else if (m_group == 0)
            row.complain(QStringLiteral("a group has to be opened first"));
        else if (row.hasCells(inUserGroup() ? UserVariableCells : VariableCells))
            addVariable(row);
    }

private:
    bool inUserGroup() const { return m_group == static_cast<int>(VariableGroup::UserDefined); }

    void openGroup(RowReader &row)
    {
        const QString number = row.text(0).section(QLatin1Char(' '), 0, 0);
        m_group = row.whole(number, 1, LastGroup).value_or(m_group);
    }

    void addVariable(RowReader &row)
    {
        const int index = row.whole(row.text(0), 1, variables::LastIndex).value_or(0);
        if (index == 0)
            return;
        if (!variables::isPermitted(index) && index != variables::NotFound)
            row.complain(QStringLiteral("the recorder has no variable %1").arg(index));
        m_indices.enter(row, row.text(0), QString::number(index));
        m_physicalNames.enter(row, row.text(1), lookUpKey(row.text(1)));
        m_baseNames.enter(row, row.text(2), lookUpKey(row.text(2)));
        m_catalogue.live[index] = record(row, index);
    }

    VariableRecord record(RowReader &row, int index)
    {
        VariableRecord record;
        record.IndexNumber = index;
        record.PhysicalName = row.text(1);
        record.BaseName = row.text(2);
        record.DefaultMin = row.number(row.text(3));
        record.DefaultMax = row.number(row.text(4));
        record.Description = row.text(7);
        record.VariableType = m_group;
        record.Enabled = record.Available = index != variables::NotFound;
        readUnits(row, record);
        readOptions(row, record);
        if (inUserGroup()) {
            record.UseCustomTrans = true;
            record.CustomTransformation = row.text(8);
            if (QByteArray program; !variables::expression::compile(row.text(8), program, index, {}))
                row.complain(QStringLiteral("the equation does not compile"));
            record.CustomUnits = row.text(9);
        }
        return record;
    }

    // Only a variable with an equation may have none.
    void readUnits(RowReader &row, VariableRecord &record)
    {
        if (inUserGroup() && row.text(5).isEmpty())
            return;
        for (const QString &unit : row.text(5).split(QLatin1Char(','))) {
            const QString name = unit.trimmed();
            if (variables::findUnit(m_catalogue.units, name) == 0)
                row.complain(QStringLiteral("unknown unit \"%1\"").arg(name));
            record.AllowTransformations.append(name);
        }
        record.ApplyTransformation = record.AllowTransformations.first();
    }

    static void readOptions(RowReader &row, VariableRecord &record)
    {
        for (const QString &option : row.text(6).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString name = option.section(QLatin1Char('='), 0, 0);
            const QString value = option.section(QLatin1Char('='), 1);
            if (option == QLatin1String("always"))
                record.AlwaysOn = true;
            else if (option == QLatin1String("hidden"))
                record.Available = false;
            else if (name == QLatin1String("smooth"))
                record.SmoothingTime = row.number(value);
            else if (name == QLatin1String("roc"))
                record.MaximumROC = row.number(value);
            else
                row.complain(QStringLiteral("unknown option \"%1\"").arg(option));
        }
    }

    variables::Catalogue &m_catalogue;
    const TextTable &m_table;
    Problems &m_problems;
    int m_group = 0;
    NameRegister m_indices{QStringLiteral("index")};
    NameRegister m_physicalNames{QStringLiteral("physical name")};
    NameRegister m_baseNames{QStringLiteral("name")};
};

} // namespace

variables::Catalogue buildCatalogue(const TextTable &units, const TextTable &variableRows, Problems &problems)
{
    variables::Catalogue catalogue;
    catalogue.units = buildUnits(units, problems);
    VariablesBuilder builder(catalogue, variableRows, problems);
    for (const Row &row : variableRows.rows)
        builder.addRow(row);
    variables::SetupVariables(catalogue);
    return catalogue;
}

} // namespace make_data
