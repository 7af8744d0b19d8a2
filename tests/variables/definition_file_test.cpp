#include "platform/guards.h"
#include "variables/definition_file.h"

#include <QDataStream>
#include <QIODevice>

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace variables;

constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float Infinite = std::numeric_limits<float>::infinity();
constexpr qint32 Huge = std::numeric_limits<qint32>::max();

// A definition file put together by hand: two units, three slots of which the last one is filled.
struct File
{
    qint32 unitBound = 1;
    qint32 variableBound = 2;
    quint16 dimensions = 1;
    qint32 elements = 2;
    float minimum = -40, rateOfChange = 1.5F;
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
        const QByteArray emptySlot(73, '\0');
        out << unitBound << quint64{0}; // the blank row
        for (const char *words : {"celsius", "Degrees", "value$1$0", "\xB0\x43"})
            text(words);
        out << variableBound;
        out.writeRawData(emptySlot, 73);
        out.writeRawData(emptySlot, 73);
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
        out << 0.5F << rateOfChange << qint32{3} << quint8{200} << trailer;
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
    EXPECT_EQ(loaded.live.size(), 8001U);
    EXPECT_TRUE(loaded.live[2] == expected.live[2]);
    EXPECT_EQ(loaded.live[100].BaseName, "");
    EXPECT_EQ(loaded.live[8000].DisplayName, " []");
}

TEST(DefinitionFile, damageIsToldInOneOfTwoWaysAndChangesNothing)
{
    const DefinitionStatus corrupted = DefinitionStatus::Corrupted;
    const std::optional<DefinitionStatus> illFormed; // the failure of a command
    Catalogue catalogue = catalogueOfFile();
    const auto expectUntouched = [&](const QByteArray &bytes, std::optional<DefinitionStatus> expected) {
        std::optional<DefinitionStatus> told;
        platform::skipFailures([&] { told = loadDefinitions(bytes, catalogue); });
        EXPECT_EQ(told, expected) << bytes.size() << " bytes";
        const Catalogue before = catalogueOfFile();
        EXPECT_TRUE(catalogue.live == before.live);
        EXPECT_EQ(catalogue.units, before.units);
    };
    for (const File &file : std::vector<File>{{.trailer = 7577},
                                              {.trailer = 0},
                                              {.unitBound = -1},
                                              {.variableBound = -1},
                                              {.variableBound = 8001},
                                              {.variableBound = Huge}})
        expectUntouched(file.bytes(), corrupted);
    expectUntouched(emptySlots(0, "FFFFFFFF"), corrupted);
    expectUntouched(emptySlots(8002, "411F0000"), corrupted); // one slot more than there are
    for (const File &file : std::vector<File>{{.dimensions = 2},
                                              {.dimensions = 0xFFFF},
                                              {.elements = -1},
                                              {.elements = 0x0FFFFFFF},
                                              {.elements = Huge},
                                              {.unitBound = Huge},
                                              {.variableBound = 3},
                                              {.variableBound = 8000}})
        expectUntouched(file.bytes(), illFormed);
    const QByteArray whole = File().bytes();
    for (qsizetype length = 0; length < whole.size(); ++length)
        expectUntouched(whole.left(length), illFormed);
    EXPECT_EQ(loadDefinitions(emptySlots(8001, "401F0000"), catalogue), DefinitionStatus::Loaded);
}

TEST(DefinitionFile, numbersThatAreNotFiniteReadAsZero)
{
    for (const float value : {NotANumber, Infinite, -Infinite}) {
        Catalogue loaded;
        const File file{.minimum = value, .rateOfChange = value};
        ASSERT_EQ(loadDefinitions(file.bytes(), loaded), DefinitionStatus::Loaded);
        EXPECT_EQ(loaded.live[2].DefaultMin, 0);
        EXPECT_EQ(loaded.live[2].DefaultMax, 150.5F);
        EXPECT_EQ(loaded.live[2].MaximumROC, 0);
    }
}

} // namespace
