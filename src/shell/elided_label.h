#pragma once

#include <QWidget>

namespace shell {

// One line of text that is cut to the room there is. Unlike a label's, its text can change at each movement
// of the mouse without the window being laid out again.
class ElidedLabel final : public QWidget
{
    Q_OBJECT

public:
    ElidedLabel() { setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred); }

    const QString &text() const { return m_text; }
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};

} // namespace shell
