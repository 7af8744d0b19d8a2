#include "graphics/dialogs/frm_font_gen.h"

#include "graphics/dialogs/font_preview.h"
#include "graphics/face_source.h"
#include "platform/desktop/busy.h"
#include "platform/guards.h"

#include <QApplication>
#include <QIntValidator>
#include <QScrollArea>

namespace graphics {

using namespace Qt::StringLiterals;

namespace {

constexpr int UsualSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 28, 36, 48, 72, 96, 144};
constexpr int LargestSize = 999;
constexpr QSize PreviewSize(520, 170);

// A list of usual sizes in which another one can be typed; empty for none.
class SizeField final : public forms::Field
{
public:
    explicit SizeField(const char *name) : Field(new QComboBox, name)
    {
        box().setEditable(true);
        box().setCompleter(nullptr); // it would make a typed 7 a 72
        box().setInsertPolicy(QComboBox::NoInsert);
        box().setValidator(new QIntValidator(1, LargestSize, &box()));
        for (const int size : UsualSizes)
            box().addItem(QString::number(size));
        QObject::connect(&box(), &QComboBox::currentTextChanged, &box(), [this] { changed(); });
    }

    QComboBox &box() const { return static_cast<QComboBox &>(widget()); }
    QString text() const override { return box().currentText(); }
    void setText(const QString &text) override { box().setCurrentText(text); }
    void show(int size) { setText(size > 0 ? QString::number(size) : QString()); }
    void store(int &size) const { size = text().toInt(); }
};

} // namespace

frmFontGen::frmFontGen(FontStore &fonts, const FontRequest &first, const forms::Context &context)
    : DialogOf(u"Font Generator"_s, first, context), m_fonts(fonts), m_preview(new QLabel),
      m_status(new QLabel), m_bar(new QProgressBar)
{
    setObjectName(u"frmFontGen"_s);
    makeResizable();
    addChoice();
    addPreview();
    addProgress();
    follow([this] { refreshPreview(); });
    finish({{"cmdGenerate", "&Generate", forms::Press::Apply}, {"cmdClose", "&Close", forms::Press::Cancel}});
}

void frmFontGen::addChoice()
{
    addGroup("Font");
    addRow(bind(add<forms::TextListField>("cmbFontName", drawableFaces()), &FontRequest::face), "&Face");
    addRow(bind(add<SizeField>("cmbFontSize"), &FontRequest::size), "&Size (points)");
    auto *styles = new QHBoxLayout;
    addStyle(*styles, &FontStyle::bold, "chkBold", "&Bold");
    addStyle(*styles, &FontStyle::italic, "chkItalic", "&Italic");
    addStyle(*styles, &FontStyle::strikethrough, "chkStrikethrough", "Stri&kethrough");
    addStyle(*styles, &FontStyle::underline, "chkUnderline", "&Underline");
    styles->addStretch();
    addRow("Style", styles);
}

void frmFontGen::addStyle(QLayout &row, bool FontStyle::*style, const char *name, const char *caption)
{
    auto &field = add<forms::CheckField>(new QCheckBox(QString::fromUtf8(caption)), name);
    bind(field, [style](FontRequest &request) -> bool & { return request.style.*style; });
    row.addWidget(&field.widget());
}

void frmFontGen::addPreview()
{
    m_preview->setObjectName(u"OutputText"_s);
    m_preview->setAccessibleName(u"Preview"_s);
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
    body().setStretchFactor(&addGroup("Preview"), 1);
    addWide(area);
}

void frmFontGen::addProgress()
{
    m_status->setObjectName(u"lblstatus"_s);
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setMinimumHeight(fontMetrics().height()); // its place is kept while it is empty
    m_bar->setObjectName(u"pBar"_s);
    m_bar->setRange(0, 100);
    m_bar->setValue(0);
    m_bar->setAccessibleName(u"Progress"_s);
    layout()->addWidget(m_status);
    layout()->addWidget(m_bar);
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

void frmFontGen::set(FontRequest &request)
{
    bool made = false;
    platform::reportFailures(prompts(), [&] {
        const platform::Busy busy(this);
        made = m_fonts.generate(request, *this, prompts());
    });
    if (!made) {
        showReady(request);
        return;
    }
    m_status->setText(u"Written: %1 and %2"_s.arg(fontFileName(request), extendedFontFileName(request)));
}

void frmFontGen::showReady(const FontRequest &chosen)
{
    m_bar->setValue(0);
    m_status->setText(isInstalled(chosen.face)
                          ? QString()
                          : u"%1 is not installed; %2 stands in for it."_s.arg(chosen.face, ShippedFace));
}

void frmFontGen::refreshPreview()
{
    const FontRequest chosen = request();
    if (chosen == m_previewed)
        return; // what the status says of it still holds
    m_previewed = chosen;
    showReady(chosen);
    if (!isComplete(chosen)) {
        showPreview({}, u"No size is chosen."_s);
        return;
    }
    QImage picture;
    platform::skipFailures([&] {
        platform::NoProgress silent;
        const auto pair = renderFont(chosen, m_fonts.folders().shippedFaces, silent);
        if (const auto font = pair ? TextFont::fromFiles(pair->standard, pair->extended) : std::nullopt)
            picture = fontPreview(*font);
    });
    showPreview(picture, u"This size is too big for font files."_s);
}

void frmFontGen::showPreview(const QImage &picture, const QString &textInstead)
{
    if (picture.isNull())
        m_preview->setText(textInstead);
    else
        m_preview->setPixmap(QPixmap::fromImage(picture));
}

} // namespace graphics
