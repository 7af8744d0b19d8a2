#include "variables/editors/pick_list.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace variables {

PickList::PickList(const char *name)
{
    setObjectName(QLatin1String(name));
    setColumnCount(2);
    horizontalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents); // long meanings take several lines
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setVerticalScrollMode(ScrollPerPixel);
    connect(this, &QTableWidget::cellDoubleClicked, this, &PickList::pick);
}

void PickList::addRow(const QString &text, const QString &meaning)
{
    const int row = rowCount();
    insertRow(row);
    setItem(row, 0, new QTableWidgetItem(text));
    setItem(row, 1, new QTableWidgetItem(meaning));
}

void PickList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        pick(currentRow());
    else
        QTableWidget::keyPressEvent(event);
}

void PickList::pick(int row)
{
    if (const QTableWidgetItem *text = item(row, 0))
        emit picked(text->text());
}

} // namespace variables
