#include "recorder/dialogs/message_grid.h"

#include "recorder/message_rates.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr int HeaderPadding = 12; // pixels

// Of a column that shows one.
quint8 MessageEntry::*rateOf(int column)
{
    switch (column) {
    case MessageModel::Storage:
        return &MessageEntry::storageRate;
    case MessageModel::Output:
        return &MessageEntry::outputRate;
    default:
        return nullptr;
    }
}

} // namespace

MessageModel::MessageModel(MessageTable table)
    : GridModel({u"No."_s, u"Message"_s, u"Storage Frequency"_s, u"Output Frequency"_s}),
      m_table(std::move(table))
{
}

void MessageModel::set(void (*rates)(MessageTable &))
{
    rates(m_table);
    emit dataChanged(index(0, Storage), index(rowCount() - 1, Output));
}

QVariant MessageModel::data(const QModelIndex &index, int role) const
{
    const MessageEntry &entry = m_table[static_cast<std::size_t>(index.row())];
    const bool isShown = role == Qt::DisplayRole;
    if (const auto rate = rateOf(index.column())) {
        if (isShown)
            return rateText(entry.*rate, entry.kind);
        return role == Qt::EditRole ? QVariant(rateChoice(entry.*rate, entry.kind)) : QVariant();
    }
    if (!isShown)
        return {};
    return index.column() == Number ? QVariant(entry.number) : QVariant(entry.name);
}

bool MessageModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const auto rate = rateOf(index.column());
    if (!rate || role != Qt::EditRole)
        return false;
    m_table[static_cast<std::size_t>(index.row())].*rate = static_cast<quint8>(value.toUInt());
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags MessageModel::flags(const QModelIndex &index) const
{
    return GridModel::flags(index) | (rateOf(index.column()) ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

MessageGrid::MessageGrid(const MessageTable &table) : CellGrid("grdInput", new MessageModel(table))
{
    for (const int column : {MessageModel::Storage, MessageModel::Output}) {
        setList(column, "cmbUpdate", [this](int row) {
            return rateChoices(messages().table()[static_cast<std::size_t>(row)].kind);
        });
    }
    // By their headers, since it takes long to measure all cells.
    for (const int column : {MessageModel::Number, MessageModel::Storage, MessageModel::Output}) {
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
        setColumnWidth(column, horizontalHeader()->sectionSizeHint(column) + HeaderPadding);
    }
    setAlternatingRowColors(true);
    m_pause.setSingleShot(true);
    m_pause.setInterval(QApplication::keyboardInputInterval());
    m_pause.callOnTimeout(this, [this] { m_typed.clear(); });
}

// A blank within what is typed is a part of it.
void MessageGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Space && !m_typed.isEmpty())
        keyboardSearch(event->text());
    else
        CellGrid::keyPressEvent(event);
}

void MessageGrid::keyboardSearch(const QString &text)
{
    const int from = currentIndex().row() + (m_typed.isEmpty() ? 1 : 0); // a new text goes on from here
    m_typed += text;
    m_pause.start();
    if (const auto row = findMessage(messages().table(), m_typed, from))
        setCurrentIndex(currentIndex().siblingAtRow(*row));
}

} // namespace recorder
