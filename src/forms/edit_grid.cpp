#include "forms/edit_grid.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <numeric>

namespace forms {

EditGrid::EditGrid(int rows, const QStringList &headers)
    : QTableWidget(rows, static_cast<int>(headers.size())),
      m_editors(static_cast<std::size_t>(headers.size()), nullptr)
{
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
    setTabKeyNavigation(false);
    connect(this, &QTableWidget::currentCellChanged, this, [this](int, int, int row, int column) {
        if (m_editor)
            setCell(row, column, edited());
        showCell();
    });
}

void EditGrid::setEditor(QWidget *editor)
{
    QList<int> columns(columnCount());
    std::iota(columns.begin(), columns.end(), 0);
    setEditor(editor, columns);
}

void EditGrid::setEditor(QWidget *editor, const QList<int> &columns)
{
    editor->setParent(viewport());
    editor->hide();
    editor->installEventFilter(this);
    if (auto *box = qobject_cast<QLineEdit *>(editor)) {
        box->setAlignment(Qt::AlignRight);
        connect(box, &QLineEdit::textEdited, this, &EditGrid::changed);
        connect(box, &QLineEdit::editingFinished, this, &EditGrid::commit);
    } else if (auto *list = qobject_cast<QComboBox *>(editor)) {
        connect(list, &QComboBox::activated, this, [this] {
            commit();
            emit changed();
        });
    }
    for (const int column : columns)
        m_editors[static_cast<std::size_t>(column)] = editor;
    if (currentRow() < 0)
        setCurrentCell(0, 0);
    showCell();
}

QList<QStringList> EditGrid::cells() const
{
    QList<QStringList> rows;
    for (int row = 0; row < rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < columnCount(); ++column)
            texts.append(cell(row, column));
        rows.append(texts);
    }
    if (m_editor)
        rows[currentRow()][currentColumn()] = edited();
    return rows;
}

QString EditGrid::cell(int row, int column) const
{
    const QTableWidgetItem *found = item(row, column);
    return found ? found->text() : QString();
}

bool EditGrid::setCell(int row, int column, const QString &text)
{
    QTableWidgetItem *found = item(row, column);
    if (!found || found->text() == text)
        return false;
    found->setText(text);
    return true;
}

QString EditGrid::edited() const
{
    if (const auto *list = qobject_cast<QComboBox *>(m_editor))
        return list->currentText();
    return static_cast<QLineEdit *>(m_editor)->text();
}

void EditGrid::setEdited(const QString &text)
{
    if (auto *list = qobject_cast<QComboBox *>(m_editor))
        list->setCurrentIndex(list->findText(text));
    else
        static_cast<QLineEdit *>(m_editor)->setText(text);
    selectEdited();
}

void EditGrid::selectEdited()
{
    if (auto *box = qobject_cast<QLineEdit *>(m_editor))
        box->selectAll();
}

void EditGrid::commit()
{
    if (m_editor)
        setCell(currentRow(), currentColumn(), edited());
}

// The focus goes from one editor to the next.
void EditGrid::takeEditor(int column)
{
    QWidget *next = column < 0 ? nullptr : m_editors[static_cast<std::size_t>(column)];
    if (next == m_editor)
        return;
    QWidget *last = std::exchange(m_editor, next);
    const bool focused = hasFocus() || (last && last->hasFocus());
    setFocusProxy(next);
    if (next)
        next->show();
    if (focused)
        setFocus();
    if (last)
        last->hide();
}

void EditGrid::showCell()
{
    takeEditor(currentColumn());
    if (!m_editor)
        return;
    m_editor->setGeometry(visualRect(currentIndex()));
    setEdited(cell(currentRow(), currentColumn()));
    m_editor->setAccessibleName(QStringLiteral("%1, row %2")
                                    .arg(horizontalHeaderItem(currentColumn())->text())
                                    .arg(currentRow() + 1));
}

void EditGrid::updateGeometries()
{
    QTableWidget::updateGeometries();
    if (m_editor)
        m_editor->setGeometry(visualRect(currentIndex()));
}

void EditGrid::moveBy(int rows, int columns)
{
    commit();
    setCurrentCell(std::clamp(currentRow() + rows, 0, rowCount() - 1),
                   std::clamp(currentColumn() + columns, 0, columnCount() - 1));
    selectEdited();
}

bool EditGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (isEditor(watched) && event->type() == QEvent::KeyPress)
        return keyPressed(*static_cast<QKeyEvent *>(event));
    return QTableWidget::eventFilter(watched, event);
}

bool EditGrid::keyPressed(const QKeyEvent &event)
{
    const bool inList = qobject_cast<QComboBox *>(m_editor);
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        moveBy(1, 0);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
        if (inList)
            return false;
        moveBy(event.key() == Qt::Key_Down ? 1 : -1, 0);
        return true;
    case Qt::Key_Left:
        moveBy(0, -1);
        return true;
    case Qt::Key_Right:
        moveBy(0, 1);
        return true;
    case Qt::Key_Escape:
        return restoreCell();
    default:
        return false;
    }
}

// Whether there was something to take back.
bool EditGrid::restoreCell()
{
    const QString stored = cell(currentRow(), currentColumn());
    if (edited() == stored)
        return false;
    setEdited(stored);
    emit changed();
    return true;
}

} // namespace forms
