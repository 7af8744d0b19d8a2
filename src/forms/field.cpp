#include "forms/field.h"

#include <QHBoxLayout>

namespace forms {

Field::Field(QWidget *widget, const char *name) : m_widget(widget)
{
    widget->setObjectName(QLatin1String(name));
}

void Field::setCaption(QLabel *caption)
{
    m_caption = caption;
    caption->setBuddy(m_widget);
    m_widget->setAccessibleName(caption->text().remove(QLatin1Char('&')));
}

void Field::setEnabled(bool enabled)
{
    cell()->setEnabled(enabled);
    if (m_caption)
        m_caption->setEnabled(enabled);
}

void Field::setVisible(bool visible)
{
    cell()->setVisible(visible);
    if (m_caption)
        m_caption->setVisible(visible);
}

void Field::changed()
{
    for (const auto &callback : m_callbacks)
        callback();
}

QWidget *sideBySide(const QList<QWidget *> &widgets, bool stretched)
{
    auto *cell = new QWidget;
    auto *layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    if (stretched)
        layout->addStretch();
    return cell;
}

} // namespace forms
