#include "fuzz/targets.h"

#include "fuzz/fuzz_controls.h"
#include "graphics/composer.h"
#include "graphics/picture_loader.h"
#include "graphics/planes.h"
#include "layoutfile/fold_variables.h"
#include "layoutfile/images.h"
#include "layoutfile/layout_bytes.h"
#include "layoutfile/settings_records.h"
#include "platform/guards.h"
#include "variables/definition_file.h"
#include "variables/expression/compiler.h"
#include "variables/expression/evaluator.h"
#include "variables/expression/rebuilder.h"
#include "variables/units.h"

#include <QSize>

#include <algorithm>

namespace fuzz {

namespace {

using layoutfile::LayoutRecord;
using layoutfile::RecordType;

// Without a good CRC nothing after the first check would ever be reached.
QByteArray withGoodCrc(QByteArrayView bytes)
{
    const QByteArrayView content = bytes.first(std::max<qsizetype>(bytes.size() - 4, 0));
    return content.isEmpty() ? bytes.toByteArray() : test::withCrc(content.toByteArray());
}

// What was read can be written, and reads back the same.
bool settles(const LayoutRecord &record)
{
    const QByteArray payload = test::payloadOf(record.body);
    const qint32 stated = layoutfile::statedSize(record.body, payload.size());
    common::ByteReader reader(payload);
    const auto again = layoutfile::decodePayload(static_cast<qint16>(record.type()), stated, reader);
    return again && reader.remaining() == 0 && test::payloadOf(*again) == payload;
}

// Every stored bitmap has planes that fit together, or none.
bool holdsImages(const std::vector<LayoutRecord> &records)
{
    const layoutfile::StoredImages images = layoutfile::storedImages(records);
    return std::all_of(images.begin(), images.end(), [](const auto &entry) {
        const graphics::PlanePicture &picture = entry.second.picture;
        const graphics::Planes &planes = picture.planes();
        return picture.isEmpty() || (planes.isComplete() && picture.picture().size() == planes.size() &&
                                     picture.alpha().values.size() == planes.y.size());
    });
}

// Whatever the variables of a layout say, the catalogue keeps its rows.
bool foldsIn(const std::vector<LayoutRecord> &records)
{
    static variables::Catalogue catalogue; // 8001 rows are not made anew for every input
    const auto isVariable = [](const LayoutRecord &record) { return record.type() == RecordType::Variable; };
    if (std::any_of(records.begin(), records.end(), isVariable))
        layoutfile::foldVariables(records, catalogue, {});
    return catalogue.live.size() == variables::LastIndex + 1;
}

using namespace variables::expression;

constexpr int Owner = 42;
constexpr qsizetype MostBytes = 257;

// What compiles runs to its end, and what is rebuilt from it compiles to the same bytes.
bool comesBack(const QString &equation, const platform::NumberLocale &locale)
{
    QByteArray program, again;
    QString text;
    if (!compile(equation, program, Owner, locale))
        return program.isEmpty();
    return program.size() <= MostBytes && Standard(program).status == RunStatus::Ended &&
           rebuildEquation(program, Owner, locale, text) && compile(text, again, Owner, locale) &&
           again == program;
}

bool isBounded(QByteArrayView program)
{
    QString text;
    const bool rebuilt = rebuildEquation(program, Owner, {}, text);
    return rebuilt ? text.size() <= qsizetype{LongestEquation} : text.isEmpty();
}

constexpr int MaxSide = 48;

// Either a picture within the limit that goes through planes and composer, or nothing and a reason.
bool holds(QByteArrayView bytes)
{
    const graphics::LoadedPicture loaded = graphics::readPicture(bytes, MaxSide);
    if (!loaded)
        return loaded.picture.isNull();
    const QSize size = loaded.picture.size();
    if (size.isEmpty() || size.width() > MaxSide || size.height() > MaxSide)
        return false;
    const QSize padded = graphics::paddedSize(size);
    const graphics::Planes planes = graphics::toPlanes(loaded.picture, padded);
    QImage surface = graphics::toPicture(planes);
    graphics::compose(surface, {1, -1}, loaded.picture, graphics::toAlphaPlane(loaded.picture, padded), 200);
    return planes.isComplete() && surface.size() == padded;
}

} // namespace

bool layout(QByteArrayView bytes)
{
    const bool refused = layoutfile::IsValidVGL(bytes) || layoutfile::extractThumbnail(bytes).isEmpty();
    const QByteArray file = withGoodCrc(bytes);
    const bool accepted = layoutfile::IsValidVGL(file) == (file.size() > 4);
    const bool thumbnailFits = layoutfile::extractThumbnail(file).size() <= file.size();
    const std::vector<LayoutRecord> records = layoutfile::parseLayout(file);
    recorder::RecorderSettings settings;
    layoutfile::settingsFromRecords(records, settings);
    useControls(records);
    const bool gearsFit = settings.GearTable.size() >= 1 && settings.GearTable.size() <= 7;
    return refused && accepted && thumbnailFits && foldsIn(records) && holdsImages(records) && gearsFit &&
           std::all_of(records.begin(), records.end(), &settles);
}

bool definitions(QByteArrayView bytes)
{
    static variables::Catalogue catalogue;
    const auto units = catalogue.units.size();
    const auto loads = [](const QByteArray &file) {
        return variables::loadDefinitions(file, catalogue) == variables::DefinitionStatus::Loaded;
    };
    bool loaded = false;
    platform::skipFailures([&] { loaded = loads(bytes.toByteArray()); });
    if (!loaded)
        return catalogue.units.size() == units && catalogue.live.size() == variables::LastIndex + 1;
    const QByteArray saved = variables::saveDefinitions(catalogue);
    return loads(saved) && variables::saveDefinitions(catalogue) == saved;
}

bool expression(QByteArrayView bytes)
{
    const QString text = QString::fromLatin1(bytes);
    Standard(bytes);
    variables::conversionProgram(text, Owner, {});
    return isBounded(bytes) && comesBack(text, {}) && comesBack(text, {",", ";"});
}

bool picture(QByteArrayView bytes)
{
    QByteArray asBmp = bytes.toByteArray();
    asBmp.replace(0, 2, "BM");
    return holds(bytes) && holds(asBmp);
}

} // namespace fuzz
