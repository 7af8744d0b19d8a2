#pragma once

#include "graphics/font_store.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace graphics {

// The window that makes font files: face, size and style, how the result looks, and how far the work is.
class frmFontGen final : public QDialog, public platform::Progress
{
    Q_OBJECT

public:
    // Opens with this font chosen.
    frmFontGen(FontStore &fonts, const FontRequest &first, platform::Prompts &prompts, QWidget *parent);

    FontRequest request() const;

    void begin(const QString &status) override;
    void setValue(int percent) override;
    void end() override {}

private:
    void setRequest(const FontRequest &request);
    QWidget *buildChoice();
    QWidget *buildPreview();
    QWidget *buildButtons();
    QCheckBox *addStyle(QLayout &row, const char *name, const QString &caption);
    void generate();
    void showReady(); // nothing made yet; whether another face stands in
    void refreshPreview();
    void showPreview(const QImage &picture, const QString &textInstead);

    FontStore &m_fonts;
    platform::Prompts &m_prompts;
    QComboBox *m_face;
    QComboBox *m_size;
    QCheckBox *m_bold = nullptr;
    QCheckBox *m_italic = nullptr;
    QCheckBox *m_strikethrough = nullptr;
    QCheckBox *m_underline = nullptr;
    QLabel *m_preview;
    QLabel *m_status;
    QProgressBar *m_bar;
};

} // namespace graphics
