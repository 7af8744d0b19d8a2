#pragma once

#include <QTableWidget>

namespace variables {

// A list of things to type, each with its meaning. A double click or Enter picks one.
class PickList final : public QTableWidget
{
    Q_OBJECT

public:
    explicit PickList(const char *name);
    void addRow(const QString &text, const QString &meaning);

signals:
    void picked(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void pick(int row);
};

} // namespace variables
