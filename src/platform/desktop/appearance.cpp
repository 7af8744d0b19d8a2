#include "platform/desktop/appearance.h"

#include "platform/faces.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>
#include <QToolTip>

namespace platform {

namespace {

struct Shades
{
    QColor window, base, alternate, text, button, mid, dark, disabled, accent;
    QColor chosen; // behind a chosen row, whose icons have to stand out from it
};

const Shades Light{0xf1f3f6, 0xffffff, 0xf6f8fa, 0x1d2530, 0xe9edf2,
                   0xc3cad4, 0x5b6b7f, 0x8f99a6, 0x1f7ae0, 0xc9e0fb};
const Shades Dark{0x343942, 0x1b1e23, 0x23272e, 0xe6e9ee, 0x424953,
                  0x1c1f24, 0x14161a, 0x7d8793, 0x4d9bf0, 0x16324f};

QPalette paletteOf(const Shades &shades)
{
    QPalette palette(shades.button, shades.window);
    palette.setColor(QPalette::Window, shades.window);
    palette.setColor(QPalette::Base, shades.base);
    palette.setColor(QPalette::AlternateBase, shades.alternate);
    palette.setColor(QPalette::Mid, shades.mid);
    palette.setColor(QPalette::Dark, shades.dark);
    palette.setColor(QPalette::Highlight, shades.chosen);
    palette.setColor(QPalette::HighlightedText, shades.text);
    palette.setColor(QPalette::Link, shades.accent);
    palette.setColor(QPalette::ToolTipBase, shades.base);
    palette.setColor(QPalette::ToolTipText, shades.text);
    palette.setColor(QPalette::PlaceholderText, shades.disabled);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, shades.text);
        palette.setColor(QPalette::Disabled, role, shades.disabled);
    }
    return palette;
}

} // namespace

Theme desktopTheme()
{
    const QPalette palette = QApplication::palette();
    const bool lightText = palette.windowText().color().lightness() > palette.window().color().lightness();
    return lightText ? Theme::Dark : Theme::Light;
}

void applyAppearance(QApplication &application, Theme theme)
{
    for (const QString &face : StoodInFor)
        QFont::insertSubstitution(face, ShippedFace);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const Shades &shades = theme == Theme::Light ? Light : Dark;
    QPalette palette = paletteOf(shades);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    palette.setColor(QPalette::Highlight, shades.accent);
    palette.setColor(QPalette::HighlightedText, theme == Theme::Light ? Qt::white : shades.dark);
    QApplication::setPalette(palette, "QProgressBar");
    application.setFont(QFont(DefaultFace, 9));
}

void registerShippedFaces(const QString &folder)
{
    const QDir faces(folder);
    for (const QString &file : faces.entryList({QStringLiteral("*.ttf")}, QDir::Files))
        QFontDatabase::addApplicationFont(faces.filePath(file));
}

} // namespace platform
