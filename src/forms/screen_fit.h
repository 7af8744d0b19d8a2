#pragma once

#include <QBoxLayout>
#include <QDialog>

namespace forms {

// Lets `content`, the first part of the dialog's layout, be scrolled where the dialog would be larger than
// its screen. For one that was not shown yet, and before it gets its buttons, which stay in sight.
void fitScreen(QDialog &dialog, QBoxLayout &content);

} // namespace forms
