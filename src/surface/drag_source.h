#pragma once

#include <QDrag>
#include <QGuiApplication>
#include <QIcon>
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

    DragSource(const QString &format, TextOf textOf) : m_format(format), m_textOf(std::move(textOf))
    {
        this->setDragEnabled(true);
        this->setDragDropMode(View::DragOnly);
    }

protected:
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
        drag->setPixmap(QIcon(QStringLiteral(":/variables/drag.png")).pixmap(32, 32));
        drag->setHotSpot({3, 6});
        drag->exec(Qt::CopyAction);
    }

private:
    QString m_format;
    TextOf m_textOf;
};

} // namespace surface
