#include "platform/guards.h"
#include "variables/definition_file.h"

#include <QDataStream>
#include <QIODevice>

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace variables;

constexpr qint32 Huge = std::numeric_limits<qint32>::max();

// A definition file put together by hand: two units, three slots of which the last one is filled.
struct File
{
    qint32 unitBound = 1;
    qint32 variableBound = 2;
    quint16 dimensions = 1;
    qint32 elements = 2;
    float minimum = -40;
    qint32 trailer = 7576;

    QByteArray bytes() const
    {
        QByteArray result;
        QDataStream out(&result, QIODevice::WriteOnly);
        out.setByteOrder(QDataStream::LittleEndian);
        out.setFloatingPointPrecision(QDataStream::SinglePrecision);
        const auto text = [&out](const QByteArray &characters) {
            out << static_cast<quint16>(characters.size());
            out.writeRawData(characters.constData(), static_cast<int>(characters.size()));
        };
        out << unitBound << quint64{0}; // the blank row
        for (const char *words : {"celsius", "Degrees", "value$1$0", "\xB0\x43"})
            text(words);
        out << variableBound;
        out.writeRawData(QByteArray(146, '\0'), 146); // two empty slots
        for (const char *name : {"Old [x]", "OIL_T", "Oil"})
            text(name);
        out << qint32{2} << qint16{-1} << qint16{0} << qint16{-1} << qint32{5} << minimum << 150.5F;
        out << qint32{11} << 0.25F << 12.0F << 3.0F << qint32{4};
        text("celsius");
        out << dimensions << elements << qint32{0};
        text("celsius");
        text("");
        out << qint16{-1};
        for (const char *words : {"var_0003\r\n+1", "\xB5m", "Oil temperature"})
            text(words);
        out << 0.5F << 1.5F << qint32{3} << quint8{200} << trailer;
        return result;
    }
};

Catalogue catalogueOfFile()
{
    const auto record = [](auto... fields) { return VariableRecord{fields...}; };
    const VariableRecord oil = record("Old [x]", "OIL_T", "Oil", 2, true, false, true, 5, -40.0F, 150.5F, 11,
                                      0.25F, 12.0F, 3.0F, 4, "celsius", QStringList{"celsius", ""}, true,
                                      "var_0003\r\n+1", "µm", "Oil temperature", 0.5F, 1.5F, 3, quint8{200});
    return {{{}, {}, oil}, {}, {{}, {"celsius", "Degrees", "value$1$0", "°C"}}};
}

// A well-formed file of one blank unit and so many empty slots.
QByteArray emptySlots(int rows, const QByteArray &boundInHex)
{
    return QByteArray(12, '\0') + QByteArray::fromHex(boundInHex) + QByteArray(rows * 73, '\0') +
           QByteArray::fromHex("981D0000");
}

TEST(DefinitionFile, isWrittenFieldByFieldAndReadIntoAFullCatalogue)
{
    EXPECT_EQ(saveDefinitions(catalogueOfFile()).toHex(), File().bytes().toHex());
    Catalogue loaded;
    loaded.live[100].BaseName = "gone";
    // The writer of older files did not cut what was longer before.
    ASSERT_EQ(loadDefinitions(File().bytes() + "remains", loaded), DefinitionStatus::Loaded);
    Catalogue expected = catalogueOfFile();
    expected.live[2].DisplayName = "Oil [µm]";
    EXPECT_EQ(loaded.units, expected.units);
    EXPECT_TRUE(loaded.live[2] == expected.live[2]);
    EXPECT_EQ(loaded.live[100].BaseName, "");
    EXPECT_EQ(loaded.live[8000].DisplayName, " []");
}

TEST(DefinitionFile, damageIsToldInOneOfTwoWaysAndChangesNothing)
{
    const DefinitionStatus corrupted = DefinitionStatus::Corrupted;
    const std::optional<DefinitionStatus> illFormed; // the failure of a command
    std::vector<std::pair<QByteArray, std::optional<DefinitionStatus>>> cases{
        {File{.trailer = 7577}.bytes(), corrupted},
        {File{.unitBound = -1}.bytes(), corrupted},
        {File{.variableBound = -1}.bytes(), corrupted},
        {File{.variableBound = Huge}.bytes(), corrupted},
        {emptySlots(0, "FFFFFFFF"), corrupted},
        {emptySlots(8002, "411F0000"), corrupted},
        {File{.dimensions = 2}.bytes(), illFormed},
        {File{.elements = -1}.bytes(), illFormed},
        {File{.elements = 0x0FFFFFFF}.bytes(), illFormed},
        {File{.unitBound = Huge}.bytes(), illFormed},
        {File{.variableBound = 3}.bytes(), illFormed},
        {File{.variableBound = 8000}.bytes(), illFormed}};
    const QByteArray whole = File().bytes();
    for (qsizetype length = 0; length < whole.size(); ++length)
        cases.emplace_back(whole.left(length), illFormed);
    const Catalogue before = catalogueOfFile();
    Catalogue catalogue = before;
    for (const auto &[bytes, expected] : cases) {
        std::optional<DefinitionStatus> told;
        platform::skipFailures([&] { told = loadDefinitions(bytes, catalogue); });
        EXPECT_EQ(told, expected) << bytes.size() << " bytes";
        EXPECT_TRUE(catalogue.live == before.live);
        EXPECT_EQ(catalogue.units, before.units);
    }
    EXPECT_EQ(loadDefinitions(emptySlots(8001, "401F0000"), catalogue), DefinitionStatus::Loaded);
    constexpr float Infinite = std::numeric_limits<float>::infinity();
    for (const float value : {std::numeric_limits<float>::quiet_NaN(), Infinite, -Infinite}) {
        ASSERT_EQ(loadDefinitions(File{.minimum = value}.bytes(), catalogue), DefinitionStatus::Loaded);
        EXPECT_EQ(catalogue.live[2].DefaultMin, 0);
    }
}

} // namespace
