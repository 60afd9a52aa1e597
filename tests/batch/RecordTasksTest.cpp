#include <gmock/gmock.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>

#include <string>
#include <string_view>

#include "batch/Answers.h"
#include "records/RecordBytes.h"
#include "support/CaseName.h"

namespace kordavan {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A line with PATH in place of the path.
std::string LineWith(std::string line, const std::string& path)
{
    return line.replace(line.find("PATH"), 4, path);
}

RecordBytes BlankCriteria(int tag)
{
    RecordBytes bytes(1613);
    bytes.Short(0, tag).Blanks(2, 90).Blanks(322, 228).Blanks(574, 120).Blanks(704, 595);
    return bytes.Blanks(1303, 276).Blanks(1599, 6);
}

RecordBytes BlankDefaults(int tag)
{
    RecordBytes bytes(322);
    return bytes.Short(0, tag).Blanks(2, 228).Blanks(236, 30);
}

TEST(ReadRecord, GivesEveryFieldOfTheDefaults)
{
    const TemporaryFolder folder;
    RecordBytes bytes = BlankDefaults(4321);
    bytes.Text(2, "Head").Text(112, "  caf\xE9").Text(222, "JD").On(230).Short(232, 9).On(234);
    bytes.Text(236, "Arial").Float(266, 40).Float(282, 12.5F).Float(286, 0.1F).Float(302, 3e38F);
    bytes.Short(306, 1).Text(308, "xx").On(314).Short(318, 1).Short(320, -2);
    PutFile(folder.Path("a.ini"), bytes.All() + "tail");
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"read-record","id":3,"kind":"defaults","path":"PATH"})",
                                  folder.Path("a.ini"))),
              R"({"id":3,"status":"done","messages":[],"fields":{"RecordTag":4321,"DefHead1":"Head",)"
              "\"DefHead2\":\"  caf\u00E9\","
              R"("DefInitials":"JD","defINGRADE":true,"DefCombo":9,"Def600":true,"FontCombo":"Arial",)"
              R"("Livedefault":[40,0,0,0,12.5],"TotalLoadDefault":[0.1,0,0,0,3e+38],"Def50ksi":true,)"
              R"("OptionNDS05":false,"OptionNDS12":false,"OptionNDS15":true,"OptionNDS18":false,)"
              R"("CenterFormCheckbox":1,"DefaultPrinterCheckbox":-2},"bytes":326})");
}

TEST(ReadRecord, GivesTheFieldsOfCriteriaAsTheyAreHeld)
{
    const TemporaryFolder folder;
    RecordBytes bytes = BlankCriteria(-13);
    bytes.Text(2, "Barn").Float(92, 16.5F).Short(100, 180).Short(104, 42).On(110).Float(158, 700);
    bytes.Text(270, "\x17\xB7\xD1\x38")
        .Float(286, 1)
        .Text(789, "second")
        .Text(1483, "2400")
        .Text(1491, "1.8");
    bytes.Text(150, std::string_view("\0\0\xC0\x7F", 4)).On(1607);
    PutFile(folder.Path("a.CRI"), bytes.All());
    const std::string text = AnswerText(
        LineWith(R"({"task":"read-record","kind":"criteria","path":"PATH"})", folder.Path("a.CRI")));
    EXPECT_THAT(text, StartsWith(R"({"status":"done","messages":[{"kind":"alert","title":"Kordavan",)"
                                 R"("text":"This criteria was saved under NDS 2012 standards."}],)"
                                 R"("fields":{"RecordTag":-13,"Proj":"Barn","Descrip":"","ID":"",)"
                                 R"("Span":16.5,"Dur":0,"MaxDefl":180,"LMaxDefl":0,"Combo1":42,)"
                                 R"("INGRADE":false,"Wet":false,"Rep":true,)"));
    EXPECT_THAT(text, HasSubstr(R"("PT":[0,0,0,null,0,700],)"));
    rapidjson::Document answer;
    answer.Parse(text.c_str());
    ASSERT_FALSE(answer.HasParseError());
    EXPECT_EQ(answer["fields"]["BEGP"][0].GetFloat(), 0.0001F);  // the held zero of a start
    EXPECT_EQ(answer["fields"]["BEGP"][1].GetFloat(), 0.0F);
    EXPECT_EQ(answer["fields"]["BEGP"][4].GetFloat(), 1.0F);
    EXPECT_THAT(text, HasSubstr(R"("ReportNotes":["","second","","","","",""],)"));
    EXPECT_THAT(text, HasSubstr(R"("Custom.Combo1":"","Custom.Text1":"2400","Custom.Text2":"",)"
                                R"("Custom.Text4":"1.8","Custom.Text3":"",)"));
    EXPECT_THAT(text, testing::EndsWith(R"("Nds2012":true,"Nds2015":false,"Nds2018":false},"bytes":1613})"));
}

TEST(ReadRecord, TakesAShortFileAsFarAsItGoes)
{
    const TemporaryFolder folder;
    PutFile(folder.Path("a.CRI"), BlankCriteria(-11).Text(2, "Barn").Float(92, 16.5F).All().substr(0, 95));
    const std::string text = AnswerText(
        LineWith(R"({"task":"read-record","kind":"criteria","path":"PATH"})", folder.Path("a.CRI")));
    EXPECT_THAT(text, StartsWith(R"({"status":"done","messages":[],"fields":{"RecordTag":-11,"Proj":"Barn",)"
                                 R"("Descrip":"","ID":"","Span":0,)"));
    EXPECT_THAT(text, testing::EndsWith(R"(},"bytes":95})"));
}

RecordBytes CustomValuesBytes()
{
    RecordBytes bytes(66);
    bytes.Short(0, -1).Float(2, 2400).Float(6, 265.5F).Float(10, 650).Float(14, 1.8F);
    return bytes.Blanks(18, 30).Text(18, "24F-V4 \xBD").On(54).On(62);
}

constexpr std::string_view CustomValuesFields =
    R"("Fb":2400,"Fv":265.5,"FcPerp":650,"E":1.8,"SpeciesText":"24F-V4 ½","CustomIngradeSP":false,)"
    R"("Wid2x":false,"Wid4x":false,"Wid6x":true,"WidGLB":false,"WidGLBHDR":false,"Roundoption":false,)"
    R"("MSRCheckbox":true,"MELCheckbox":false)";

TEST(ReadRecord, AsksAboutTheEditionOfCustomValues)
{
    const TemporaryFolder folder;
    PutFile(folder.Path("a.Val"), CustomValuesBytes().All());
    EXPECT_EQ(
        AnswerText(LineWith(R"({"task":"read-record","edition":"2015","kind":"custom-values","path":"PATH"})",
                            folder.Path("a.Val"))),
        R"({"status":"done","messages":[{"kind":"question","title":"Kordavan Courtesy Alert",)"
        R"("text":"Courtesy Alert:      Are you loading NDS 2015 VALUES?\n)"
        R"(Kordavan is currently set to calculate using NDS 2005 procedures.\n)"
        R"(IF these are NOT NDS 2015 values, either revise these values or change the correct NDS )"
        R"(Version."}],"fields":{"RecordTag":-1,)" +
            std::string(CustomValuesFields) + R"(},"bytes":66})");
}

/// So many products as they are written and read, all zeros.
std::string ZeroProducts(int count)
{
    std::string products;
    for (int k = 0; k < count; ++k) {
        products += R"({"Fb":0,"Fv":0,"E":0,"FcPerp":0},)";
    }
    return products;
}

RecordBytes SclBytes()
{
    RecordBytes bytes(244);
    bytes.Short(0, 113).Short(4, 2800).Short(6, -285).Float(8, 2.1F).Short(12, 32767);
    return bytes.Short(224, 22).Short(234, 25).Float(238, 1.8F);
}

std::string SclFields()
{
    return R"("Products":[{"Fb":2800,"Fv":-285,"E":2.1,"FcPerp":32767},)" + ZeroProducts(21) +
           R"({"Fb":22,"Fv":0,"E":0,"FcPerp":0},)" + ZeroProducts(2) +
           R"({"Fb":25,"Fv":0,"E":1.8,"FcPerp":0}])";
}

RecordBytes CustomSclBytes()
{
    RecordBytes bytes(92);
    bytes.Short(0, 2000).Blanks(18, 30).Short(48, 2650).Short(50, 290).Float(52, 1.9F).Short(56, 750);
    return bytes.Float(58, 0.125F).Blanks(62, 30).Text(62, "Caf\xE9 LVL");
}

std::string CustomSclFields()
{
    return R"("Products":[{"Fb":0,"Fv":0,"E":0,"FcPerp":0,"Exponent":0,"Name":""},)"
           R"({"Fb":2650,"Fv":290,"E":1.9,"FcPerp":750,"Exponent":0.125,"Name":"Café LVL"}])";
}

struct WholeRecordCase {
    std::string_view Name;
    std::string_view Kind;
    int Tag;
    std::string Fields;
    std::string Bytes;
};

class WholeRecordTest : public testing::TestWithParam<WholeRecordCase> {};

TEST_P(WholeRecordTest, IsWrittenAsItIsRead)
{
    const WholeRecordCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path("a");
    const std::string kind = R"(-record","kind":")" + std::string(c.Kind) + R"(","path":"PATH")";
    const std::string bytes = R"("bytes":)" + std::to_string(c.Bytes.size()) + "}";
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"write)" + kind + R"(,"fields":{)" + c.Fields + "}}", path)),
              R"({"status":"done","messages":[],)" + bytes);
    EXPECT_EQ(FirstDifference(FileBytes(path), c.Bytes), "");
    EXPECT_THAT(AnswerText(LineWith(R"({"task":"read)" + kind + "}", path)),
                testing::EndsWith(R"(,"fields":{"RecordTag":)" + std::to_string(c.Tag) + "," + c.Fields +
                                  "}," + bytes));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, WholeRecordTest,
    testing::Values(
        WholeRecordCase{"custom post values", "custom-post", 100,
                        R"("Fc":1450,"E":1.75,"SpeciesText":"Hackberry")",
                        std::string("\x64\0\xAA\x05\0\0\xE0\x3F", 8) + "Hackberry" + std::string(21, ' ')},
        WholeRecordCase{"custom values", "custom-values", -1, std::string(CustomValuesFields),
                        CustomValuesBytes().All()},
        WholeRecordCase{"listed products", "scl", 113, SclFields(), SclBytes().All()},
        WholeRecordCase{"own products", "scl-custom", 2000, CustomSclFields(), CustomSclBytes().All()}),
    CaseName);

TEST(WriteRecord, PutsTheCellsOfADataRecordAtTheirPlaces)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.Dat");
    EXPECT_EQ(
        AnswerText(LineWith(R"({"task":"write-record","kind":"data-record","path":"PATH","fields":{)"
                            R"("Label1":"Barn","Label13":"38.92","Label19":"kept","Label133Missing":"head",)"
                            R"("ReportNotes":["","note"],"Label133":"R2= 3 in\u00b2","SteelRecord":true,)"
                            R"("Label194":"  Rb > 50!"}})",
                            path)),
        R"({"status":"done","messages":[],"bytes":4809})");
    RecordBytes expected(4809);
    expected.Short(0, 556).Blanks(2, 4565).On(4567).Blanks(4569, 230).Text(2, "Barn").Text(462, "38.92");
    expected.Text(582, "kept").Text(2732, "head").Text(3747, "note").Text(4527, "R2= 3 in\xB2");
    EXPECT_EQ(FirstDifference(FileBytes(path), expected.Text(4749, "  Rb > 50!").All()), "");
    const std::string text =
        AnswerText(LineWith(R"({"task":"read-record","kind":"data-record","path":"PATH"})", path));
    EXPECT_THAT(text, StartsWith(R"({"status":"done","messages":[],"fields":{"RecordTag":556,)"
                                 R"("Label1":"Barn","Label2":"",)"));
    EXPECT_THAT(text, HasSubstr(R"("Label6":"","Label13":"38.92","Label14":"",)"));
    EXPECT_THAT(text, HasSubstr(R"("Label53":"","ReportNotes":["","note","","","","",""],"Label176":"",)"));
    EXPECT_THAT(text, HasSubstr("\"Label133\":\"R2= 3 in\u00B2\",\"Label12\":\"\",\"SteelRecord\":true,"));
    EXPECT_THAT(text, testing::EndsWith(R"("Label194":"  Rb > 50!"},"bytes":4809})"));
}

struct TextRecordCase {
    std::string_view Kind;
    std::string Fields;
    std::string Bytes;
    std::string_view FirstRead;  // the beginning of what comes back, and a part of it
    std::string_view PartRead;
    std::string_view Loaded;
};

class TextRecordTest : public testing::TestWithParam<TextRecordCase> {};

TEST_P(TextRecordTest, IsWrittenAndReadByTheNamesOfItsCells)
{
    const TextRecordCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path("a");
    const std::string kind = R"(-record","kind":")" + std::string(c.Kind) + R"(","path":"PATH")";
    const std::string bytes = R"("bytes":)" + std::to_string(c.Bytes.size()) + "}";
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"write)" + kind + R"(,"fields":{)" + c.Fields + "}}", path)),
              R"({"status":"done","messages":[],)" + bytes);
    EXPECT_EQ(FirstDifference(FileBytes(path), c.Bytes), "");
    const std::string text = AnswerText(LineWith(R"({"task":"read)" + kind + "}", path));
    EXPECT_THAT(text,
                StartsWith(R"({"status":"done","messages":[{"kind":"alert","title":"Kordavan","text":")" +
                           std::string(c.Loaded)));
    EXPECT_THAT(text, HasSubstr(R"("fields":{)" + std::string(c.FirstRead)));
    EXPECT_THAT(text, HasSubstr(c.PartRead));
    EXPECT_THAT(text, testing::EndsWith("}," + bytes));
}

RecordBytes BlankText(std::size_t size, int tag)
{
    return RecordBytes(size).Short(0, tag).Blanks(2, size - 2);
}

INSTANTIATE_TEST_SUITE_P(
    Columns, TextRecordTest,
    testing::Values(
        TextRecordCase{"column",
                       R"("Label3":"Barn","Label84":"0.8 too long","SheathNote":"Sheathed",)"
                       R"("Sheathnote2":"D1","ReportNotes":["","note"])",
                       BlankText(1514, 777)
                           .Text(2, "Barn")
                           .Text(713, "0.8 to")
                           .Text(719, "Sheathed")
                           .Text(844, "D1")
                           .Text(1004, "note")
                           .All(),
                       R"("RecordTag":777,"Label3":"Barn","Label4":"",)",
                       R"("Label83":"","Label84":"0.8 to","SheathNote":"Sheathed","Sheathnote2":"D1",)"
                       R"("ReportNotes":["","note","","","","",""])",
                       "The column data you have loaded is text"},
        TextRecordCase{"steel-column", R"("Label10":"Pipe","Label82":"4.41","Label84":"OK")",
                       BlankText(1156, 888).Text(133, "Pipe").Text(543, "4.41").Text(555, "OK").All(),
                       R"("RecordTag":888,"Label3":"",)",
                       R"("Label82":"4.41","Label83":"","Label84":"OK","ReportNotes":["",)",
                       "The steel column data you have loaded is text"},
        TextRecordCase{
            "stud-column",
            R"("columnID":"S1","BegC":"1.23456","BreadthCombo":3,"DepthCombo":-1,"RepIBCCheck":"1")",
            BlankText(859, 889)
                .Text(67, "S1")
                .Text(140, "1.2345")
                .Short(178, 3)
                .Short(180, -1)
                .Text(263, "1")
                .All(),
            R"("RecordTag":889,"ColumnProj":"","ColumnDescription":"","columnID":"S1",)",
            R"("WindStudHt":"","BreadthCombo":3,"DepthCombo":-1,"WindStudSpacing":"",)",
            "The stud column data you have loaded may printed by selecting the Report Button."}));

TEST(WriteRecord, LeavesProductsBlankThatAreNotGiven)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a");
    AnswerText(LineWith(R"({"task":"write-record","kind":"scl","path":"PATH","fields":{"RecordTag":114,)"
                        R"("Products":[{},{"FcPerp":750}]}})",
                        path));
    EXPECT_EQ(FirstDifference(FileBytes(path), RecordBytes(244).Short(0, 114).Short(22, 750).All()), "");
}

struct WrongKindCase {
    std::string_view Kind;
    std::string Bytes;
    std::string_view Text;
};

class WrongKindTest : public testing::TestWithParam<WrongKindCase> {};

TEST_P(WrongKindTest, IsRefusedWithTheMessageOfLoading)
{
    const TemporaryFolder folder;
    PutFile(folder.Path("a"), GetParam().Bytes);
    const std::string message =
        R"({"kind":"refusal","title":"Kordavan","text":")" + std::string(GetParam().Text);
    const std::string text = AnswerText(
        LineWith(R"({"task":"read-record","kind":")" + std::string(GetParam().Kind) + R"(","path":"PATH"})",
                 folder.Path("a")));
    EXPECT_THAT(text, StartsWith(R"({"status":"refused","messages":[)" + message));
    EXPECT_THAT(text, HasSubstr(R"(],"refusal":)" + message));
    EXPECT_THAT(text, testing::Not(HasSubstr("fields")));
}

constexpr std::string_view NotCriteriaText =
    R"(The Beam Criteria for this form could not be loaded.  Please check to see if you selected the )"
    R"(appropriate file.\n\nBeam Criteria files have a default extension of *.CRI\n)"
    R"(Custom Value files have an extension of *.VAL\nColumn Data Records have an extension of *.COL\n)"
    R"(Beam Data Records have the default extension of *.DAT\n\n)"
    R"(You may have saved your data under a different filename or file type."})";

INSTANTIATE_TEST_SUITE_P(
    Files, WrongKindTest,
    testing::Values(
        WrongKindCase{"criteria", BlankDefaults(4321).All(), NotCriteriaText},
        WrongKindCase{"criteria", "", NotCriteriaText},
        WrongKindCase{"defaults", BlankCriteria(-2007).All(),
                      "A new Default Values file has been created for you.  You may set your "},
        WrongKindCase{"custom-values", CustomValuesBytes().Short(0, 1).All(),
                      "The selected file does not contain Kordavan Custom Values.  Please check "},
        WrongKindCase{"data-record", RecordBytes(4809).Short(0, 554).All(),
                      "The file you have selected does not contain a Kordavan Data Record.  "},
        WrongKindCase{"column", RecordBytes(1514).Short(0, 888).All(),
                      "The file you have selected does not contain a Kordavan Column Record.  "},
        WrongKindCase{"steel-column", RecordBytes(1514).Short(0, 777).All(),
                      "The file you have selected does not contain a Kordavan Steel Column Record.  "},
        WrongKindCase{"stud-column", "",
                      "The file you have selected does not contain a Kordavan Stud Column Record.  "},
        WrongKindCase{"scl", CustomSclBytes().All(),
                      "Kordavan23.LVL does not contain Kordavan SCL Values.  "},
        WrongKindCase{"scl-custom", SclBytes().All(),
                      "KordavanCustom.LVL does not contain Kordavan SCL Values.  "},
        WrongKindCase{"defaults", "", "A new Default Values file has been created for you.  "}));

TEST(ReadRecord, RefusesAFileThatCannotBeReadAndMakesNone)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("none.CRI");
    const std::string refusal =
        R"({"kind":"refusal","title":"Kordavan","text":"This file could not be read:\n    )" + path +
        R"(\nNo such file or directory"})";
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"read-record","kind":"criteria","path":"PATH"})", path)),
              R"({"status":"refused","messages":[)" + refusal + R"(],"refusal":)" + refusal + "}");
    EXPECT_EQ(folder.FileCount(), 0U);
}

TEST(WriteRecord, PutsTheFieldsOfCriteriaAtTheirPlaces)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.CRI");
    EXPECT_EQ(AnswerText(LineWith(
                  R"({"task":"write-record","id":"x","kind":"criteria","path":"PATH","fields":{)"
                  R"("Proj":"Caf\u00e9","Span":16.5,"MaxDefl":-180,"Combo1":42,"Rep":true,"Wet":false,)"
                  R"("PT":[1,2.5],"BEGP":[0,0.0001,3],"PAR":[],"ReportNotes":["","second"],)"
                  R"("Custom.Text1":"24000","Nds2018":true}})",
                  path)),
              R"({"id":"x","status":"done","messages":[],"bytes":1613})");
    RecordBytes expected = BlankCriteria(-2007);
    expected.Text(2, "Caf\xE9").Float(92, 16.5F).Short(100, -180).Short(104, 42).On(110);
    expected.Float(138, 1).Float(142, 2.5F).Text(274, "\x17\xB7\xD1\x38").Float(278, 3);
    expected.Text(789, "second").Text(1483, "2400").On(1611);
    EXPECT_EQ(FirstDifference(FileBytes(path), expected.All()), "");
    EXPECT_EQ(folder.FileCount(), 1U);
}

TEST(WriteRecord, PutsTheFieldsOfTheDefaultsAtTheirPlaces)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.ini");
    EXPECT_EQ(
        AnswerText(LineWith(R"({"task":"write-record","kind":"defaults","path":"PATH","fields":{)"
                            R"("DefHead2":"two","DefInitials":"ABCDEFGHIJ","DefCombo":9,"Livedefault":[40],)"
                            R"("TotalLoadDefault":[1,2,3,4,5],"CenterFormCheckbox":1}})",
                            path)),
        R"({"status":"done","messages":[],"bytes":322})");
    RecordBytes expected = BlankDefaults(4321);
    expected.Text(112, "two").Text(222, "ABCDEFGH").Short(232, 9).Float(266, 40);
    expected.Float(286, 1).Float(290, 2).Float(294, 3).Float(298, 4).Float(302, 5).Short(318, 1);
    EXPECT_EQ(FirstDifference(FileBytes(path), expected.All()), "");
}

TEST(WriteRecord, TakesATagAmongTheFields)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.CRI");
    EXPECT_EQ(
        AnswerText(LineWith(
            R"({"task":"write-record","kind":"criteria","path":"PATH","fields":{"RecordTag":-12}})", path)),
        R"({"status":"done","messages":[],"bytes":1613})");
    EXPECT_EQ(FirstDifference(FileBytes(path), BlankCriteria(-12).All()), "");
}

TEST(WriteRecord, KeepsWhatStandsBehindTheRecord)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.ini");
    PutFile(path, std::string(322, 'x') + "tail");
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"write-record","kind":"defaults","path":"PATH"})", path)),
              R"({"status":"done","messages":[],"bytes":326})");
    EXPECT_EQ(FirstDifference(FileBytes(path), BlankDefaults(4321).All() + "tail"), "");
}

TEST(WriteRecord, RefusesWhereNoFileCanBeWritten)
{
    const TemporaryFolder folder;
    const std::string path = folder.Path("gone/a.CRI");
    const std::string refusal =
        R"({"kind":"refusal","title":"Kordavan","text":"This file could not be saved; what stood in it is )"
        R"(unchanged:\n    )" +
        path + R"(\nNo such file or directory"})";
    EXPECT_EQ(AnswerText(LineWith(R"({"task":"write-record","kind":"criteria","path":"PATH"})", path)),
              R"({"status":"refused","messages":[)" + refusal + R"(],"refusal":)" + refusal + "}");
    EXPECT_EQ(folder.FileCount(), 0U);
}

struct InvalidRecordCase {
    std::string_view Line;
    std::string_view Error;
};

class InvalidRecordTaskTest : public testing::TestWithParam<InvalidRecordCase> {};

TEST_P(InvalidRecordTaskTest, SaysWhatIsWrongAndTouchesNothing)
{
    const TemporaryFolder folder;
    std::string line(GetParam().Line);
    if (line.find("PATH") != std::string::npos) {
        line = LineWith(line, folder.Path("a.CRI"));
    }
    EXPECT_EQ(AnswerText(line), R"({"status":"invalid","error":")" + std::string(GetParam().Error) + R"("})");
    EXPECT_EQ(folder.FileCount(), 0U);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, InvalidRecordTaskTest,
    testing::Values(
        InvalidRecordCase{R"({"task":"read-record","path":"PATH"})", "kind: missing"},
        InvalidRecordCase{R"({"task":"read-record","kind":"columns","path":"PATH"})",
                          "kind: no such kind of record"},
        InvalidRecordCase{R"({"task":"read-record","kind":7,"path":"PATH"})", "kind: a text is expected"},
        InvalidRecordCase{R"({"task":"read-record","kind":"criteria"})", "path: missing"},
        InvalidRecordCase{R"({"task":"read-record","kind":"criteria","path":["PATH"]})",
                          "path: a text is expected"},
        InvalidRecordCase{R"({"task":"read-record","kind":"criteria","path":"PATH","fields":{}})",
                          "fields: no such field in this task"},
        InvalidRecordCase{R"({"task":"read-record","kind":"scl","path":"PATH","edition":"1999"})",
                          R"(edition: \"1997\", \"2001\", \"2005\", \"2012\", \"2015\" or \"2018\" )"
                          R"(is expected)"},
        InvalidRecordCase{R"({"task":"write-record","path":"PATH"})", "kind: missing"},
        InvalidRecordCase{R"({"task":"write-record","kind":"Criteria","path":"PATH"})",
                          "kind: no such kind of record"},
        InvalidRecordCase{R"({"task":"write-record","kind":"criteria"})", "path: missing"},
        InvalidRecordCase{R"({"task":"write-record","kind":"criteria","path":"PATH","field":{}})",
                          "field: no such field in this task"}));

struct InvalidFieldCase {
    std::string_view Kind;
    std::string_view Fields;
    std::string_view Error;
};

class InvalidRecordFieldTest : public testing::TestWithParam<InvalidFieldCase> {};

TEST_P(InvalidRecordFieldTest, LeavesTheOldFile)
{
    const InvalidFieldCase& c = GetParam();
    const TemporaryFolder folder;
    const std::string path = folder.Path("a");
    PutFile(path, "old");
    const std::string line = R"({"task":"write-record","kind":")" + std::string(c.Kind) +
                             R"(","path":"PATH","fields":)" + std::string(c.Fields) + "}";
    EXPECT_EQ(AnswerText(LineWith(line, path)),
              R"({"status":"invalid","error":")" + std::string(c.Error) + R"("})");
    EXPECT_EQ(FileBytes(path), "old");
    EXPECT_EQ(folder.FileCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Fields, InvalidRecordFieldTest,
    testing::Values(
        InvalidFieldCase{"criteria", R"([])", "fields: an object is expected"},
        InvalidFieldCase{"custom-post", R"({"Fc":32768})",
                         "fields.Fc: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"criteria", R"({"Spam":1})", "fields.Spam: no such field"},
        InvalidFieldCase{"criteria", R"({"":1})", "fields.: no such field"},
        InvalidFieldCase{"criteria", R"({"DefCombo":1})", "fields.DefCombo: no such field"},
        InvalidFieldCase{"defaults", R"({"Span":1})", "fields.Span: no such field"},
        InvalidFieldCase{"criteria", R"({"Proj":1})", "fields.Proj: a text is expected"},
        InvalidFieldCase{"criteria", R"({"Wet":1})", "fields.Wet: true or false is expected"},
        InvalidFieldCase{"criteria", R"({"Span":"12"})",
                         "fields.Span: a number that a 32-bit float can hold is expected"},
        InvalidFieldCase{"criteria", R"({"Span":1e39})",
                         "fields.Span: a number that a 32-bit float can hold is expected"},
        InvalidFieldCase{"criteria", R"({"PT":5})", "fields.PT: an array is expected"},
        InvalidFieldCase{"criteria", R"({"PT":[1,2,3,4,5,6,7]})", "fields.PT: at most 6 items are expected"},
        InvalidFieldCase{"criteria", R"({"PAR":[1,2,3,4,5,6]})", "fields.PAR: at most 5 items are expected"},
        InvalidFieldCase{"criteria", R"({"PT":[1,null]})",
                         "fields.PT[1]: a number that a 32-bit float can hold is expected"},
        InvalidFieldCase{"criteria", R"({"ReportNotes":["","","","","","","",""]})",
                         "fields.ReportNotes: at most 7 items are expected"},
        InvalidFieldCase{"criteria", R"({"ReportNotes":["",2]})",
                         "fields.ReportNotes[1]: a text is expected"},
        InvalidFieldCase{"criteria", R"({"MaxDefl":240.5})",
                         "fields.MaxDefl: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"criteria", R"({"MaxDefl":32768})",
                         "fields.MaxDefl: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"criteria", R"({"RecordTag":-32769})",
                         "fields.RecordTag: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"data-record", R"({"Label51":"x"})", "fields.Label51: no such field"},
        InvalidFieldCase{"data-record", R"({"Label13":38.92})", "fields.Label13: a text is expected"},
        InvalidFieldCase{"column", R"({"Label1":"x"})", "fields.Label1: no such field"},
        InvalidFieldCase{"steel-column", R"({"SheathNote":"x"})", "fields.SheathNote: no such field"},
        InvalidFieldCase{"stud-column", R"({"BreadthCombo":"2x"})",
                         "fields.BreadthCombo: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"custom-values", R"({"SPG":true})", "fields.SPG: no such field"},
        InvalidFieldCase{"custom-values", R"({"Fb":"2400"})",
                         "fields.Fb: a number that a 32-bit float can hold is expected"},
        InvalidFieldCase{"scl", R"({"Products":{}})", "fields.Products: an array is expected"},
        InvalidFieldCase{"scl-custom", R"({"Products":[{},{},{}]})",
                         "fields.Products: at most 2 items are expected"},
        InvalidFieldCase{"scl", R"({"Products":[{},5]})", "fields.Products[1]: an object is expected"},
        InvalidFieldCase{"scl", R"({"Products":[{"Name":""}]})", "fields.Products[0].Name: no such field"},
        InvalidFieldCase{"scl", R"({"Products":[{},{"Fv":285.5}]})",
                         "fields.Products[1].Fv: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"scl-custom", R"({"Products":[{"Exponent":1e39}]})",
                         "fields.Products[0].Exponent: a number that a 32-bit float can hold is expected"},
        InvalidFieldCase{
            "scl",
            R"({"Products":[{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},{},)"
            R"({},{},{},{},{},{"E":2}]})",
            "fields.Products[24]: zeros are expected, as this record does not hold these values"},
        InvalidFieldCase{"defaults", R"({"CenterFormCheckbox":true})",
                         "fields.CenterFormCheckbox: a whole number from -32768 to 32767 is expected"},
        InvalidFieldCase{"defaults", R"({"Livedefault":[0,0,0,0,-1e39]})",
                         "fields.Livedefault[4]: a number that a 32-bit float can hold is expected"}));

}  // namespace
}  // namespace kordavan
