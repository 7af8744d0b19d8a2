#include "forms/screen_fit.h"

#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

namespace forms {

namespace {

constexpr QSize Around(32, 104); // pixels, about what the desktop draws round a window, and its buttons

} // namespace

void fitScreen(QDialog &dialog, QBoxLayout &content)
{
    const QSize room = dialog.screen()->availableSize() - Around;
    const QSize wanted = dialog.sizeHint();
    if (wanted == wanted.boundedTo(room))
        return;
    auto *area = new QScrollArea;
    auto *inside = new QWidget;
    dialog.layout()->removeItem(&content);
    content.setParent(nullptr);
    content.setContentsMargins(0, 0, 0, 0);
    inside->setLayout(&content);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows the field that has the keys
    area->setWidgetResizable(true);
    area->setWidget(inside);
    static_cast<QBoxLayout *>(dialog.layout())->insertWidget(0, area, 1);
    const int bar = area->verticalScrollBar()->sizeHint().width();
    area->setMinimumSize((wanted + QSize(bar, bar)).boundedTo(room));
}

} // namespace forms
