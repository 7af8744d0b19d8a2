#include "surface/library_panel.h"

#include "platform/desktop/art_icon.h"
#include "platform/desktop/tool_tip.h"
#include "platform/guards.h"
#include "platform/settings_keys.h"
#include "surface/canvas.h"
#include "surface/drag_source.h"
#include "surface/panel.h"

#include <QScrollBar>
#include <QShortcut>
#include <QTreeWidgetItemIterator>

#include <algorithm>

namespace surface {

using namespace Qt::StringLiterals;

namespace {

constexpr const platform::PanelKeys &Bar = platform::keys::LibrarySplitter;
constexpr int KeyRole = Qt::UserRole;
constexpr QSize PictureSize(72, 72);
constexpr int TreeShare = 1; // of the panel, beside the list
constexpr int ListShare = 2;
using Tree = DragSource<QTreeWidget, QTreeWidgetItem>;
using List = DragSource<QListWidget, QListWidgetItem>;

QString keyIn(const QTreeWidgetItem &item) { return item.data(0, KeyRole).toString(); }
QString keyIn(const QListWidgetItem &item) { return item.data(KeyRole).toString(); }

template <typename Source, typename Item>
Source *makeView()
{
    return new Source(LibraryMime, [](const Item &item) { return keyIn(item); });
}

// Whether it is the key of a custom entry, and not of a family.
bool isCustom(const QString &key)
{
    const controls::Family *family = controls::familyOfKey(key);
    return family && key != QLatin1String(family->rootKey);
}

QIcon familyIcon(const char *art) { return platform::artIcon(u"families/"_s + QLatin1String(art)); }

QTreeWidgetItem *newItem(const QString &key, const QString &text, const QIcon &icon)
{
    auto *item = new QTreeWidgetItem({text});
    item->setData(0, KeyRole, key);
    item->setIcon(0, icon);
    item->setToolTip(0, platform::toolTipOf(text)); // may be too long for the panel
    return item;
}

} // namespace

LibraryPanel::LibraryPanel(controls::ControlHost &host, const controls::ControlSurface &surface,
                           const platform::Stamp &stamp)
    : QSplitter(Qt::Horizontal), m_host(host), m_custom(host, surface, stamp),
      m_tree(makeView<Tree, QTreeWidgetItem>()), m_list(makeView<List, QListWidgetItem>())
{
    setChildrenCollapsible(false);
    m_tree->setObjectName(u"trvControl"_s);
    m_tree->setAccessibleName(u"Control library"_s);
    m_tree->setHeaderHidden(true);
    m_tree->setExpandsOnDoubleClick(false); // which adds a control
    m_tree->setIndentation(12);
    m_list->setObjectName(u"lvControl"_s);
    m_list->setAccessibleName(u"Entries of the chosen kind"_s);
    m_list->setViewMode(QListView::IconMode);
    m_list->setIconSize(PictureSize);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setMovement(QListView::Static);
    m_list->setDragEnabled(true); // out of the list, which the line above forbids as well
    m_list->setSpacing(4);
    connectView(static_cast<Tree &>(*m_tree));
    connectView(static_cast<List &>(*m_list));
    setStretchFactor(0, TreeShare);
    setStretchFactor(1, ListShare);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &LibraryPanel::loadControlList);
}

// What both views have in common.
template <typename View>
void LibraryPanel::connectView(View &view)
{
    addWidget(&view);
    view.setFont(panelFont());
    connect(&view, &View::itemActivated, this, [this](const auto *item) { emit activated(keyIn(*item)); });
    connect(&view, &View::itemPressed, this, &LibraryPanel::used);
    view.setMenu([this](const auto &item, const QPoint &at) { showMenu(keyIn(item), at); });
    const auto onKey = [&](Qt::Key key, void (LibraryPanel::*command)(const QString &)) {
        auto *shortcut = new QShortcut(key, &view);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, &view, command] {
            if (const auto *item = view.currentItem())
                platform::reportFailures(m_host.prompts(), [&] { (this->*command)(keyIn(*item)); });
        });
    };
    onKey(Qt::Key_Delete, &LibraryPanel::remove);
    onKey(Qt::Key_F2, &LibraryPanel::rename);
}

void LibraryPanel::loadControlTree()
{
    m_tree->clear();
    for (const controls::Family &family : controls::families()) {
        m_tree->addTopLevelItem(
            newItem(QLatin1String(family.rootKey), QLatin1String(family.caption), familyIcon(family.art)));
        loadEntries(family);
    }
    m_tree->expandAll();
}

QTreeWidgetItem *LibraryPanel::rootOf(const controls::Family &family) const
{
    return itemOf(QLatin1String(family.rootKey));
}

QTreeWidgetItem *LibraryPanel::itemOf(const QString &key) const
{
    for (QTreeWidgetItemIterator item(m_tree); *item; ++item) {
        if (keyIn(**item) == key)
            return *item;
    }
    return nullptr;
}

void LibraryPanel::loadEntries(const controls::Family &family)
{
    QTreeWidgetItem &root = *rootOf(family);
    qDeleteAll(root.takeChildren());
    const QIcon icon = familyIcon("entry");
    for (const CustomEntry &entry : m_custom.entries(family))
        root.addChild(newItem(entry.key, entry.name(), icon));
}

void LibraryPanel::reload(const controls::Family &family, const QString &former, const QString &latter)
{
    const QTreeWidgetItem *node = m_tree->currentItem();
    const QString current = node ? keyIn(*node) : QString();
    loadEntries(family);
    m_tree->setCurrentItem(itemOf(current == former ? latter : current));
    loadControlList();
}

void LibraryPanel::GenerateIcons(platform::Progress &progress)
{
    m_custom.GenerateIcons(progress);
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
    loadControlList();
}

void LibraryPanel::restoreBar(const platform::SettingsFile &file, const platform::Screen &screen)
{
    if (!Bar.stored(file))
        return;
    setStretchFactor(0, 0); // the tree keeps its width, the list takes what is left
    setSizes({Bar.read(file, screen).left(), 1});
}

void LibraryPanel::resetBar()
{
    setStretchFactor(0, TreeShare);
    const int room = width() - handleWidth();
    const QAbstractItemView &names = *m_tree;
    const int whole =
        names.sizeHintForColumn(0) + names.verticalScrollBar()->sizeHint().width() + 2 * names.frameWidth();
    const int tree = std::max(room * TreeShare / (TreeShare + ListShare), std::min(whole, room / 2));
    setSizes({tree, room - tree});
}

void LibraryPanel::saveBar(platform::SettingsFile &file, const platform::Screen &screen) const
{
    if (testAttribute(Qt::WA_PendingResizeEvent))
        return; // the panel has been closed all the time, and the bar was never laid out
    Bar.write(file, handle(1)->geometry(), screen);
}

void LibraryPanel::loadControlList()
{
    m_list->clear();
    const QTreeWidgetItem *node = m_tree->currentItem();
    if (!node)
        return;
    const QString key = keyIn(*node);
    const controls::Family &family = *controls::familyOfKey(key);
    if (!isCustom(key))
        addToList(key, QLatin1String(family.caption), QLatin1String(family.iconFile));
    for (const CustomEntry &entry : m_custom.entries(family)) {
        if (!isCustom(key) || entry.key == key)
            addToList(entry.key, entry.name(), entry.thumbnail);
    }
}

// A picture that is missing leaves the entry without one.
void LibraryPanel::addToList(const QString &key, const QString &caption, const QString &thumbnail)
{
    const QPixmap picture(platform::nameWithin(m_host.folders().cache, thumbnail));
    auto *item = new QListWidgetItem(QIcon(picture), caption, m_list);
    item->setData(KeyRole, key);
    item->setToolTip(platform::toolTipOf(caption));
}

void LibraryPanel::showMenu(const QString &key, const QPoint &globalPosition)
{
    if (!isCustom(key))
        return;
    m_menuKey = key;
    emit menuRequested(globalPosition);
}

void LibraryPanel::mnuDefineCustom_Click(const controls::OverlayControl &control)
{
    const controls::Family &family = control.family();
    const QString name = m_host.prompts().input(platform::ProductTitle, u"Enter configuration name"_s, {});
    const QString key = customKey(family, name.toLower());
    if (name.trimmed().isEmpty())
        return;
    if (ControlNameExists(key)) {
        m_host.prompts().message(platform::Icon::Critical, platform::ProductTitle,
                                 u"Configuration name already exists"_s);
        return;
    }
    m_custom.define(key, control);
    reload(family);
    if (const QTreeWidgetItem *made = itemOf(key))
        m_tree->scrollToItem(made);
}

void LibraryPanel::rename(const QString &key)
{
    if (!isCustom(key))
        return;
    const controls::Family &family = *controls::familyOfKey(key);
    const QString name =
        m_host.prompts().input(platform::ProductTitle, u"Please eneter the control name"_s, key.mid(1));
    const QString newKey = customKey(family, name);
    if (name.trimmed().isEmpty() || newKey == key)
        return;
    if (ControlNameExists(newKey)) {
        m_host.prompts().message(platform::Icon::Critical, platform::ProductTitle,
                                 u"Control name already exists"_s);
        return;
    }
    m_custom.rename(key, newKey);
    reload(family, key, newKey);
}

void LibraryPanel::remove(const QString &key)
{
    if (!isCustom(key) || !m_host.prompts().ask(platform::Icon::Question, platform::ProductTitle,
                                                u"Are you sure you wish to delete ?"_s))
        return;
    const controls::Family &family = *controls::familyOfKey(key);
    m_custom.remove(key);
    reload(family, key, QLatin1String(family.rootKey));
}

void LibraryPanel::configure(controls::OverlayControl &control, const QString &key) const
{
    if (isCustom(key))
        m_custom.configure(control, key);
    else
        control.applyInitialProperties();
}

} // namespace surface
