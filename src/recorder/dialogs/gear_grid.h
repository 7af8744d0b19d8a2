#pragma once

#include "forms/cell_grid.h"
#include "forms/grid_model.h"
#include "recorder/number_cell.h"
#include "recorder/recorder_settings.h"

namespace recorder {

// "1st" to "7th".
QString gearName(std::size_t gear);

// The limits of the gears, one row each.
class GearModel final : public forms::GridModel
{
public:
    enum Column { Gear, Lower, Upper };

    explicit GearModel(QString decimalMark);

    // The first gears; what stands in the rows of the others is kept for when there are more again.
    void setCount(std::size_t count);
    std::size_t count() const { return m_count; }
    void show(const std::vector<GearLimits> &limits);
    // Throws RunTimeError for a text that is no number.
    std::vector<GearLimits> limits() const;

    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    std::size_t rows() const override { return m_count; }

private:
    struct Row
    {
        NumberCell lower;
        NumberCell upper;
    };

    QString m_decimalMark;
    std::vector<Row> m_rows;
    std::size_t m_count = 0;
};

// MSFlexGrid1, with its box txtValue.
class GearGrid final : public forms::CellGrid
{
public:
    explicit GearGrid(const QString &decimalMark);

    GearModel &gears() const { return static_cast<GearModel &>(*model()); }
};

} // namespace recorder
