#include "platform/desktop/file_dialog.h"

#include <QDir>
#include <QFileIconProvider>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QStorageInfo>
#include <QTreeView>
#include <QUrl>

namespace platform {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize PreviewSize(180, 144);

// "VGL files|*.VGL" as Qt writes it. Files of either case are shown: cards are formatted by all sorts of
// machines.
QString qtFilter(const QString &filter)
{
    const QString caption = filter.section('|'_L1, 0, 0);
    const QString pattern = filter.section('|'_L1, 1, 1);
    QStringList patterns{pattern, pattern.toLower()};
    patterns.removeDuplicates();
    return u"%1 (%2)"_s.arg(caption.section('('_L1, 0, 0).trimmed(), patterns.join(' '_L1));
}

// Tells files by their names alone: a look into a pipe or a device may never end.
class NamedFileIcons final : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo &file) const override { return icon(file.isDir() ? Folder : File); }
    QString type(const QFileInfo &file) const override
    {
        if (file.isDir())
            return u"Folder"_s;
        return u"%1 File"_s.arg(file.suffix().toUpper()).trimmed();
    }
};

QList<QUrl> sidePlaces()
{
    QList<QUrl> places{QUrl::fromLocalFile(QDir::homePath())};
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (QDir(documents).exists() && documents != QDir::homePath())
        places.append(QUrl::fromLocalFile(documents));
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        const QString root = volume.rootPath();
        const bool removable =
            root.startsWith("/media/"_L1) || root.startsWith("/run/media/"_L1) || root.startsWith("/mnt/"_L1);
        if (volume.isReady() && removable)
            places.append(QUrl::fromLocalFile(root));
    }
    return places;
}

} // namespace

FileDialog::FileDialog(QWidget *parent, const FileRequest &request, AcceptMode mode) : QFileDialog(parent)
{
    setOption(DontUseNativeDialog); // the preview and the volumes need the same dialog everywhere
    static NamedFileIcons icons;    // the dialog's worker threads use it to their end
    setIconProvider(&icons);
    setAcceptMode(mode);
    setFileMode(mode == AcceptOpen ? ExistingFile : AnyFile);
    setWindowTitle(!request.title.isEmpty() ? request.title : mode == AcceptOpen ? u"Open"_s : u"Save As"_s);
    setNameFilter(qtFilter(request.filter));
    setDefaultSuffix(request.filter.section('.'_L1, -1));
    setSidebarUrls(sidePlaces());
    const bool hasFolder = !request.folder.isEmpty() && QDir(request.folder).exists();
    setDirectory(hasFolder ? request.folder : QDir::homePath());
    if (!request.fileName.isEmpty())
        selectFile(request.fileName);
    if (request.preview)
        addPreview(request.preview);
    constexpr QSize WithoutPreview(820, 460);
    const QSize wanted = WithoutPreview + QSize(request.preview ? PreviewSize.width() : 0, 0);
    constexpr QSize WindowFrame(16, 48); // at least
    resize(wanted.boundedTo(screen()->availableSize() - WindowFrame));
    showWholeColumns();
    if (auto *splitter = findChild<QSplitter *>())
        splitter->setSizes({160, width() - 160}); // the names of volumes are read, not guessed
}

// Sizes and dates in full; the names take what is left.
void FileDialog::showWholeColumns()
{
    const auto *list = findChild<QTreeView *>(u"treeView"_s);
    if (!list)
        return;
    QHeaderView &header = *list->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
}

void FileDialog::addPreview(const std::function<QImage(const QString &)> &preview)
{
    m_picture = new QLabel;
    m_picture->setObjectName(u"picPreview"_s);
    m_picture->setFixedSize(PreviewSize);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setFrameShape(QFrame::StyledPanel);
    showPreview({});
    if (auto *grid = qobject_cast<QGridLayout *>(layout()))
        grid->addWidget(m_picture, 1, grid->columnCount(), Qt::AlignTop);
    const auto show = [this, preview](const QString &path) {
        showPreview(QFileInfo(path).isFile() ? preview(path) : QImage());
    };
    connect(this, &QFileDialog::currentChanged, this, show);
    if (const auto *name = findChild<QLineEdit *>(u"fileNameEdit"_s)) {
        connect(name, &QLineEdit::textEdited, this,
                [this, show](const QString &typed) { show(directory().absoluteFilePath(typed)); });
    }
}

void FileDialog::showPreview(const QImage &picture)
{
    if (picture.isNull())
        m_picture->setText(u"No preview"_s);
    else
        m_picture->setPixmap(
            QPixmap::fromImage(picture.scaled(PreviewSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

QString FileDialog::chosenFile()
{
    return exec() == Accepted && !selectedFiles().isEmpty() ? selectedFiles().constFirst() : QString();
}

} // namespace platform
