#include "surface/variable_tree.h"

#include "platform/desktop/art_icon.h"
#include "platform/guards.h"
#include "surface/canvas.h"
#include "surface/drag_source.h"
#include "surface/panel.h"
#include "surface/variable_edits.h"
#include "surface/variable_labels.h"
#include "variables/edit_cycle.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace surface {

using namespace Qt::StringLiterals;

const QIcon &VariableIcons::of(const char *art)
{
    const QLatin1String name(art);
    QIcon &icon = m_icons[name];
    if (icon.isNull())
        icon = platform::artIcon(u"variables/"_s + name);
    return icon;
}

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int IndexRole = Qt::UserRole + 1;

using Tree = DragSource<QTreeWidget, QTreeWidgetItem>;

// A variable stands right below its group.
bool isVariable(const QTreeWidgetItem &item) { return item.parent() && !item.parent()->parent(); }

QString draggedVariable(const QTreeWidgetItem &item)
{
    return isVariable(item) ? QString::number(item.data(0, IndexRole).toInt()) : QString();
}

QString keyOf(const QTreeWidgetItem *item) { return item->data(0, KeyRole).toString(); }

QTreeWidgetItem *newItem(QTreeWidgetItem *parent, const QString &key, const QString &text, const QIcon &icon)
{
    auto *item = new QTreeWidgetItem(parent, {text});
    item->setData(0, KeyRole, key);
    item->setIcon(0, icon);
    return item;
}

QList<QTreeWidgetItem *> newGroups(VariableIcons &icons)
{
    QList<QTreeWidgetItem *> groups;
    for (const VariableGroupNode &group : VariableGroups)
        groups.append(newItem(nullptr, group.key(), QLatin1String(group.text), icons.of(group.art)));
    return groups;
}

void addDetails(QTreeWidgetItem *parent, const std::vector<VariableDetail> &details, int index,
                VariableIcons &icons)
{
    for (const VariableDetail &detail : details) {
        QTreeWidgetItem *item = newItem(parent, detail.key(index), detail.text, icons.of(detail.art));
        addDetails(item, detail.children, index, icons);
    }
}

template <typename Visit>
void walk(QTreeWidgetItem *item, Visit visit)
{
    for (int i = 0; i < item->childCount(); ++i) {
        visit(item->child(i));
        walk(item->child(i), visit);
    }
}

QSet<QString> expandedKeys(const QTreeWidget &tree)
{
    QSet<QString> keys;
    walk(tree.invisibleRootItem(), [&](const QTreeWidgetItem *item) {
        if (item->isExpanded())
            keys.insert(keyOf(item));
    });
    return keys;
}

} // namespace

VariableTree::VariableTree(const VariableTreeContext &context)
    : m_context(context), m_editors(context.catalogue, context.prompts, context.locale),
      m_search(new QLineEdit), m_tree(new Tree(VariableMime, &draggedVariable))
{
    m_tree->setObjectName(u"VarTree"_s);
    m_tree->setAccessibleName(u"Variables"_s);
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(14);
    m_tree->setUniformRowHeights(true);
    m_tree->setFont(panelFont());
    makeSearchBox();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_search);
    layout->addWidget(m_tree);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *enter = new QShortcut(key, m_tree);
        enter->setContext(Qt::WidgetShortcut);
        connect(enter, &QShortcut::activated, this, [this] {
            if (const QTreeWidgetItem *item = m_tree->currentItem())
                edit(keyOf(item));
        });
    }
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &VariableTree::currentChanged);
    connect(m_tree, &QTreeWidget::itemExpanded, this, &VariableTree::fillDetails);
    connect(m_tree, &QTreeWidget::itemPressed, this, [this](const QTreeWidgetItem *item) {
        emit used();
        // The prompt opens when the press is done, so that the tree does not wait for a release.
        QMetaObject::invokeMethod(
            this, [this, key = keyOf(item)] { edit(key); }, Qt::QueuedConnection);
    });
}

void VariableTree::makeSearchBox()
{
    m_search->setObjectName(u"txtSearch"_s);
    m_search->setPlaceholderText(u"Search variables"_s);
    m_search->setAccessibleName(m_search->placeholderText());
    // The line edit's own cross would be looked for in the themes of the desktop at each start.
    QAction *clear = m_search->addAction(m_icons.of("clear"), QLineEdit::TrailingPosition);
    clear->setToolTip(u"Clear the search"_s);
    clear->setVisible(false);
    connect(clear, &QAction::triggered, m_search, &QLineEdit::clear);
    connect(m_search, &QLineEdit::textChanged, this, [this, clear](const QString &text) {
        clear->setVisible(!text.isEmpty());
        m_edited = 0;
        filter(text);
    });
}

void VariableTree::addVariable(QTreeWidgetItem *group, qsizetype index)
{
    const variables::VariableRecord &record = std::as_const(m_context.catalogue).staging[index];
    const int number = static_cast<int>(index);
    QTreeWidgetItem *item =
        newItem(group, variableKey(role::Variable, number), variableText(record), m_icons.of("variable"));
    item->setData(0, IndexRole, number);
    item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
}

// Of hundreds of variables a few are ever opened; the lines below one are made when it is.
void VariableTree::fillDetails(QTreeWidgetItem *item)
{
    if (!isVariable(*item) || item->childCount() > 0)
        return;
    const int index = item->data(0, IndexRole).toInt();
    const auto &record = std::as_const(m_context.catalogue).staging[index];
    addDetails(item,
               variableDetails(record, index, m_context.catalogue.units, m_context.locale.decimalSeparator),
               index, m_icons);
}

void VariableTree::RegenerateVariableTree()
{
    const QSet<QString> open = expandedKeys(*m_tree);
    const QString current = m_tree->currentItem() ? keyOf(m_tree->currentItem()) : QString();
    const QList<QTreeWidgetItem *> groups = newGroups(m_icons);
    const variables::VariableTable &table = m_context.catalogue.staging;
    for (qsizetype i = 1; i < table.size(); ++i) {
        const qint32 group = table[i].VariableType;
        if (table[i].Available && group >= 1 && group <= groups.size())
            addVariable(groups[group - 1], i);
    }
    m_tree->clear();
    m_tree->addTopLevelItems(groups);
    if (!open.isEmpty()) // new items start closed
        openBranches(open);
    if (!m_search->text().isEmpty())
        filter(m_search->text());
    if (!current.isEmpty())
        makeCurrent(current);
}

void VariableTree::makeCurrent(const QString &key)
{
    walk(m_tree->invisibleRootItem(), [&](QTreeWidgetItem *item) {
        if (keyOf(item) == key && !m_tree->visualItemRect(item).isEmpty())
            m_tree->setCurrentItem(item);
    });
}

void VariableTree::openBranches(const QSet<QString> &keys)
{
    walk(m_tree->invisibleRootItem(),
         [&](QTreeWidgetItem *item) { item->setExpanded(keys.contains(keyOf(item))); });
}

void VariableTree::filter(const QString &text)
{
    const bool searching = !text.trimmed().isEmpty();
    if (searching && !m_openBeforeSearch)
        m_openBeforeSearch = expandedKeys(*m_tree);
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *group = m_tree->topLevelItem(i);
        bool anyMatch = false;
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem *item = group->child(j);
            const bool match = item->data(0, IndexRole).toInt() == m_edited ||
                               item->text(0).contains(text.trimmed(), Qt::CaseInsensitive);
            item->setHidden(!match);
            anyMatch = anyMatch || match;
        }
        group->setHidden(searching && !anyMatch);
        if (searching)
            group->setExpanded(anyMatch);
    }
    if (!searching && m_openBeforeSearch) {
        openBranches(*m_openBeforeSearch);
        m_openBeforeSearch.reset();
    }
}

void VariableTree::edit(const QString &key)
{
    if (const auto line = variableLine(key))
        change(line->index, [&] { return editRecord(line->role, line->index); });
}

int VariableTree::currentVariable() const
{
    const QTreeWidgetItem *item = m_tree->currentItem();
    while (item && item->parent() && !isVariable(*item))
        item = item->parent();
    return item ? item->data(0, IndexRole).toInt() : 0;
}

void VariableTree::editFilter()
{
    const int index = currentVariable();
    change(index, [&] { return m_editors.editFilter(index, window()); });
}

void VariableTree::editCalculus()
{
    const int index = currentVariable();
    change(index, [&] { return m_editors.editCalculus(index, window()); });
}

void VariableTree::change(int index, const std::function<bool()> &edit)
{
    bool changed = false;
    platform::skipFailures([&] { changed = edit(); });
    if (!changed)
        return;
    m_edited = index;
    variables::commitEdits(m_context.catalogue, m_context.folders, m_context.locale, m_context.prompts);
    RegenerateVariableTree();
}

bool VariableTree::editRecord(const QString &about, int index)
{
    variables::VariableRecord &record = m_context.catalogue.staging[index];
    const QString &mark = m_context.locale.decimalSeparator;
    if (about == role::MaximumRoc)
        return editMaximumRoc(record, m_context.prompts, mark);
    if (about == role::Name)
        return editName(record, m_context.prompts);
    if (about == role::Smoothing)
        return editSmoothing(record, m_context.prompts, mark);
    if (about == role::Unit)
        return m_editors.editTransformation(index, window());
    return false;
}

} // namespace surface
