#include "platform/desktop/qt_prompts.h"

#include "common/run_time_error.h"
#include "platform/desktop/file_dialog.h"
#include "platform/faces.h"
#include "platform/folders.h"

#include <QApplication>
#include <QButtonGroup>
#include <QColorDialog>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace platform {

using namespace Qt::StringLiterals;

namespace {

QWidget *parent()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->windowType() == Qt::Window)
            return window;
    }
    return nullptr;
}

QMessageBox::Icon boxIcon(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Warning:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

// While a box is open the pointer is an arrow, also in the middle of a long task.
class ArrowPointer
{
public:
    ArrowPointer() : m_active(QApplication::overrideCursor() != nullptr)
    {
        if (m_active)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ArrowPointer()
    {
        if (m_active)
            QApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(ArrowPointer)

private:
    bool m_active;
};

// A box is as wide as its text; a short one would cut its title off.
void makeRoomForTitle(QMessageBox &box)
{
    constexpr int FrameButtons = 140; // and icon, pixels
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    const int width = box.fontMetrics().horizontalAdvance(box.windowTitle()) + FrameButtons;
    if (grid)
        grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QMessageBox::StandardButton showBox(QWidget *parent, Icon icon, const QString &title, const QString &text,
                                    QMessageBox::StandardButtons buttons)
{
    const ArrowPointer pointer;
    QMessageBox box(boxIcon(icon), title, text, buttons, parent);
    if (icon == Icon::Warning)
        box.setDefaultButton(QMessageBox::No); // Return alone risks nothing
    box.setTextFormat(Qt::PlainText);          // names from files are shown, never interpreted
    makeRoomForTitle(box);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void QtPrompts::message(Icon icon, const QString &title, const QString &text)
{
    showBox(parent(), icon, title, text, QMessageBox::Ok);
}

bool QtPrompts::ask(Icon icon, const QString &title, const QString &text)
{
    return showBox(parent(), icon, title, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

bool QtPrompts::confirm(Icon icon, const QString &title, const QString &text)
{
    return showBox(parent(), icon, title, text, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

std::optional<int> QtPrompts::choose(const QString &title, const QString &text, const QStringList &options)
{
    const ArrowPointer pointer;
    QDialog dialog(parent());
    dialog.setWindowTitle(title);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(text));
    QButtonGroup group;
    for (int i = 0; i < options.size(); ++i) {
        auto *option = new QRadioButton(options[i]);
        option->setObjectName(u"optChoice%1"_s.arg(i));
        option->setChecked(i == 0);
        group.addButton(option, i);
        layout->addWidget(option);
    }
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addSpacing(8);
    layout->addWidget(buttons);
    if (group.button(0))
        group.button(0)->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return group.checkedId();
}

QString QtPrompts::input(const QString &title, const QString &prompt, const QString &initial)
{
    const ArrowPointer pointer;
    QInputDialog dialog(parent());
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(initial);
    if (auto *label = dialog.findChild<QLabel *>())
        label->setTextFormat(Qt::PlainText); // as in a box
    return dialog.exec() == QDialog::Accepted ? dialog.textValue() : QString();
}

QString QtPrompts::openFile(const FileRequest &request)
{
    const ArrowPointer pointer;
    FileRequest asked = request;
    if (request.folder.isEmpty())
        asked.folder = m_lastFolders.value(request.filter);
    FileDialog dialog(parent(), asked, QFileDialog::AcceptOpen);
    QString path = dialog.chosenFile();
    if (request.folder.isEmpty() && !path.isEmpty())
        m_lastFolders.insert(request.filter, QFileInfo(path).path());
    return path;
}

QString QtPrompts::saveFile(const FileRequest &request)
{
    const ArrowPointer pointer;
    FileDialog dialog(parent(), request, QFileDialog::AcceptSave);
    return dialog.chosenFile();
}

std::optional<QRgb> QtPrompts::colour(QRgb initial)
{
    const ArrowPointer pointer;
    const QColor chosen = QColorDialog::getColor(QColor::fromRgb(initial), parent());
    return chosen.isValid() ? std::optional(chosen.rgb()) : std::nullopt;
}

// A face that is not installed shows as the one that it is drawn with, and stays unless another is chosen.
std::optional<QFont> QtPrompts::font(const QFont &initial)
{
    const ArrowPointer pointer;
    QFont shown = initial;
    if (!QFontDatabase::hasFamily(initial.family()))
        shown.setFamily(ShippedFace);
    bool accepted = false;
    QFont chosen = QFontDialog::getFont(&accepted, shown, parent(), {}, QFontDialog::ScalableFonts);
    if (withoutFoundry(chosen.family()) == withoutFoundry(shown.family()))
        chosen.setFamily(initial.family());
    return accepted ? std::optional(chosen) : std::nullopt;
}

void QtPrompts::showPage(const QUrl &page)
{
    const QString place = page.toDisplayString(QUrl::PreferLocalFile);
    if (page.isLocalFile() && !FileExists(page.toLocalFile()))
        throw common::RunTimeError(u"%1: there is no such file"_s.arg(place));
    if (!QDesktopServices::openUrl(page))
        throw common::RunTimeError(u"%1: there is no program that shows it"_s.arg(place));
}

} // namespace platform
