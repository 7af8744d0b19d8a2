#pragma once

#include "forms/cell_grid.h"
#include "recorder/message_table.h"

#include <QTimer>

namespace recorder {

// The rates of all messages, one row each, on a copy of a message table.
class MessageModel final : public QAbstractTableModel
{
public:
    enum Column { Number, Name, Storage, Output, Columns };

    explicit MessageModel(MessageTable table) : m_table(std::move(table)) {}

    const MessageTable &table() const { return m_table; }
    // Sets rates for all messages.
    void set(void (*rates)(MessageTable &));

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    MessageTable m_table;
};

// grdInput, with its list cmbUpdate. Typing jumps to a message by its number or name.
class MessageGrid final : public forms::CellGrid
{
public:
    explicit MessageGrid(const MessageTable &table);

    MessageModel &messages() const { return static_cast<MessageModel &>(*model()); }
    void keyboardSearch(const QString &text) override;

private:
    QString m_typed; // so far
    QTimer m_pause;  // after which a new text begins
};

} // namespace recorder
