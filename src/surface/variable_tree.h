#pragma once

#include "platform/folders.h"
#include "platform/locale.h"
#include "platform/prompts.h"
#include "variables/catalogue.h"
#include "variables/editors/variable_editors.h"

#include <QHash>
#include <QIcon>
#include <QLineEdit>
#include <QSet>
#include <QTreeWidget>
#include <QWidget>

#include <functional>
#include <optional>

namespace surface {

// What the tree of variables works on.
struct VariableTreeContext
{
    variables::Catalogue &catalogue;
    const platform::Folders &folders;
    const platform::NumberLocale &locale;
    platform::Prompts &prompts;
};

// Loads each icon of the tree once.
class VariableIcons
{
public:
    const QIcon &of(const char *art);

private:
    QHash<QLatin1String, QIcon> m_icons;
};

// The functions panel: a search box and the tree of variables. It holds no state of its own but which
// branches are open; every edit changes the catalogue, saves it and builds the tree anew.
class VariableTree final : public QWidget
{
    Q_OBJECT

public:
    explicit VariableTree(const VariableTreeContext &context);

    // Builds the tree anew from the staging table; open branches stay open, the current line stays current.
    void RegenerateVariableTree();

    // The index of the variable that is the current line or has it below; 0 for none.
    int currentVariable() const;
    // Of the current variable, as a press on one of its lines edits what that says.
    void editFilter();
    void editCalculus();

signals:
    void currentChanged();
    void used(); // a press that takes the surface's group marks away

private:
    void makeSearchBox();
    void addVariable(QTreeWidgetItem *group, qsizetype index);
    void fillDetails(QTreeWidgetItem *item);
    void edit(const QString &key);
    // Runs what edits this variable, and keeps and shows what has become of it.
    void change(int index, const std::function<bool()> &edit);
    bool editRecord(const QString &about, int index);
    void filter(const QString &text);
    void openBranches(const QSet<QString> &keys);
    void makeCurrent(const QString &key); // the line of this key, unless it lies in a closed branch

    VariableTreeContext m_context;
    VariableIcons m_icons;
    variables::VariableEditors m_editors;
    QLineEdit *m_search;
    QTreeWidget *m_tree; // VarTree
    int m_edited = 0;    // stays in sight whatever its new name, until the search is another one
    std::optional<QSet<QString>> m_openBeforeSearch; // what a search that is under way goes back to
};

} // namespace surface
