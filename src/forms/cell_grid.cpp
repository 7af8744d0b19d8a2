#include "forms/cell_grid.h"

#include "forms/numeric_keys.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyledItemDelegate>

#include <utility>

namespace forms {

namespace {

constexpr int RowPadding = 10; // pixels

// Name, and what a screen reader says of it.
void nameEditor(QWidget &editor, const QString &name, const QModelIndex &index)
{
    const QString header = index.model()->headerData(index.column(), Qt::Horizontal).toString();
    editor.setObjectName(name);
    editor.setAccessibleName(QStringLiteral("%1, row %2").arg(header).arg(index.row() + 1));
}

bool isPlainClick(const QEvent *event)
{
    if (!event || event->type() != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<const QMouseEvent *>(event);
    return mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier;
}

// Tells when its rows are put away, one of them chosen or not.
class OpenList final : public QComboBox
{
public:
    OpenList(QWidget *parent, const Choices &choices) : QComboBox(parent)
    {
        for (const Choice &choice : choices)
            addItem(choice.text, choice.value);
    }

    void whenShut(std::function<void()> callback) { m_whenShut = std::move(callback); }
    // The choice is told of after this; nobody may take the list away before.
    void hidePopup() override
    {
        QComboBox::hidePopup();
        QMetaObject::invokeMethod(this, m_whenShut, Qt::QueuedConnection);
    }

private:
    std::function<void()> m_whenShut;
};

class ListDelegate final : public QStyledItemDelegate
{
public:
    ListDelegate(QObject *parent, const char *name, std::function<Choices(int row)> choices)
        : QStyledItemDelegate(parent), m_name(QLatin1String(name)), m_choices(std::move(choices))
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        auto *list = new OpenList(parent, m_choices(index.row()));
        nameEditor(*list, m_name, index);
        return list;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        auto *list = static_cast<OpenList *>(editor);
        list->setCurrentIndex(list->findData(index.data(Qt::EditRole)));
    }
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override {} // see follow()

private:
    QString m_name;
    std::function<Choices(int row)> m_choices;
};

class NumberDelegate final : public QStyledItemDelegate
{
public:
    NumberDelegate(QObject *parent, const char *name, QString decimalMark)
        : QStyledItemDelegate(parent), m_name(QLatin1String(name)), m_decimalMark(std::move(decimalMark))
    {
    }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &,
                          const QModelIndex &index) const override
    {
        auto *box = new QLineEdit(parent);
        box->setAlignment(Qt::AlignRight);
        new NumericKeys(box, m_decimalMark);
        nameEditor(*box, m_name, index);
        return box;
    }
    // What is typed comes back from the model.
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (static_cast<QLineEdit *>(editor)->text() != index.data(Qt::EditRole).toString())
            QStyledItemDelegate::setEditorData(editor, index);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }

private:
    QString m_name;
    QString m_decimalMark;
};

} // namespace

CellGrid::CellGrid(const char *name, QAbstractItemModel *model)
{
    setObjectName(QLatin1String(name));
    model->setParent(this);
    setModel(model);
    setSelectionMode(SingleSelection);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerPixel);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowPadding);
    setWordWrap(false);
    chooseFirst();
    connect(model, &QAbstractItemModel::modelReset, this, &CellGrid::chooseFirst);
}

void CellGrid::setList(int column, const char *name, std::function<Choices(int row)> choices)
{
    setItemDelegateForColumn(column, new ListDelegate(this, name, std::move(choices)));
}

void CellGrid::setNumber(int column, const char *name, const QString &decimalMark)
{
    setItemDelegateForColumn(column, new NumberDelegate(this, name, decimalMark));
    m_numbers.append(column);
}

// The first cell that is edited becomes the current one.
void CellGrid::chooseFirst()
{
    QModelIndex first = model()->index(0, 0);
    while (first.isValid() && !first.flags().testFlag(Qt::ItemIsEditable))
        first = first.siblingAtColumn(first.column() + 1);
    setCurrentIndex(first);
}

// The base asks here for every click and key, so that a tick box in a cell gets its own first.
bool CellGrid::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (isPlainClick(event))
        trigger = EditKeyPressed;
    else if (trigger == AnyKeyPressed && !m_numbers.contains(index.column()))
        trigger = NoEditTriggers;
    const QWidget *before = indexWidget(index);
    const bool isTaken = QTableView::edit(index, trigger, event);
    QWidget *editor = indexWidget(index);
    if (editor != before)
        follow(editor, index);
    return isTaken;
}

void CellGrid::follow(QWidget *editor, const QPersistentModelIndex &index)
{
    m_before = index.data(Qt::EditRole);
    if (auto *box = qobject_cast<QLineEdit *>(editor)) {
        connect(box, &QLineEdit::textEdited, this, [this, box] { commitData(box); });
    } else if (auto *list = dynamic_cast<OpenList *>(editor)) {
        connect(list, &QComboBox::activated, this,
                [this, list, index] { model()->setData(index, list->currentData()); });
        list->whenShut([this, list] {
            if (list->isVisible())
                closeEditor(list, QAbstractItemDelegate::NoHint);
        });
        list->showPopup();
    }
}

// Enter in a text box goes on to the row below.
void CellGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const QPersistentModelIndex cell = currentIndex();
    QTableView::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::RevertModelCache)
        model()->setData(cell, m_before);
    const QModelIndex below = cell.sibling(cell.row() + 1, cell.column());
    if (hint == QAbstractItemDelegate::SubmitModelCache && below.isValid())
        setCurrentIndex(below);
}

// Enter never gets through to the dialog's OK.
void CellGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        edit(currentIndex(), EditKeyPressed, event);
    else
        QTableView::keyPressEvent(event);
}

} // namespace forms
