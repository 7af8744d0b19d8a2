#include "platform/desktop/art_icon.h"

#include <QIconEngine>
#include <QPainter>

namespace platform {

namespace {

class LateIcon final : public QIconEngine
{
public:
    explicit LateIcon(const QString &path) : m_path(path) {}

    QIconEngine *clone() const override { return new LateIcon(*this); }
    bool isNull() override { return false; }
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1, mode, state);
    }
    // `size` in pixels of the screen.
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }

private:
    const QIcon &icon()
    {
        if (m_icon.isNull())
            m_icon = QIcon(m_path);
        return m_icon;
    }

    QString m_path;
    QIcon m_icon;
};

} // namespace

QIcon artIcon(const QString &name) { return QIcon(new LateIcon(QStringLiteral(":/%1.png").arg(name))); }

} // namespace platform
