#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace shell {

// One line of text that may change at each movement of the mouse. The window is not laid out again for it,
// what there is no room for is cut, and what nobody could read is not painted.
class LiveLabel final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    LiveLabel() { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred); }

    const QString &text() const { return m_text; }
    // Seen at once, but no sooner than a moment after the text before it.
    void setText(const QString &text);
    // As wide as this text.
    void fix(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void showText();

    QString m_text;
    QBasicTimer m_moment;
};

} // namespace shell
