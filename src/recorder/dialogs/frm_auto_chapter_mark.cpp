#include "recorder/dialogs/frm_auto_chapter_mark.h"

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize GridSize(600, 260); // pixels, at least

QString lapTypeText(int type) { return QString::number(type + 1); }

} // namespace

frmAutoChapterMark::frmAutoChapterMark(RecorderSettings &settings, const variables::VariableTable &table,
                                       const forms::Context &context)
    : DialogOf(u"Auto chapter markers"_s, {settings.LapChapterActive, settings.LapChapterType}, context),
      m_settings(settings), m_table(table),
      m_grid(new ChapterGrid(settings.ChapterList, table, decimalMark()))
{
    using V = LapChapters;
    makeResizable();
    addConditions();
    addGroup("Laps");
    const auto &lap = check(&V::active, "chkMarkLapTimerChapters", "&Mark chapters when start of new lap");
    auto &type =
        choice(&V::type, {"cmbLapChapterType", "Chapter &type"}, valuesUpTo(LastChapterType, lapTypeText));
    type.caption()->setObjectName(u"lblChapterType"_s);
    enableBy(lap, {&type});
    finish(forms::okAndCancel());
    m_grid->setFocus();
}

void frmAutoChapterMark::addConditions()
{
    m_grid->setAccessibleName(u"Conditions for chapters"_s);
    m_grid->setMinimumSize(GridSize);
    body().addWidget(m_grid);
    body().addWidget(new QLabel(u"A chapter type in the empty row adds a condition."_s));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(makeButton("cmdSelectAll", "&Select All", [this] { m_grid->change(&tickAll); }));
    buttons->addWidget(makeButton("cmdDelete", "&Delete", [this] { m_grid->change(&removeTicked); }));
    buttons->addStretch();
    body().addLayout(buttons);
}

void frmAutoChapterMark::set(LapChapters &lap)
{
    m_settings.ChapterList = chapterConditions(m_grid->rows(), m_table);
    m_settings.LapChapterActive = lap.active;
    m_settings.LapChapterType = lap.type;
}

} // namespace recorder
