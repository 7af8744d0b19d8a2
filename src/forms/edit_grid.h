#pragma once

#include <QLineEdit>
#include <QTableWidget>

#include <optional>

namespace forms {

// A grid with a text box that always lies over the current cell. Enter and the arrow keys move it and commit
// what stands in it, Escape takes the typing back.
class EditGrid : public QTableWidget
{
    Q_OBJECT

public:
    // The editor belongs to the grid from now on.
    EditGrid(int rows, const QStringList &headers, QLineEdit *editor);
    ~EditGrid() override { hide(); } // takes the focus away while there is a grid to commit to

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
    QLineEdit *editor() const { return m_editor; }

    struct Step
    {
        int rows;
        int columns;
    };
    // Where an arrow key leads; nothing for other keys.
    static std::optional<Step> stepOf(int key);
    // The cell that a step from this one leads to; never out of the grid.
    QModelIndex stepFrom(int row, int column, Step step) const;
    void commit(); // stores what stands in the editor

private:
    void moveBy(Step step);
    void setEdited(const QString &text);
    bool restoreCell();

    QLineEdit *m_editor;
};

} // namespace forms
