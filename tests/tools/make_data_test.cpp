#include "make_data/catalogue_builder.h"
#include "make_data/message_builder.h"
#include "variables/definition_file.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

using make_data::Problems;
using make_data::TextTable;

const QByteArray GoodUnits = "km/h | km/h | value$1$0     | Kilometres per hour\n"
                             "mph  | mph  | x*0.621371192 | Miles per hour\n";
const QByteArray GoodVariables = "[1 Standard variables]\n"
                                 "2 | SPEED | Speed | 0 | 300 | km/h,mph | always smooth=0.1 | Road speed.\n";

TextTable shippedTable(const QString &name, Problems &problems)
{
    QFile file(MORVEL_CATALOGUE_DIR "/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    return make_data::parseTable(name, file.readAll(), problems);
}

variables::Catalogue shippedCatalogue(Problems &problems)
{
    const TextTable units = shippedTable("units.txt", problems);
    const TextTable rows = shippedTable("variables.txt", problems);
    return make_data::buildCatalogue(units, rows, problems);
}

// Nothing but one problem is expected, at this place.
void expectProblem(const Problems &problems, const char *place, const char *what)
{
    ASSERT_EQ(problems.lines().size(), 1) << what << ": " << qPrintable(problems.lines().join('\n'));
    EXPECT_TRUE(problems.lines()[0].startsWith(QLatin1String(place))) << qPrintable(problems.lines()[0]);
    EXPECT_TRUE(problems.lines()[0].contains(QLatin1String(what))) << qPrintable(problems.lines()[0]);
}

const QByteArray GoodMessages = "8 | Speed | 100Hz | 25Hz | 0\n";

// The tables as they are built, one of them with a line more.
struct Fault
{
    const char *file;
    QByteArray line;
    const char *what;

    QByteArray in(const char *name) const { return qstrcmp(file, name) == 0 ? line : QByteArray(); }
};

TEST(Builders, nameTheLineOfEachFault)
{
    constexpr auto Units = "units.txt:3", Variables = "variables.txt:3", Messages = "messages.txt:2";
    const Fault faults[] = {
        {Units, "mph | mph | value$1$0 | Twice", "taken by line 2"},
        {Units, "kn | kn | value$1$0", "4 cells"},
        {Units, "kn | kn | value$1 | One coefficient", "\"$\""},
        {Units, "kn | kn | value$1$0x | Stray letter", "\"0x\""},
        {Units, "kn | kn |  | No conversion", "missing"},
        {Units, "kn | kn | x/ | Half an equation", "does not compile"},
        {Units, "kn | kn | value$0$0 | Always 0", "does not compile"},
        {Units, "kn | \xCE\xBA | value$1$0 | Greek label", "code page"},
        {Units, "kn | \xB0 | value$1$0 | Not encoded", "UTF-8"},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | furlongs | | Text", "unknown unit \"furlongs\""},
        {Variables, "3 | ENGINE | Engine | 0 | 9 |  | | Text", "unknown unit"},
        {Variables, "8001 | ENGINE | Engine | 0 | 9 | mph | | Text", "8001"},
        {Variables, "2 | ENGINE | Engine | 0 | 9 | mph | | Text", "index \"2\" is taken by line 2"},
        {Variables, "3 | SPEED | Engine | 0 | 9 | mph | | Text", "physical name \"SPEED\""},
        {Variables, "3 | ENGINE | speed [again] | 0 | 9 | mph | | Text", "name \"speed [again]\""},
        {Variables, "3 | ENGINE | Engine | low | 9 | mph | | Text", "\"low\" is not a number"},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | mph | smooth | Text", "\"\" is not a number"},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | mph | nevr | Text", "unknown option \"nevr\""},
        {Variables, "3 | ENGINE | Engine | 0 | 9 | mph | | Text | x", "8 cells expected, 9 found"},
        {Variables, "[10 More]", "\"10\""},
        {Messages, "8 | Again | 5Hz | 5Hz | 0", "twice"},
        {Messages, "256 | Late | 5Hz | 5Hz | 0", "\"256\""},
        {Messages, "9 | Name | 5Hz | 5Hz", "5 cells"},
        {Messages, "9 | Name | 30Hz | 5Hz | 0", "\"30Hz\""},
        {Messages, "9 | Name | On | 5Hz | 1", "\"5Hz\""},
        {Messages, "9 | Name | On | On | 3", "\"3\""},
        {Messages, "9 | " + QByteArray(51, 'n') + " | 5Hz | 5Hz | 0", "longer than 50"},
    };
    for (const Fault &fault : faults) {
        Problems problems;
        const auto table = [&](const char *name, const QByteArray &good, const char *file) {
            return make_data::parseTable(name, good + fault.in(file), problems);
        };
        const TextTable units = table("units.txt", GoodUnits, Units);
        make_data::buildCatalogue(units, table("variables.txt", GoodVariables, Variables), problems);
        make_data::buildMessages(table("messages.txt", GoodMessages, Messages), problems);
        expectProblem(problems, fault.file, fault.what);
    }
}

TEST(CatalogueBuilder, equationsHaveToCompile)
{
    Problems problems;
    const TextTable rows = make_data::parseTable(
        "variables.txt", "[4 User defined variables]\n6001 | SUM | Sum | 0 | 9 | | | Text | 2*var_2 | m\n",
        problems);
    make_data::buildCatalogue({}, rows, problems);
    expectProblem(problems, "variables.txt:2: ", "does not compile");
}

TEST(CatalogueBuilder, keepsWhatARowSays)
{
    Problems problems;
    const TextTable units = make_data::parseTable({}, GoodUnits, problems);
    const TextTable rows =
        make_data::parseTable({},
                              GoodVariables + "[7 Debugging variables]\n"
                                              "4000 | LOAD | Load | -1 | 1.5 | mph | hidden roc=20 | D\n"
                                              "[4 User defined variables]\n"
                                              "6001 | USER | User | 0 | 2 | | | D | var_0002/2 | g\n"
                                              "8000 | NONE | None | 0 | 1 | | | D | 0 | \n",
                              problems);
    const variables::Catalogue catalogue = make_data::buildCatalogue(units, rows, problems);
    ASSERT_TRUE(problems.none()) << qPrintable(problems.lines().join('\n'));

    const variables::VariableRecord &speed = catalogue.live[2];
    EXPECT_EQ(speed.DisplayName, "Speed [km/h]");
    EXPECT_EQ(speed.ApplyTransformation, "km/h");
    EXPECT_EQ(speed.AllowTransformations, QStringList({"km/h", "mph"}));
    EXPECT_TRUE(speed.AlwaysOn);
    EXPECT_TRUE(speed.Enabled);
    EXPECT_TRUE(speed.Available);
    EXPECT_FALSE(speed.UseCustomTrans);
    EXPECT_FLOAT_EQ(speed.SmoothingTime, 0.1F);

    const variables::VariableRecord &load = catalogue.live[4000];
    EXPECT_EQ(load.VariableType, 7);
    EXPECT_TRUE(load.Enabled);
    EXPECT_FALSE(load.Available);
    EXPECT_FLOAT_EQ(load.DefaultMin, -1.0F);
    EXPECT_FLOAT_EQ(load.DefaultMax, 1.5F);
    EXPECT_FLOAT_EQ(load.MaximumROC, 20.0F);

    const variables::VariableRecord &user = catalogue.live[6001];
    EXPECT_EQ(user.DisplayName, "User [g]");
    EXPECT_TRUE(user.UseCustomTrans);
    EXPECT_EQ(user.CustomTransformation, "var_0002/2");
    EXPECT_FALSE(catalogue.live[8000].Enabled);
}

TEST(ShippedData, catalogueLoadsBackAsItWasBuilt)
{
    Problems problems;
    const variables::Catalogue built = shippedCatalogue(problems);
    ASSERT_TRUE(problems.none()) << qPrintable(problems.lines().join('\n'));

    variables::Catalogue loaded;
    ASSERT_EQ(variables::loadDefinitions(variables::saveDefinitions(built), loaded),
              variables::DefinitionStatus::Loaded);
    EXPECT_TRUE(loaded.units == built.units); // no text was lost in the 8-bit code page
    EXPECT_TRUE(loaded.live == built.live);
}

// The rows are 54 bytes: number, 50 of name, storage rate, output rate, kind.
TEST(ShippedData, messagesCarryTheirRates)
{
    Problems problems;
    const TextTable table = shippedTable("messages.txt", problems);
    const QByteArray bytes = recorder::writeMessageTable(make_data::buildMessages(table, problems));
    ASSERT_TRUE(problems.none()) << qPrintable(problems.lines().join('\n'));
    ASSERT_EQ(bytes.size(), 256 * 54);
    const auto row = [&](qsizetype number) { return bytes.mid(number * 54, 54); };
    const QByteArray blanks(50, ' ');
    EXPECT_EQ(row(2), "\x02" + QByteArray("Serial number and firmware").leftJustified(50, ' ') +
                          QByteArray("\x00\x09\x01", 3)); // On, Off
    EXPECT_EQ(row(8), "\x08" + QByteArray("Speed").leftJustified(50, ' ') + QByteArray("\x00\x02\x00", 3));
    EXPECT_EQ(row(255), "\xFF" + blanks + QByteArray("\x09\x09\x00", 3)); // not listed
}

} // namespace
