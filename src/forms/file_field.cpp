#include "forms/file_field.h"

#include <QPixmap>

namespace forms {

namespace {

constexpr QSize PictureSize(160, 120);

} // namespace

FileField::FileField(const char *name, const char *previewName, platform::FileRequest request,
                     platform::Prompts &prompts)
    : Field(new QPushButton(QStringLiteral("Browse...")), name), m_request(std::move(request)),
      m_picture(new QLabel), m_cell(sideBySide({m_picture, &widget()}, true))
{
    m_picture->setObjectName(QLatin1String(previewName));
    m_picture->setFixedSize(PictureSize);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setFrameShape(QFrame::StyledPanel);
    button().setAutoDefault(false);
    QObject::connect(&button(), &QPushButton::clicked, &button(), [this, &prompts] {
        const QString chosen = prompts.openFile(m_request);
        if (!chosen.isEmpty())
            setText(chosen);
    });
}

void FileField::setText(const QString &path)
{
    show(path);
    changed();
}

void FileField::show(const QString &path)
{
    m_path = path;
    const QImage picture = path.isEmpty() || !m_request.preview ? QImage() : m_request.preview(path);
    if (picture.isNull())
        m_picture->clear();
    else
        m_picture->setPixmap(
            QPixmap::fromImage(picture.scaled(PictureSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

} // namespace forms
