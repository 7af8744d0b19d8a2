#include "graphics/dialogs/frm_font_gen.h"

#include "graphics/dialogs/font_preview.h"
#include "graphics/face_source.h"
#include "platform/desktop/busy.h"
#include "platform/guards.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QScrollArea>
#include <QVBoxLayout>

namespace graphics {

namespace {

constexpr int UsualSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 36, 48, 72, 96, 144};
constexpr int LargestSize = 999;
constexpr QSize PreviewSize(520, 170);

} // namespace

frmFontGen::frmFontGen(FontStore &fonts, const FontRequest &first, platform::Prompts &prompts,
                       QWidget *parent)
    : QDialog(parent), m_fonts(fonts), m_prompts(prompts), m_face(new QComboBox), m_size(new QComboBox),
      m_preview(new QLabel), m_status(new QLabel), m_bar(new QProgressBar)
{
    setObjectName(QStringLiteral("frmFontGen"));
    setWindowTitle(QStringLiteral("Font Generator"));
    m_status->setObjectName(QStringLiteral("lblstatus"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setMinimumHeight(fontMetrics().height()); // its place is kept while it is empty
    m_bar->setObjectName(QStringLiteral("pBar"));
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setAccessibleName(QStringLiteral("Progress"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildChoice());
    layout->addWidget(buildPreview(), 1);
    layout->addWidget(m_status);
    layout->addWidget(m_bar);
    layout->addWidget(buildButtons());
    setRequest(first);
    connect(m_face, &QComboBox::currentTextChanged, this, &frmFontGen::refreshPreview);
    connect(m_size, &QComboBox::currentTextChanged, this, &frmFontGen::refreshPreview);
    for (const QCheckBox *style : {m_bold, m_italic, m_strikethrough, m_underline})
        connect(style, &QCheckBox::toggled, this, &frmFontGen::refreshPreview);
    refreshPreview();
}

QWidget *frmFontGen::buildChoice()
{
    auto *group = new QGroupBox(QStringLiteral("Font"));
    auto *form = new QFormLayout(group);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_face->setObjectName(QStringLiteral("cmbFontName"));
    m_face->setAccessibleName(QStringLiteral("Face"));
    m_face->addItems(drawableFaces());
    form->addRow(QStringLiteral("&Face"), m_face);
    m_size->setObjectName(QStringLiteral("cmbFontSize"));
    m_size->setAccessibleName(QStringLiteral("Size in points"));
    m_size->setEditable(true);
    m_size->setCompleter(nullptr); // it would make a typed 7 a 72
    m_size->setInsertPolicy(QComboBox::NoInsert);
    m_size->setValidator(new QIntValidator(1, LargestSize, m_size));
    for (const int size : UsualSizes)
        m_size->addItem(QString::number(size));
    form->addRow(QStringLiteral("&Size (points)"), m_size);
    auto *styles = new QHBoxLayout;
    m_bold = addStyle(*styles, "chkBold", QStringLiteral("&Bold"));
    m_italic = addStyle(*styles, "chkItalic", QStringLiteral("&Italic"));
    m_strikethrough = addStyle(*styles, "chkStrikethrough", QStringLiteral("Stri&kethrough"));
    m_underline = addStyle(*styles, "chkUnderline", QStringLiteral("&Underline"));
    styles->addStretch();
    form->addRow(QStringLiteral("Style"), styles);
    return group;
}

QCheckBox *frmFontGen::addStyle(QLayout &row, const char *name, const QString &caption)
{
    auto *style = new QCheckBox(caption);
    style->setObjectName(QLatin1String(name));
    row.addWidget(style);
    return style;
}

QWidget *frmFontGen::buildPreview()
{
    auto *group = new QGroupBox(QStringLiteral("Preview"));
    auto *layout = new QVBoxLayout(group);
    m_preview->setObjectName(QStringLiteral("OutputText"));
    m_preview->setAccessibleName(QStringLiteral("Preview"));
    m_preview->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_preview->setAutoFillBackground(true);
    m_preview->setMargin(8);
    auto *area = new QScrollArea;
    area->setWidget(m_preview);
    area->setWidgetResizable(true);
    area->setMinimumSize(PreviewSize);
    QPalette dim = area->palette();
    dim.setColor(QPalette::Window, QColor::fromRgb(PreviewGround));
    dim.setColor(QPalette::WindowText, Qt::white);
    area->setPalette(dim);
    layout->addWidget(area);
    return group;
}

QWidget *frmFontGen::buildButtons()
{
    auto *buttons = new QDialogButtonBox;
    auto *make = buttons->addButton(QStringLiteral("&Generate"), QDialogButtonBox::ActionRole);
    make->setObjectName(QStringLiteral("cmdGenerate"));
    make->setDefault(true);
    auto *close = buttons->addButton(QStringLiteral("&Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    connect(make, &QPushButton::clicked, this, &frmFontGen::generate);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

FontRequest frmFontGen::request() const
{
    return {
        m_face->currentText(),
        m_size->currentText().toInt(),
        {m_bold->isChecked(), m_italic->isChecked(), m_strikethrough->isChecked(), m_underline->isChecked()}};
}

void frmFontGen::setRequest(const FontRequest &request)
{
    if (m_face->findText(request.face) < 0)
        m_face->addItem(request.face);
    m_face->setCurrentText(request.face);
    m_size->setCurrentText(request.size > 0 ? QString::number(request.size) : QString());
    m_bold->setChecked(request.style.bold);
    m_italic->setChecked(request.style.italic);
    m_strikethrough->setChecked(request.style.strikethrough);
    m_underline->setChecked(request.style.underline);
}

void frmFontGen::begin(const QString &status)
{
    m_status->setText(status);
    setValue(0);
}

void frmFontGen::setValue(int percent)
{
    m_bar->setValue(percent);
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmFontGen::generate()
{
    const FontRequest chosen = request();
    bool made = false;
    platform::reportFailures(m_prompts, [&] {
        const platform::Busy busy(this);
        made = m_fonts.generate(chosen, *this, m_prompts);
    });
    if (made) {
        m_status->setText(
            QStringLiteral("Written: %1 and %2").arg(fontFileName(chosen), extendedFontFileName(chosen)));
        return;
    }
    showReady();
}

void frmFontGen::showReady()
{
    const QString face = m_face->currentText();
    m_bar->setValue(0);
    m_status->setText(
        isInstalled(face)
            ? QString()
            : QStringLiteral("%1 is not installed; %2 stands in for it.").arg(face, ShippedFace));
}

void frmFontGen::refreshPreview()
{
    showReady();
    const FontRequest chosen = request();
    if (!isComplete(chosen)) {
        showPreview({}, QStringLiteral("No size is chosen."));
        return;
    }
    QImage picture;
    platform::skipFailures([&] {
        platform::NoProgress silent;
        const auto pair = renderFont(chosen, m_fonts.folders().shippedFaces, silent);
        if (const auto font = pair ? TextFont::fromFiles(pair->standard, pair->extended) : std::nullopt)
            picture = fontPreview(*font);
    });
    showPreview(picture, QStringLiteral("This size is too big for font files."));
}

void frmFontGen::showPreview(const QImage &picture, const QString &textInstead)
{
    if (picture.isNull())
        m_preview->setText(textInstead);
    else
        m_preview->setPixmap(QPixmap::fromImage(picture));
}

} // namespace graphics
