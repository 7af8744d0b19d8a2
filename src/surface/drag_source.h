#pragma once

#include "platform/desktop/art_icon.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>

#include <functional>

namespace surface {

// An item view whose items are dragged as one text under one format: `textOf` answers what an item carries,
// nothing for items that are not dragged. Only the left button drags.
template <typename View, typename Item>
class DragSource final : public View
{
public:
    using TextOf = std::function<QString(const Item &)>;
    using Menu = std::function<void(const Item &, const QPoint &globalPosition)>;

    DragSource(const QString &format, TextOf textOf) : m_format(format), m_textOf(std::move(textOf))
    {
        this->setDragEnabled(true);
        this->setDragDropMode(View::DragOnly);
    }

    // What opens the menu of an item, asked for by the right button or by key.
    void setMenu(Menu menu) { m_menu = std::move(menu); }

protected:
    void contextMenuEvent(QContextMenuEvent *event) override
    {
        const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
        const Item *item = byKey ? this->currentItem() : this->itemAt(event->pos());
        if (item && m_menu)
            m_menu(*item, byKey ? this->viewport()->mapToGlobal(this->visualItemRect(item).center())
                                : event->globalPos());
    }

    void startDrag(Qt::DropActions) override
    {
        if (!(QGuiApplication::mouseButtons() & Qt::LeftButton))
            return;
        const Item *item = this->currentItem();
        const QString text = item ? m_textOf(*item) : QString();
        if (text.isEmpty())
            return;
        auto *carried = new QMimeData;
        carried->setData(m_format, text.toUtf8());
        auto *drag = new QDrag(this);
        drag->setMimeData(carried);
        drag->setPixmap(platform::artIcon(QStringLiteral("variables/drag")).pixmap(32, 32));
        drag->setHotSpot({3, 6});
        drag->exec(Qt::CopyAction);
    }

private:
    QString m_format;
    TextOf m_textOf;
    Menu m_menu;
};

} // namespace surface
