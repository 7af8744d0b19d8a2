#pragma once

#include "forms/cell_grid.h"
#include "forms/grid_model.h"
#include "recorder/message_table.h"

#include <QTimer>

namespace recorder {

// The rates of all messages, one row each, on a copy of a message table.
class MessageModel final : public forms::GridModel
{
public:
    enum Column { Number, Name, Storage, Output };

    explicit MessageModel(MessageTable table);

    const MessageTable &table() const { return m_table; }
    // Sets rates for all messages.
    void set(void (*rates)(MessageTable &));

    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

protected:
    std::size_t rows() const override { return m_table.size(); }

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

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString m_typed; // so far
    QTimer m_pause;  // after which a new text begins
};

} // namespace recorder
