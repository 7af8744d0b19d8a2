#include "forms/picture_field.h"

#include <QPixmap>

namespace forms {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize PreviewSize(160, 120);

} // namespace

PictureField::PictureField(const char *name, const char *previewName, const platform::FileRequest &request,
                           platform::Prompts &prompts, Taker taker)
    : Field(new QPushButton(u"Browse..."_s), name), m_prompts(prompts), m_taker(std::move(taker)),
      m_preview(new QLabel), m_buttons(new QVBoxLayout)
{
    m_preview->setObjectName(QLatin1String(previewName));
    m_preview->setFixedSize(PreviewSize);
    m_preview->setAlignment(Qt::AlignCenter);
    m_preview->setFrameShape(QFrame::StyledPanel);
    auto *buttons = new QWidget;
    buttons->setLayout(m_buttons);
    m_buttons->setContentsMargins(0, 0, 0, 0);
    m_buttons->addStretch();
    m_cell = sideBySide({m_preview, buttons}, true);
    prepare(button(), request);
}

void PictureField::addButton(const char *name, const char *caption, const platform::FileRequest &request)
{
    auto *another = new QPushButton(QString::fromUtf8(caption));
    another->setObjectName(QLatin1String(name));
    another->setAccessibleName(widget().accessibleName() + u", "_s + another->text());
    prepare(*another, request);
}

void PictureField::prepare(QPushButton &button, const platform::FileRequest &request)
{
    button.setAutoDefault(false);
    m_buttons->insertWidget(m_buttons->count() - 1, &button);
    QObject::connect(&button, &QPushButton::clicked, &button, [this, request] {
        const QString path = m_prompts.openFile(request);
        if (!path.isEmpty())
            setText(path);
    });
}

QString PictureField::text() const
{
    const QImage &shown = picture();
    return shown.isNull() ? QString() : u"%1 x %2"_s.arg(shown.width()).arg(shown.height());
}

void PictureField::setText(const QString &path)
{
    const QImage taken = m_taker(path);
    if (taken.isNull())
        return;
    show({taken, path});
    changed();
}

void PictureField::show(const ChosenPicture &chosen)
{
    m_chosen = chosen;
    if (picture().isNull()) {
        m_preview->clear();
        return;
    }
    const QImage fitted =
        picture().width() <= PreviewSize.width() && picture().height() <= PreviewSize.height()
            ? picture()
            : picture().scaled(PreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    m_preview->setPixmap(QPixmap::fromImage(fitted));
}

} // namespace forms
