#include "recorder/dialogs/chapter_grid.h"

#include <QHeaderView>

#include <algorithm>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr int NarrowestColumn = 70; // pixels

// What a cell's editor works on.
QVariant edited(const ChapterRow &row, int column)
{
    switch (column) {
    case ChapterModel::Type:
        return row.type ? QVariant(*row.type) : QVariant();
    case ChapterModel::Value1:
        return row.value1.text();
    case ChapterModel::Sign1:
        return row.sign1;
    case ChapterModel::Variable:
        return row.variable;
    case ChapterModel::Sign2:
        return row.sign2;
    default:
        return row.value2.text();
    }
}

void edit(ChapterRow &row, int column, const QVariant &value)
{
    const auto byte = [&value] { return static_cast<quint8>(value.toUInt()); };
    switch (column) {
    case ChapterModel::Type:
        row.type = byte();
        break;
    case ChapterModel::Value1:
        row.value1.type(value.toString());
        break;
    case ChapterModel::Sign1:
        row.sign1 = byte();
        break;
    case ChapterModel::Variable:
        row.variable = value.toInt();
        break;
    case ChapterModel::Sign2:
        row.sign2 = byte();
        break;
    default:
        row.value2.type(value.toString());
    }
}

} // namespace

ChapterModel::ChapterModel(ChapterRows rows, const variables::VariableTable &table, QString decimalMark)
    : GridModel({u"Chapter Type"_s, u"Value 1"_s, u"Sign 1"_s, u"Variable"_s, u"Sign 2"_s, u"Value 2"_s}),
      m_rows(std::move(rows)), m_table(table), m_decimalMark(std::move(decimalMark))
{
    endWithEmptyRow();
}

void ChapterModel::endWithEmptyRow()
{
    if (m_rows.empty() || m_rows.back().type)
        m_rows.push_back(emptyChapterRow(m_decimalMark));
}

void ChapterModel::change(void (*rule)(ChapterRows &))
{
    beginResetModel();
    rule(m_rows);
    endWithEmptyRow();
    endResetModel();
}

QVariant ChapterModel::data(const QModelIndex &index, int role) const
{
    const ChapterRow &row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::EditRole)
        return edited(row, index.column());
    if (!row.type)
        return {};
    if (role == Qt::CheckStateRole && index.column() == Type)
        return row.isTicked ? Qt::Checked : Qt::Unchecked;
    return role == Qt::DisplayRole ? shown(row, index.column()) : QVariant();
}

QVariant ChapterModel::shown(const ChapterRow &row, int column) const
{
    switch (column) {
    case Type:
        return chapterTypeText(*row.type);
    case Sign1:
        return signText(row.sign1);
    case Variable:
        return variableName(row.variable, m_table);
    case Sign2:
        return signText(row.sign2);
    default:
        return edited(row, column);
    }
}

bool ChapterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    ChapterRow &row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::CheckStateRole) {
        row.isTicked = value.toInt() == Qt::Checked;
        emit dataChanged(index, index);
        return true;
    }
    edit(row, index.column(), value);
    emit dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(Value2));
    if (m_rows.back().type) {
        beginInsertRows({}, rowCount(), rowCount());
        endWithEmptyRow();
        endInsertRows();
    }
    return true;
}

Qt::ItemFlags ChapterModel::flags(const QModelIndex &index) const
{
    const bool isFilled = m_rows[static_cast<std::size_t>(index.row())].type.has_value();
    Qt::ItemFlags flags = GridModel::flags(index);
    flags.setFlag(Qt::ItemIsEditable, isFilled || index.column() == Type);
    flags.setFlag(Qt::ItemIsUserCheckable, isFilled && index.column() == Type);
    return flags;
}

ChapterGrid::ChapterGrid(const std::vector<ChapterCondition> &conditions,
                         const variables::VariableTable &table, const QString &decimalMark)
    : CellGrid("grdInput", new ChapterModel(chapterRows(conditions, decimalMark), table, decimalMark))
{
    setList(ChapterModel::Type, "cmbChapterType",
            [](int) { return valuesUpTo(LastChapterType, chapterTypeText); });
    for (const int column : {ChapterModel::Sign1, ChapterModel::Sign2})
        setList(column, "cmbCondition", [](int) { return valuesUpTo(LastSign, signText); });
    for (const int column : {ChapterModel::Value1, ChapterModel::Value2})
        setNumber(column, "txtValue", decimalMark);
    setList(ChapterModel::Variable, "cmbVariable", [this, &table](int row) {
        return enabledVariables(table, rows()[static_cast<std::size_t>(row)].variable);
    });
    horizontalHeader()->setMinimumSectionSize(NarrowestColumn);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(ChapterModel::Variable, QHeaderView::Stretch);
}

void ChapterGrid::change(void (*rule)(ChapterRows &))
{
    const int row = currentIndex().row();
    static_cast<ChapterModel *>(model())->change(rule);
    setCurrentIndex(model()->index(std::min(row, model()->rowCount() - 1), ChapterModel::Type));
}

} // namespace recorder
