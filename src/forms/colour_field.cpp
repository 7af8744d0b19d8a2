#include "forms/colour_field.h"

#include "common/colour.h"

#include <QColor>
#include <QPainter>

namespace forms {

namespace {

constexpr QSize SwatchSize(72, 24);

} // namespace

ColourSwatch::ColourSwatch(platform::Prompts &prompts)
{
    setFixedSize(SwatchSize);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QToolButton::clicked, this, [this, &prompts] {
        if (const auto chosen = prompts.colour(common::toPixel(m_colour)))
            setColour(common::fromPixel(*chosen));
    });
}

void ColourSwatch::setColour(quint32 packed)
{
    if (packed == m_colour)
        return;
    m_colour = packed;
    update();
    emit colourChanged();
}

void ColourSwatch::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    QPainter painter(this);
    QColor colour(common::toPixel(m_colour));
    colour.setAlphaF(isEnabled() ? 1.0F : 0.35F);
    painter.fillRect(rect().adjusted(4, 4, -4, -4), colour);
}

ColourField::ColourField(const char *name, const char *resetName, quint32 resetColour,
                         platform::Prompts &prompts)
    : Field(new ColourSwatch(prompts), name), m_reset(new QPushButton(QStringLiteral("R&eset"))),
      m_cell(sideBySide({&widget(), m_reset}, true))
{
    m_reset->setObjectName(QLatin1String(resetName));
    m_reset->setAutoDefault(false);
    QObject::connect(m_reset, &QPushButton::clicked, m_reset,
                     [this, resetColour] { swatch().setColour(resetColour); });
    QObject::connect(&swatch(), &ColourSwatch::colourChanged, m_reset, [this] { changed(); });
}

} // namespace forms
