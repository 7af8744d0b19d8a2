#pragma once

#include "platform/locale.h"
#include "variables/catalogue.h"

#include <QTreeWidget>
#include <QWidget>

namespace surface {

// The functions panel's tree of variables. It holds no state of its own but which branches are open.
class VariableTree final : public QWidget
{
    Q_OBJECT

public:
    VariableTree(const variables::Catalogue &catalogue, const platform::NumberLocale &locale);

    // Builds the tree anew from the staging table; open branches stay open.
    void RegenerateVariableTree();

signals:
    void used(); // a press that takes the surface's group marks away

private:
    const variables::Catalogue &m_catalogue;
    const platform::NumberLocale &m_locale;
    QTreeWidget *m_tree; // VarTree
};

} // namespace surface
