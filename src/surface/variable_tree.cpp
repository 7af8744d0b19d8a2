#include "surface/variable_tree.h"

#include "controls/overlay_control.h"
#include "surface/drag_source.h"
#include "surface/variable_labels.h"

#include <QHash>
#include <QSet>
#include <QVBoxLayout>

namespace surface {

namespace {

constexpr int KeyRole = Qt::UserRole;
constexpr int IndexRole = Qt::UserRole + 1;

using Tree = DragSource<QTreeWidget, QTreeWidgetItem>;

// A variable stands right below its group.
QString draggedVariable(const QTreeWidgetItem &item)
{
    const bool isVariable = item.parent() && !item.parent()->parent();
    return isVariable ? QString::number(item.data(0, IndexRole).toInt()) : QString();
}

class IconCache
{
public:
    const QIcon &of(const char *art)
    {
        const QString name = QLatin1String(art);
        if (!m_icons.contains(name))
            m_icons.insert(name, QIcon(QStringLiteral(":/variables/%1.png").arg(name)));
        return m_icons[name];
    }

private:
    QHash<QString, QIcon> m_icons;
};

QTreeWidgetItem *newItem(QTreeWidgetItem *parent, const QString &key, const QString &text, const QIcon &icon)
{
    auto *item = new QTreeWidgetItem(parent, {text});
    item->setData(0, KeyRole, key);
    item->setIcon(0, icon);
    return item;
}

void addDetails(QTreeWidgetItem *parent, const std::vector<VariableDetail> &details, int index,
                IconCache &icons)
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

QSet<QString> openBranches(const QTreeWidget &tree)
{
    QSet<QString> keys;
    walk(tree.invisibleRootItem(), [&](const QTreeWidgetItem *item) {
        if (item->isExpanded())
            keys.insert(item->data(0, KeyRole).toString());
    });
    return keys;
}

} // namespace

VariableTree::VariableTree(const variables::Catalogue &catalogue, const platform::NumberLocale &locale)
    : m_catalogue(catalogue), m_locale(locale), m_tree(new Tree(controls::VariableMime, &draggedVariable))
{
    m_tree->setObjectName(QStringLiteral("VarTree"));
    m_tree->setAccessibleName(QStringLiteral("Variables"));
    m_tree->setHeaderHidden(true);
    m_tree->setIndentation(14);
    m_tree->setUniformRowHeights(true);
    m_tree->setFont(QFont(QStringLiteral("QL Sans Serif"), 8));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree);
    connect(m_tree, &QTreeWidget::itemPressed, this, &VariableTree::used);
}

void VariableTree::RegenerateVariableTree()
{
    const QSet<QString> open = openBranches(*m_tree);
    IconCache icons;
    QList<QTreeWidgetItem *> groups;
    for (const VariableGroupNode &group : VariableGroups) {
        auto *item = new QTreeWidgetItem({QLatin1String(group.text)});
        item->setData(0, KeyRole, group.key());
        item->setIcon(0, icons.of(group.art));
        groups.append(item);
    }
    for (std::size_t i = 1; i < m_catalogue.staging.size(); ++i) {
        const variables::VariableRecord &record = m_catalogue.staging[i];
        if (!record.Available || record.VariableType < 1 || record.VariableType > groups.size())
            continue;
        const int index = static_cast<int>(i);
        QTreeWidgetItem *item = newItem(groups[record.VariableType - 1], variableKey("AVAILABLETYPE", index),
                                        variableText(record), icons.of("variable"));
        item->setData(0, IndexRole, index);
        addDetails(item, variableDetails(record, index, m_catalogue.units, m_locale.decimalSeparator), index,
                   icons);
    }
    m_tree->clear();
    m_tree->addTopLevelItems(groups);
    walk(m_tree->invisibleRootItem(), [&](QTreeWidgetItem *item) {
        if (open.contains(item->data(0, KeyRole).toString()))
            item->setExpanded(true);
    });
}

} // namespace surface
