#include "recorder/dialogs/frm_manual_bit_rate.h"

#include "common/number_text.h"
#include "recorder/bit_rate.h"

#include <algorithm>
#include <array>

namespace recorder {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array CardSizes{4, 8, 16, 32}; // GB
constexpr int NotesWidth = 360;               // pixels

QString kilobits(int rate) { return u"%1 Kbps"_s.arg(rate); }

QList<Span> cardSpans(int rate, const QString &decimalMark)
{
    QList<Span> spans;
    for (const int size : CardSizes) {
        const double hours = hoursOnCard(size, rate);
        spans.append({u"%1 GB"_s.arg(size), 0, hours,
                      u"%1 h"_s.arg(common::fixedText(static_cast<float>(hours), 1, decimalMark))});
    }
    return spans;
}

QLabel *addNote(QBoxLayout &layout, const char *name)
{
    auto *note = new QLabel;
    note->setObjectName(QLatin1String(name));
    note->setWordWrap(true);
    note->setFixedSize(NotesWidth, 3 * note->fontMetrics().lineSpacing()); // of the longest one
    note->setAlignment(Qt::AlignTop);
    layout.addWidget(note);
    return note;
}

} // namespace

// A rate that cannot be chosen becomes the nearest one.
frmManualBitRate::frmManualBitRate(quint8 &rate, const forms::Context &context)
    : DialogOf(u"Bit Rate"_s, static_cast<quint8>(std::clamp(int{rate}, LowestBitRate, HighestBitRate)),
               context),
      m_rate(rate)
{
    addGroup("Rate");
    const auto itself = [](quint8 &value) -> quint8 & { return value; };
    auto &field = slider(itself, {"sldBitRate", "&Bit rate", "Mbps"}, LowestBitRate, HighestBitRate);
    field.slider().setPageStep(1);
    field.slider().setTickPosition(QSlider::TicksBelow);
    addFigures();
    addNotes();
    follow([this, &field] { showRate(field.slider().value()); });
    finish(forms::okAndCancel());
}

void frmManualBitRate::addFigures()
{
    m_video = &addLabel("lblVideoRate", "Video at the set bit rate              -");
    addLabel("lblAudioRate", "Audio at the fixed bit rate           -").setText(kilobits(AudioRate));
    addLabel("lblMuliflexRate", "Multiplexing information              -").setText(kilobits(multiplexRate()));
    m_usage = &addLabel("lblUsage", "Estimated memory use per hour =");
}

void frmManualBitRate::addNotes()
{
    auto *across = new QHBoxLayout;
    auto *notes = new QVBoxLayout;
    m_note = addNote(*notes, "lblNote");
    m_warning = addNote(*notes, "lblWarning");
    m_warning->setText(u"WARNING: This bitrate is too high for the DVD standard, playback will "
                       "only be possible on the PC"_s);
    QSizePolicy keepsItsRoom = m_warning->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    m_warning->setSizePolicy(keepsItsRoom);
    m_cards = new SpanChart("picCards", u"Hours on a card"_s, static_cast<int>(CardSizes.size()));
    across->addLayout(notes);
    across->addWidget(m_cards);
    body().addLayout(across);
}

void frmManualBitRate::showRate(int rate)
{
    m_video->setText(kilobits(videoRate(rate)));
    m_usage->setText(
        u"%1 GB"_s.arg(common::shortestText(static_cast<float>(usagePerHour(rate)), decimalMark())));
    m_note->setText(bitRateNote(rate).value_or(m_note->text()));
    m_warning->setVisible(isTooHighForDvd(rate));
    m_cards->draw(cardSpans(rate, decimalMark()), hoursOnCard(CardSizes.back(), LowestBitRate));
}

} // namespace recorder
