#include "variables/editors/point_grid.h"

#include "forms/numeric_keys.h"
#include "variables/table_text.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>

namespace variables {

using namespace Qt::StringLiterals;

namespace {

// The grid gets to see the keys of its editor before the filter of numbers does.
QLineEdit *makeEditor(const QString &decimalSeparator)
{
    auto *editor = new QLineEdit;
    editor->setObjectName(u"txtCell"_s);
    new forms::NumericKeys(editor, decimalSeparator);
    return editor;
}

} // namespace

PointGrid::PointGrid(int rows, const QStringList &headers, const QString &decimalSeparator)
    : EditGrid(rows, headers, makeEditor(decimalSeparator)), m_menu(new QMenu(this))
{
    setSelectionMode(ContiguousSelection);
    m_menu->setObjectName(u"mnuPop"_s);
    addEntry("mnuCut", u"Cu&t"_s, QKeySequence::Cut, &PointGrid::cut);
    addEntry("mnuCopy", u"&Copy"_s, QKeySequence::Copy, &PointGrid::copy);
    addEntry("mnuPaste", u"&Paste"_s, QKeySequence::Paste, &PointGrid::paste);
    addEntry("mnuDelete", u"&Delete"_s, QKeySequence::Delete, &PointGrid::deleteBlock);
}

void PointGrid::addEntry(const char *name, const QString &text, QKeySequence::StandardKey key,
                         void (PointGrid::*handler)())
{
    QAction *action = m_menu->addAction(text, this, handler);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key); // shown only: the keys come by way of the edit box
    action->setShortcutContext(Qt::WidgetShortcut);
}

QTableWidgetSelectionRange PointGrid::block() const
{
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty())
        return ranges.first();
    return {currentRow(), currentColumn(), currentRow(), currentColumn()};
}

// Moves the corner of the block that lies opposite the current cell.
void PointGrid::extendBy(Step step)
{
    const QTableWidgetSelectionRange selected = block();
    const int row = currentRow() == selected.topRow() ? selected.bottomRow() : selected.topRow();
    const int column =
        currentColumn() == selected.leftColumn() ? selected.rightColumn() : selected.leftColumn();
    commit();
    extendTo(stepFrom(row, column, step));
    editor()->selectAll();
}

void PointGrid::extendTo(const QModelIndex &corner)
{
    selectionModel()->select(QItemSelection(currentIndex(), corner), QItemSelectionModel::ClearAndSelect);
    scrollTo(corner);
}

bool PointGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != editor())
        return EditGrid::eventFilter(watched, event);
    if (event->type() == QEvent::ContextMenu) {
        contextMenuEvent(static_cast<QContextMenuEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::MouseMove) { // a drag out of the edit box selects a block
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QModelIndex below = indexAt(editor()->mapToParent(mouse->position().toPoint()));
        if (!(mouse->buttons() & Qt::LeftButton) || !below.isValid() || below == currentIndex())
            return false;
        extendTo(below);
        return true;
    }
    return EditGrid::eventFilter(watched, event);
}

bool PointGrid::keyPressed(const QKeyEvent &event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return blockKeyPressed(event);
    const auto step = stepOf(event.key());
    if (step && event.modifiers() & Qt::ShiftModifier) {
        extendBy(*step);
        return true;
    }
    return blockKeyPressed(event) || EditGrid::keyPressed(event);
}

// The keys of the popup menu. Within a single cell the edit box does as every edit box does, but a paste
// always fills cells.
bool PointGrid::blockKeyPressed(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste)) {
        paste();
        return true;
    }
    const QTableWidgetSelectionRange selected = block();
    if (selected.rowCount() * selected.columnCount() <= 1)
        return false;
    if (event.matches(QKeySequence::Copy))
        copy();
    else if (event.matches(QKeySequence::Cut))
        cut();
    else if (event.matches(QKeySequence::Delete))
        deleteBlock();
    else
        return false;
    return true;
}

void PointGrid::contextMenuEvent(QContextMenuEvent *event) { m_menu->popup(event->globalPos()); }

void PointGrid::cut()
{
    copy();
    deleteBlock();
}

void PointGrid::copy()
{
    const QTableWidgetSelectionRange selected = block();
    const QList<QStringList> all = cells();
    QList<QStringList> rows;
    for (int row = selected.topRow(); row <= selected.bottomRow(); ++row)
        rows.append(all[row].mid(selected.leftColumn(), selected.columnCount()));
    QGuiApplication::clipboard()->setText(tableText(rows));
}

// After a selection by mouse the current cell is any corner of the block.
void PointGrid::paste()
{
    const QTableWidgetSelectionRange selected = block();
    fill(selected.topRow(), selected.leftColumn(), tableRows(QGuiApplication::clipboard()->text()));
}

void PointGrid::deleteBlock()
{
    const QTableWidgetSelectionRange selected = block();
    const QStringList empty(selected.columnCount(), QString());
    fill(selected.topRow(), selected.leftColumn(), QList<QStringList>(selected.rowCount(), empty));
}

// Cells beyond the grid are dropped.
void PointGrid::fill(int top, int left, const QList<QStringList> &rows)
{
    commit();
    bool different = false;
    for (qsizetype row = 0; row < rows.size() && top + row < rowCount(); ++row) {
        for (qsizetype column = 0; column < rows[row].size() && left + column < columnCount(); ++column)
            different |=
                setCell(top + static_cast<int>(row), left + static_cast<int>(column), rows[row][column]);
    }
    showCell();
    if (different)
        emit changed();
}

} // namespace variables
