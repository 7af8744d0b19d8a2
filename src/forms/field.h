#pragma once

#include "forms/verdict.h"

#include <QLabel>
#include <QList>
#include <QWidget>

#include <functional>
#include <vector>

namespace forms {

// What a row says of itself: the contract name of its field, caption with mnemonic, and unit after it.
struct RowText
{
    const char *name;
    const char *caption;
    const char *unit = "";
};

// A field of a dialog: a widget, its row, and what stands in it. What it shows it gives back exactly unless
// it was touched. Owned by its dialog; the widgets belong to the window.
class Field
{
public:
    Field(QWidget *widget, const char *name);
    virtual ~Field() = default;
    Q_DISABLE_COPY_MOVE(Field)

    QWidget &widget() const { return *m_widget; }
    QString name() const { return m_widget->objectName(); }
    // Null for a field that was not given a row.
    QLabel *caption() const { return m_caption; }
    // The widget with its unit and buttons as one cell of a row.
    virtual QWidget *cell() { return m_widget; }
    void setCaption(QLabel *caption);

    // For the rules.
    virtual QString text() const = 0;
    virtual int row() const { return -1; }
    // A correction; counts as typed.
    virtual void setText(const QString &text) = 0;

    // The whole row.
    virtual void setEnabled(bool enabled);
    virtual void setVisible(bool visible);

    // Calls back after each change by the user, or by a correction.
    void whenChanged(std::function<void()> callback) { m_callbacks.push_back(std::move(callback)); }

protected:
    void changed();

private:
    QWidget *m_widget;
    QLabel *m_caption = nullptr;
    std::vector<std::function<void()>> m_callbacks;
};

// These widgets side by side; they belong to the returned one.
QWidget *sideBySide(const QList<QWidget *> &widgets, bool stretched = false);

} // namespace forms
