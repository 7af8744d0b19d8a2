#include "variables/editors/point_grid.h"

#include "variables/numeric_keys.h"
#include "variables/table_text.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace variables {

PointGrid::PointGrid(int rows, const QStringList &headers, const QString &decimalSeparator)
    : m_edit(new QLineEdit(viewport())), m_menu(new QMenu(this))
{
    setRowCount(rows);
    setColumnCount(static_cast<int>(headers.size()));
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column) {
            auto *item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            setItem(row, column, item);
        }
    }
    setHorizontalHeaderLabels(headers);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ContiguousSelection);
    setTabKeyNavigation(false);
    setFocusProxy(m_edit);

    m_edit->setObjectName(QStringLiteral("txtCell"));
    m_edit->setAlignment(Qt::AlignRight);
    new NumericKeys(m_edit, decimalSeparator);
    m_edit->installEventFilter(this);
    connect(m_edit, &QLineEdit::textEdited, this, &PointGrid::changed);
    connect(m_edit, &QLineEdit::editingFinished, this, &PointGrid::commit);

    m_menu->setObjectName(QStringLiteral("mnuPop"));
    addEntry("mnuCut", QStringLiteral("Cu&t"), QKeySequence::Cut, &PointGrid::cut);
    addEntry("mnuCopy", QStringLiteral("&Copy"), QKeySequence::Copy, &PointGrid::copy);
    addEntry("mnuPaste", QStringLiteral("&Paste"), QKeySequence::Paste, &PointGrid::paste);
    addEntry("mnuDelete", QStringLiteral("&Delete"), QKeySequence::Delete, &PointGrid::deleteBlock);

    connect(this, &QTableWidget::currentCellChanged, this, [this](int, int, int row, int column) {
        setCell(row, column, m_edit->text());
        showCell();
    });
    setCurrentCell(0, 0);
}

void PointGrid::addEntry(const char *name, const QString &text, QKeySequence::StandardKey key,
                         void (PointGrid::*handler)())
{
    QAction *action = m_menu->addAction(text, this, handler);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key); // shown only: the keys come by way of the edit box
    action->setShortcutContext(Qt::WidgetShortcut);
}

QList<QStringList> PointGrid::cells() const
{
    QList<QStringList> rows;
    for (int row = 0; row < rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < columnCount(); ++column)
            texts.append(cell(row, column));
        rows.append(texts);
    }
    rows[currentRow()][currentColumn()] = m_edit->text();
    return rows;
}

QString PointGrid::cell(int row, int column) const
{
    const QTableWidgetItem *found = item(row, column);
    return found ? found->text() : QString();
}

bool PointGrid::setCell(int row, int column, const QString &text)
{
    QTableWidgetItem *found = item(row, column);
    if (!found || found->text() == text)
        return false;
    found->setText(text);
    return true;
}

void PointGrid::commit() { setCell(currentRow(), currentColumn(), m_edit->text()); }

void PointGrid::showCell()
{
    m_edit->setGeometry(visualRect(currentIndex()));
    m_edit->setText(cell(currentRow(), currentColumn()));
    m_edit->selectAll();
    m_edit->setAccessibleName(QStringLiteral("%1, row %2")
                                  .arg(horizontalHeaderItem(currentColumn())->text())
                                  .arg(currentRow() + 1));
}

void PointGrid::updateGeometries()
{
    QTableWidget::updateGeometries();
    m_edit->setGeometry(visualRect(currentIndex()));
}

QTableWidgetSelectionRange PointGrid::block() const
{
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty())
        return ranges.first();
    return {currentRow(), currentColumn(), currentRow(), currentColumn()};
}

void PointGrid::moveBy(int rows, int columns, bool extend)
{
    int row = currentRow();
    int column = currentColumn();
    if (extend) { // the corner of the block that lies opposite the current cell
        const QTableWidgetSelectionRange selected = block();
        row = row == selected.topRow() ? selected.bottomRow() : selected.topRow();
        column = column == selected.leftColumn() ? selected.rightColumn() : selected.leftColumn();
    }
    row = std::clamp(row + rows, 0, rowCount() - 1);
    column = std::clamp(column + columns, 0, columnCount() - 1);
    commit();
    if (extend)
        extendTo(model()->index(row, column));
    else
        setCurrentCell(row, column);
    m_edit->selectAll();
}

void PointGrid::extendTo(const QModelIndex &corner)
{
    selectionModel()->select(QItemSelection(currentIndex(), corner), QItemSelectionModel::ClearAndSelect);
    scrollTo(corner);
}

bool PointGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_edit)
        return QTableWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return keyPressed(*static_cast<QKeyEvent *>(event));
    if (event->type() == QEvent::ContextMenu) {
        contextMenuEvent(static_cast<QContextMenuEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::MouseMove) { // a drag out of the edit box selects a block
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const QModelIndex below = indexAt(m_edit->mapToParent(mouse->position().toPoint()));
        if (!(mouse->buttons() & Qt::LeftButton) || !below.isValid() || below == currentIndex())
            return false;
        extendTo(below);
        return true;
    }
    return false;
}

bool PointGrid::keyPressed(const QKeyEvent &event)
{
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return blockKeyPressed(event);
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        moveBy(1, 0, false);
        return true;
    case Qt::Key_Down:
        moveBy(1, 0, shift);
        return true;
    case Qt::Key_Up:
        moveBy(-1, 0, shift);
        return true;
    case Qt::Key_Left:
        moveBy(0, -1, shift);
        return true;
    case Qt::Key_Right:
        moveBy(0, 1, shift);
        return true;
    case Qt::Key_Escape:
        return restoreCell();
    default:
        return blockKeyPressed(event);
    }
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

// Whether there was something to take back.
bool PointGrid::restoreCell()
{
    const QString stored = cell(currentRow(), currentColumn());
    if (m_edit->text() == stored)
        return false;
    m_edit->setText(stored);
    m_edit->selectAll();
    emit changed();
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
    QList<QStringList> rows;
    for (int row = selected.topRow(); row <= selected.bottomRow(); ++row)
        rows.append(cells()[row].mid(selected.leftColumn(), selected.columnCount()));
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
