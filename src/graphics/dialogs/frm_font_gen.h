#pragma once

#include "forms/dialog_of.h"
#include "graphics/font_store.h"

#include <QProgressBar>

namespace graphics {

// The window that makes font files: face, size and style, how the result looks, and how far the work is.
class frmFontGen final : public forms::DialogOf<FontRequest>, public platform::Progress
{
public:
    // Opens with this font chosen.
    frmFontGen(FontStore &fonts, const FontRequest &first, const forms::Context &context);

    FontRequest request() const { return converted(); }

    void begin(const QString &status) override;
    void setValue(int percent) override;
    void end() override {}

protected:
    void set(FontRequest &request) override;

private:
    void addChoice();
    void addStyle(QLayout &row, bool FontStyle::*style, const char *name, const char *caption);
    void addPreview();
    void addProgress();
    void showReady(const FontRequest &chosen); // nothing made yet; whether another face stands in
    void refreshPreview();
    void showPreview(const QImage &picture, const QString &textInstead);

    FontStore &m_fonts;
    std::optional<FontRequest> m_previewed;
    QLabel *m_preview;
    QLabel *m_status;
    QProgressBar *m_bar;
};

} // namespace graphics
