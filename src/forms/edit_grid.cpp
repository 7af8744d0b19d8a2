#include "forms/edit_grid.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace forms {

EditGrid::EditGrid(int rows, const QStringList &headers, QLineEdit *editor)
    : QTableWidget(rows, static_cast<int>(headers.size())), m_editor(editor)
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
        setCell(row, column, m_editor->text());
        showCell();
    });
    editor->setParent(viewport());
    editor->show();
    editor->setAlignment(Qt::AlignRight);
    editor->installEventFilter(this);
    connect(editor, &QLineEdit::textEdited, this, &EditGrid::changed);
    connect(editor, &QLineEdit::editingFinished, this, &EditGrid::commit);
    setFocusProxy(editor);
    setCurrentCell(0, 0);
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
    rows[currentRow()][currentColumn()] = m_editor->text();
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

void EditGrid::setEdited(const QString &text)
{
    m_editor->setText(text);
    m_editor->selectAll();
}

void EditGrid::commit() { setCell(currentRow(), currentColumn(), m_editor->text()); }

void EditGrid::showCell()
{
    m_editor->setGeometry(visualRect(currentIndex()));
    setEdited(cell(currentRow(), currentColumn()));
    m_editor->setAccessibleName(QStringLiteral("%1, row %2")
                                    .arg(horizontalHeaderItem(currentColumn())->text())
                                    .arg(currentRow() + 1));
}

void EditGrid::updateGeometries()
{
    QTableWidget::updateGeometries();
    m_editor->setGeometry(visualRect(currentIndex()));
}

std::optional<EditGrid::Step> EditGrid::stepOf(int key)
{
    switch (key) {
    case Qt::Key_Down:
        return Step{1, 0};
    case Qt::Key_Up:
        return Step{-1, 0};
    case Qt::Key_Left:
        return Step{0, -1};
    case Qt::Key_Right:
        return Step{0, 1};
    default:
        return std::nullopt;
    }
}

QModelIndex EditGrid::stepFrom(int row, int column, Step step) const
{
    return model()->index(std::clamp(row + step.rows, 0, rowCount() - 1),
                          std::clamp(column + step.columns, 0, columnCount() - 1));
}

void EditGrid::moveBy(Step step)
{
    commit();
    setCurrentIndex(stepFrom(currentRow(), currentColumn(), step));
    m_editor->selectAll();
}

bool EditGrid::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_editor && event->type() == QEvent::KeyPress)
        return keyPressed(*static_cast<QKeyEvent *>(event));
    return QTableWidget::eventFilter(watched, event);
}

bool EditGrid::keyPressed(const QKeyEvent &event)
{
    if (const auto step = stepOf(event.key())) {
        moveBy(*step);
        return true;
    }
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        moveBy({1, 0});
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
    if (m_editor->text() == stored)
        return false;
    setEdited(stored);
    emit changed();
    return true;
}

} // namespace forms
