#pragma once

#include "forms/choice.h"

#include <QTableView>

#include <functional>

namespace forms {

// A grid that edits one cell at a time: a click, Enter or F2 opens the editor of its column over the cell, a
// list at once with its rows. Of a list only a choice is stored; what is typed in a box is in the model at
// once, and Escape takes it back. The model says which cells are edited; a list asks it for the value of a
// row as Qt::EditRole, and stores that of the chosen one.
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

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void chooseFirst();
    void follow(QWidget *editor, const QPersistentModelIndex &index);

    QList<int> m_numbers; // columns
    QVariant m_before;    // what stood in the cell that is open
};

} // namespace forms
