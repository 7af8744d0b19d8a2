#pragma once

#include <QAbstractTableModel>
#include <QStringList>

namespace forms {

// What the models of grids share: a plain table with these columns.
class GridModel : public QAbstractTableModel
{
public:
    int rowCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(rows());
    }
    int columnCount(const QModelIndex &parent = {}) const final
    {
        return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const final
    {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return m_headers.value(section);
        return QAbstractTableModel::headerData(section, orientation, role);
    }

protected:
    explicit GridModel(QStringList headers) : m_headers(std::move(headers)) {}

    virtual std::size_t rows() const = 0;

private:
    QStringList m_headers;
};

} // namespace forms
