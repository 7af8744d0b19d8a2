#pragma once

#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QTableWidget>

namespace variables {

// A grid of numbers with an edit box, txtCell, that always lies over the current cell. Enter and the arrow
// keys move it and commit its text; with Shift, and with the mouse, a block is selected. The popup menu
// mnuPop cuts, copies, pastes and deletes blocks by way of the clipboard.
class PointGrid final : public QTableWidget
{
    Q_OBJECT

public:
    PointGrid(int rows, const QStringList &headers, const QString &decimalSeparator);

    // All rows as typed, with what stands in the edit box.
    QList<QStringList> cells() const;

signals:
    void changed(); // the text of a cell or of the edit box is another one

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void updateGeometries() override;

private:
    void addEntry(const char *name, const QString &text, QKeySequence::StandardKey key,
                  void (PointGrid::*handler)());
    bool keyPressed(const QKeyEvent &event);
    bool blockKeyPressed(const QKeyEvent &event);
    bool restoreCell();
    void moveBy(int rows, int columns, bool extend);
    void extendTo(const QModelIndex &corner);
    void showCell();
    void commit(); // stores what stands in the edit box

    QTableWidgetSelectionRange block() const;
    QString cell(int row, int column) const;
    bool setCell(int row, int column, const QString &text); // false: no other text, or outside the grid
    void fill(int top, int left, const QList<QStringList> &rows);
    void cut();
    void copy();
    void paste();
    void deleteBlock();

    QLineEdit *m_edit; // txtCell
    QMenu *m_menu;     // mnuPop
};

} // namespace variables
