#include "surface/library_panel.h"

#include "controls/families.h"
#include "platform/settings_keys.h"
#include "surface/canvas.h"
#include "surface/drag_source.h"
#include "surface/panel.h"

namespace surface {

namespace {

constexpr const platform::PanelKeys &Bar = platform::keys::LibrarySplitter;
constexpr int KeyRole = Qt::UserRole;
constexpr QSize PictureSize(72, 72);
constexpr int TreeShare = 1; // of the panel, beside the list
constexpr int ListShare = 2;

using Tree = DragSource<QTreeWidget, QTreeWidgetItem>;
using List = DragSource<QListWidget, QListWidgetItem>;

} // namespace

LibraryPanel::LibraryPanel(const platform::Folders &folders)
    : QSplitter(Qt::Horizontal), m_folders(folders),
      m_tree(new Tree(LibraryMime,
                      [](const QTreeWidgetItem &item) { return item.data(0, KeyRole).toString(); })),
      m_list(new List(LibraryMime, [](const QListWidgetItem &item) { return item.data(KeyRole).toString(); }))
{
    setChildrenCollapsible(false);
    m_tree->setObjectName(QStringLiteral("trvControl"));
    m_tree->setAccessibleName(QStringLiteral("Control library"));
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(12);
    m_tree->setFont(panelFont());
    m_list->setObjectName(QStringLiteral("lvControl"));
    m_list->setAccessibleName(QStringLiteral("Entries of the chosen kind"));
    m_list->setViewMode(QListView::IconMode);
    m_list->setIconSize(PictureSize);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setMovement(QListView::Static);
    m_list->setDragEnabled(true); // out of the list, which the line above forbids as well
    m_list->setSpacing(4);
    m_list->setFont(panelFont());
    addWidget(m_tree);
    addWidget(m_list);
    setStretchFactor(0, TreeShare);
    setStretchFactor(1, ListShare);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &LibraryPanel::loadControlList);
    connect(m_tree, &QTreeWidget::itemActivated, this,
            [this](const QTreeWidgetItem *item) { emit activated(item->data(0, KeyRole).toString()); });
    connect(m_list, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { emit activated(item->data(KeyRole).toString()); });
    connect(m_tree, &QTreeWidget::itemPressed, this, &LibraryPanel::used);
    connect(m_list, &QListWidget::itemPressed, this, &LibraryPanel::used);
}

void LibraryPanel::loadControlTree()
{
    m_tree->clear();
    for (const controls::Family &family : controls::families()) {
        auto *root = new QTreeWidgetItem(m_tree, {QLatin1String(family.caption)});
        root->setData(0, KeyRole, QLatin1String(family.rootKey));
        root->setIcon(0, QIcon(QStringLiteral(":/families/%1.png").arg(QLatin1String(family.art))));
        root->setExpanded(true);
    }
}

void LibraryPanel::showFirstEntries() { m_tree->setCurrentItem(m_tree->topLevelItem(0)); }

void LibraryPanel::restoreBar(const platform::SettingsFile &file, const platform::Screen &screen)
{
    if (!Bar.stored(file))
        return;
    setStretchFactor(0, 0); // the tree keeps its width, the list takes what is left
    setSizes({screen.storedToPixels(Bar.left.read(file)), 1});
}

void LibraryPanel::resetBar()
{
    setStretchFactor(0, TreeShare);
    const int room = width() - handleWidth();
    const int tree = room * TreeShare / (TreeShare + ListShare);
    setSizes({tree, room - tree});
}

void LibraryPanel::saveBar(platform::SettingsFile &file, const platform::Screen &screen) const
{
    if (testAttribute(Qt::WA_PendingResizeEvent))
        return; // the panel has been closed all the time, and the bar was never laid out
    const QRect bar = handle(1)->geometry();
    Bar.left.write(file, screen.pixelsToStored(bar.left()));
    Bar.top.write(file, screen.pixelsToStored(bar.top()));
    Bar.width.write(file, screen.pixelsToStored(bar.width()));
    Bar.height.write(file, screen.pixelsToStored(bar.height()));
}

QString LibraryPanel::selectedKey() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    return item ? item->data(0, KeyRole).toString() : QString();
}

void LibraryPanel::loadControlList()
{
    m_list->clear();
    const QString key = selectedKey();
    const controls::Family *family = controls::familyOfKey(key);
    if (!family) // nothing is chosen
        return;
    // A picture that is missing leaves the entry without one.
    const QPixmap picture(m_folders.cache + QLatin1String(family->iconFile));
    auto *entry = new QListWidgetItem(QIcon(picture), QLatin1String(family->caption), m_list);
    entry->setData(KeyRole, key);
}

} // namespace surface
