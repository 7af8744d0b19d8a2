#pragma once

#include "forms/dialog_of.h"
#include "recorder/dialogs/chapter_grid.h"

namespace recorder {

// Whether the start of a lap marks a chapter, and of which type.
struct LapChapters
{
    quint8 active = 0;
    quint8 type = 0;
};

// "Auto chapter markers": when the recorder marks a chapter by itself.
class frmAutoChapterMark final : public forms::DialogOf<LapChapters>
{
public:
    frmAutoChapterMark(RecorderSettings &settings, const variables::VariableTable &table,
                       const forms::Context &context);

protected:
    void set(LapChapters &lap) override;

private:
    void addConditions();

    RecorderSettings &m_settings;
    const variables::VariableTable &m_table;
    ChapterGrid *m_grid;
};

} // namespace recorder
