#include "make_layouts/control_row.h"

#include "controls/bar_graph/bar_graph.h"
#include "graphics/picture_loader.h"
#include "platform/guards.h"

#include <limits>

namespace make_layouts {

namespace {

using common::RunTimeError;
using controls::OverlayControl;
using controls::PropertyKind;
using controls::PropertyValue;
using recorder::VideoStandard;

constexpr char ReaderPrefix[] = "cur"; // where the writer has "new"

class ControlRow
{
public:
    ControlRow(RowReader &row, OverlayControl &control, const Workbench &bench)
        : m_row(row), m_control(control), m_bench(bench)
    {
    }

    // Throws RunTimeError for what the control does not have or take.
    void take(const QString &setting)
    {
        const qsizetype sign = setting.indexOf(QLatin1Char('='));
        const QString name = setting.left(sign).trimmed();
        const QString value = sign < 0 ? QString() : setting.sliced(sign + 1).trimmed();
        if (name == QLatin1String("picture"))
            takePicture(value);
        else if (name == QLatin1String("length"))
            m_length = toWhole(forStandard(value));
        else
            m_control.write(name.toStdString(), property(name, value));
    }

    void finish()
    {
        if (auto *bar = dynamic_cast<controls::BarGraph *>(&m_control))
            bar->AssignProperties(common::toInteger<qint16>(m_length));
        else
            m_control.AssignProperties();
    }

private:
    PropertyValue property(const QString &writer, const QString &value)
    {
        const std::string reader =
            ReaderPrefix + writer.sliced(qMin<qsizetype>(3, writer.size())).toStdString();
        switch (static_cast<PropertyKind>(m_control.read(reader).index())) {
        case PropertyKind::Whole:
            return toWhole(forStandard(value));
        case PropertyKind::Single:
            return m_row.number(forStandard(value));
        default:
            return value;
        }
    }

    QString forStandard(const QString &value) const
    {
        const QStringList each = value.split(QLatin1Char('/'));
        const bool isNtsc = m_bench.settings.VideoType == VideoStandard::Ntsc;
        return (isNtsc ? each.last() : each.first()).trimmed();
    }

    qint32 toWhole(const QString &text)
    {
        constexpr int Lowest = std::numeric_limits<qint16>::min();
        constexpr int Highest = std::numeric_limits<qint16>::max();
        if (text.startsWith(QLatin1Char('#')))
            return colour(text);
        if (text.endsWith(QLatin1String("px")))
            return common::toInteger<qint32>(
                m_control.host().screen().toTwipsX(m_row.number(text.chopped(2).trimmed())));
        if (!text.isEmpty() && text.front().isLetter())
            return variableNamed(m_row, text, m_bench.catalogue).value_or(0);
        return m_row.whole(text, Lowest, Highest).value_or(0);
    }

    // Packed 0x00BBGGRR.
    static qint32 colour(const QString &text)
    {
        const QColor parsed(text);
        if (!parsed.isValid())
            throw RunTimeError(QStringLiteral("no colour"));
        return static_cast<qint32>(common::fromPixel(parsed.rgb()));
    }

    void takePicture(const QString &name)
    {
        const std::pair<const char *, QString> files[] = {{"Source", name + QLatin1String(".bmp")},
                                                          {"Alfa", name + QLatin1String(" Alpha.bmp")}};
        for (const auto &[which, file] : files) {
            const auto loaded = graphics::loadPicture(m_bench.pictures + file);
            if (!loaded)
                throw RunTimeError(QStringLiteral("there is no picture \"%1\"").arg(file));
            m_control.write("new" + std::string(which) + "Img", loaded.picture);
        }
        m_control.write("newFileName", files[0].second);
        m_control.write("newAlfaFileName", files[1].second);
    }

    RowReader &m_row;
    OverlayControl &m_control;
    const Workbench &m_bench;
    qint32 m_length = 0; // of a bar, pixels
};

} // namespace

void addControl(RowReader &row, const controls::Family &family, const QStringList &settings, Workbench &bench)
{
    OverlayControl &control = bench.surface.loadControl(family.type);
    const QSizeF size = control.startSize();
    control.setBox({0, 0, static_cast<float>(size.width()), static_cast<float>(size.height())});
    control.applyInitialProperties();
    ControlRow told(row, control, bench);
    for (const QString &setting : settings) {
        if (const auto reason = platform::failureOf([&] { told.take(setting); }))
            row.complain(QStringLiteral("\"%1\": %2").arg(setting, *reason));
    }
    if (const auto reason = platform::failureOf([&] { told.finish(); }))
        row.complain(*reason);
    bench.surface.showControl(control);
}

} // namespace make_layouts
