#include "recorder/dialogs/gear_grid.h"

#include <array>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char *, MostGears> Names{"1st", "2nd", "3rd", "4th", "5th", "6th", "7th"};

} // namespace

QString gearName(std::size_t gear) { return QLatin1String(Names.at(gear)); }

GearModel::GearModel(QString decimalMark)
    : GridModel({u"Gear"_s, u"Lower limit"_s, u"Upper limit"_s}), m_decimalMark(std::move(decimalMark))
{
}

void GearModel::setCount(std::size_t count)
{
    beginResetModel();
    m_count = count;
    while (m_rows.size() < count)
        m_rows.push_back({{0, m_decimalMark}, {0, m_decimalMark}});
    endResetModel();
}

void GearModel::show(const std::vector<GearLimits> &limits)
{
    beginResetModel();
    m_rows.clear();
    for (const GearLimits &gear : limits)
        m_rows.push_back({{gear.lower, m_decimalMark}, {gear.upper, m_decimalMark}});
    m_count = m_rows.size();
    endResetModel();
}

std::vector<GearLimits> GearModel::limits() const
{
    std::vector<GearLimits> limits;
    for (std::size_t gear = 0; gear < m_count; ++gear)
        limits.push_back({m_rows[gear].lower.value(), m_rows[gear].upper.value()});
    return limits;
}

QVariant GearModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    const auto gear = static_cast<std::size_t>(index.row());
    if (index.column() == Gear)
        return gearName(gear);
    return index.column() == Lower ? m_rows[gear].lower.text() : m_rows[gear].upper.text();
}

bool GearModel::setData(const QModelIndex &index, const QVariant &value, int)
{
    Row &row = m_rows[static_cast<std::size_t>(index.row())];
    (index.column() == Lower ? row.lower : row.upper).type(value.toString());
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags GearModel::flags(const QModelIndex &index) const
{
    return GridModel::flags(index) | (index.column() == Gear ? Qt::NoItemFlags : Qt::ItemIsEditable);
}

GearGrid::GearGrid(const QString &decimalMark) : CellGrid("MSFlexGrid1", new GearModel(decimalMark))
{
    for (const int column : {GearModel::Lower, GearModel::Upper})
        setNumber(column, "txtValue", decimalMark);
}

} // namespace recorder
