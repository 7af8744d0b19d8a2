#pragma once

#include <QTableWidget>

#include <vector>

namespace forms {

// A grid with an editor that always lies over the current cell: a text box or a list for each column, or none
// where a column is not edited. Enter and the arrow keys move it and commit what stands in it (up and down
// choose in a list), Escape takes the typing back.
class EditGrid : public QTableWidget
{
    Q_OBJECT

public:
    EditGrid(int rows, const QStringList &headers);
    ~EditGrid() override { hide(); } // takes the focus away while there is a grid to commit to

    // The editor of these columns, or of all, a QLineEdit or a QComboBox; it belongs to the grid from now on.
    void setEditor(QWidget *editor, const QList<int> &columns);
    void setEditor(QWidget *editor);

    // All rows as typed, with what stands in the editor.
    QList<QStringList> cells() const;
    QString cell(int row, int column) const;
    // False: no other text, or outside the grid.
    bool setCell(int row, int column, const QString &text);
    // Brings the editor over the current cell, with the cell's text.
    void showCell();

signals:
    void changed(); // the text of a cell or of the editor is another one

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void updateGeometries() override;

    // A key in the editor; true when it was used up.
    virtual bool keyPressed(const QKeyEvent &event);
    bool isEditor(const QObject *object) const { return object == m_editor; }
    void moveBy(int rows, int columns);
    void commit(); // stores what stands in the editor

private:
    QString edited() const;
    void setEdited(const QString &text);
    void selectEdited();
    void takeEditor(int column);
    bool restoreCell();

    std::vector<QWidget *> m_editors; // by column
    QWidget *m_editor = nullptr;      // of the current cell
};

} // namespace forms
