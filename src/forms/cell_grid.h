#pragma once

#include "forms/choice.h"

#include <QTableView>

#include <functional>

namespace forms {

// A grid that edits one cell at a time: a click, Enter or F2 opens the editor of its column over the cell, a
// list at once with its rows. A choice or Enter closes the editor and stores what stands in it, Escape only
// closes it. The model says which cells are edited; what a list stores is the value of the chosen row, as is
// what it asks for as Qt::EditRole.
class CellGrid : public QTableView
{
    Q_OBJECT

public:
    // The model belongs to the grid from now on.
    CellGrid(const char *name, QAbstractItemModel *model);

    // `choices` gives the rows of the list for a row of the grid.
    void setList(int column, const char *name, std::function<Choices(int row)> choices);
    // A text box for numbers. Typing opens it as well.
    void setNumber(int column, const char *name, const QString &decimalMark);

    // Stores what stands in an open editor, which closes.
    void finishEditing();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void chooseFirst();

    QList<int> m_numbers; // columns
};

} // namespace forms
