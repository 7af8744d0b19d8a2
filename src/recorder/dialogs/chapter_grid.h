#pragma once

#include "forms/cell_grid.h"
#include "forms/grid_model.h"
#include "recorder/chapter_rows.h"

namespace recorder {

// Conditions for chapters, one row each with a tick box, and an empty row at the end: choosing a type there
// makes it a condition.
class ChapterModel final : public forms::GridModel
{
public:
    enum Column { Type, Value1, Sign1, Variable, Sign2, Value2 };

    ChapterModel(ChapterRows rows, const variables::VariableTable &table, QString decimalMark);

    const ChapterRows &chapters() const { return m_rows; }
    void change(void (*rule)(ChapterRows &));

    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    std::size_t rows() const override { return m_rows.size(); }

private:
    QVariant shown(const ChapterRow &row, int column) const;
    void endWithEmptyRow();

    ChapterRows m_rows;
    const variables::VariableTable &m_table;
    QString m_decimalMark;
};

// grdInput, with its lists cmbChapterType, cmbCondition and cmbVariable and its box txtValue.
class ChapterGrid final : public forms::CellGrid
{
public:
    ChapterGrid(const std::vector<ChapterCondition> &conditions, const variables::VariableTable &table,
                const QString &decimalMark);

    const ChapterRows &rows() const { return static_cast<ChapterModel *>(model())->chapters(); }
    // Changes all rows by a rule.
    void change(void (*rule)(ChapterRows &));
};

} // namespace recorder
