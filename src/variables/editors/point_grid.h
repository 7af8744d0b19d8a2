#pragma once

#include "forms/edit_grid.h"

#include <QKeySequence>
#include <QMenu>

namespace variables {

// A grid of numbers with its edit box, txtCell. With Shift, and with the mouse, a block is selected. The
// popup menu mnuPop cuts, copies, pastes and deletes blocks by way of the clipboard.
class PointGrid final : public forms::EditGrid
{
    Q_OBJECT

public:
    PointGrid(int rows, const QStringList &headers, const QString &decimalSeparator);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool keyPressed(const QKeyEvent &event) override;

private:
    void addEntry(const char *name, const QString &text, QKeySequence::StandardKey key,
                  void (PointGrid::*handler)());
    bool blockKeyPressed(const QKeyEvent &event);
    void extendBy(Step step);
    void extendTo(const QModelIndex &corner);

    QTableWidgetSelectionRange block() const;
    void fill(int top, int left, const QList<QStringList> &rows);
    void cut();
    void copy();
    void paste();
    void deleteBlock();

    QMenu *m_menu; // mnuPop
};

} // namespace variables
