// What the lines of an item's files mean.
#include "itemdlg/TemplateText.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "itemdlg/BlockTracker.h"
#include "tests/unit/support/FailingMemory.h"

using namespace tavrin::itemdlg;

namespace {

// A lookup in a fixed table that records the requested numbers.
class CTexts {
public:
    TextLookup Lookup() {
        return [this](unsigned id) {
            asked.push_back(id);
            const auto found = m_texts.find(id);
            return found != m_texts.end() ? found->second : std::wstring();
        };
    }
    std::vector<unsigned> asked;

private:
    std::map<unsigned, std::wstring> m_texts = {{1501, L"Width"},  {1502, L"Height"},   {1503, L"Number"},
                                                {2001, L"A door"}, {5, L"Five"},        {7, L"Seven"},
                                                {8, L"Percent%"},  {65535, L"Last one"}};
};

std::optional<ParameterRow> Read(const std::wstring& line, double scale = 1.0, int mode = 0) {
    CTexts texts;
    return ReadParameter(line, 3, scale, mode, texts.Lookup());
}

std::wstring LabelOf(const std::wstring& line) {
    const std::optional<ParameterRow> row = Read(line);
    EXPECT_TRUE(row.has_value()) << line;
    return row ? row->record.label : L"no parameter";
}

ParamRecord RecordOf(const std::wstring& line, double scale = 1.0) {
    const std::optional<ParameterRow> row = Read(line, scale);
    EXPECT_TRUE(row.has_value()) << line;
    return row ? row->record : ParamRecord();
}

// The indices of the lines that may hold a parameter.
std::vector<std::size_t> LinesInBlocks(const std::vector<std::wstring>& lines) {
    CBlockTracker block;
    std::vector<std::size_t> inside;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (block.TakeLine(lines[index])) {
            inside.push_back(index);
        }
    }
    return inside;
}

}  // namespace

TEST(BlockTracker, FindsTheLinesBetweenVarAndEndVar) {
    EXPECT_EQ(LinesInBlocks({L"", L"title", L"VAR", L"a", L"b", L"END_VAR", L"c"}),
              (std::vector<std::size_t>{3, 4}));
    EXPECT_TRUE(LinesInBlocks({L"a", L"b", L"END_VAR", L"c"}).empty());
    EXPECT_TRUE(LinesInBlocks({}).empty());
}

TEST(BlockTracker, SaysWhetherABlockIsOpen) {
    CBlockTracker block;
    EXPECT_FALSE(block.IsOpen());
    block.TakeLine(CBlockTracker::kOpeningLine);
    EXPECT_TRUE(block.IsOpen());
    block.TakeLine(L"x");
    EXPECT_TRUE(block.IsOpen());
    block.TakeLine(CBlockTracker::kClosingLine);
    EXPECT_FALSE(block.IsOpen());
}

TEST(BlockTracker, TakesSeveralBlocks) {
    EXPECT_EQ(LinesInBlocks({L"VAR", L"a", L"END_VAR", L"b", L"VAR", L"c", L"END_VAR", L"END_VAR", L"d"}),
              (std::vector<std::size_t>{1, 5}));
}

TEST(BlockTracker, TakesVarInAnOpenBlockAsAnOrdinaryLine) {
    EXPECT_EQ(LinesInBlocks({L"VAR", L"VAR", L"a", L"END_VAR", L"b"}), (std::vector<std::size_t>{1, 2}));
}

TEST(BlockTracker, LeavesTheLastBlockOpenWithoutEndVar) {
    EXPECT_EQ(LinesInBlocks({L"VAR", L"a", L"b"}), (std::vector<std::size_t>{1, 2}));
}

TEST(BlockTracker, ComparesWholeLinesAndTheirCase) {
    for (const std::wstring& line : {std::wstring(L" VAR"), std::wstring(L"VAR "), std::wstring(L"var"),
                                     std::wstring(L"VAR\0", 4), std::wstring(L"VAR\r")}) {
        EXPECT_TRUE(LinesInBlocks({line, L"a"}).empty());
    }
    for (const std::wstring& line : {std::wstring(L" END_VAR"), std::wstring(L"END_VAR "),
                                     std::wstring(L"end_var"), std::wstring(L"END_VAR\0x", 9)}) {
        EXPECT_EQ(LinesInBlocks({L"VAR", line, L"a"}), (std::vector<std::size_t>{1, 2}));
    }
}

TEST(ParameterLine, HasFourParts) {
    const std::optional<ParameterLine> parameter = ParseParameterLine(L"$3 = \"Leaves: <<1503>>\"I 2");
    ASSERT_TRUE(parameter.has_value());
    EXPECT_EQ(parameter->number, L"3");
    EXPECT_EQ(parameter->label, L"Leaves: <<1503>>");
    EXPECT_EQ(parameter->typeLetter, L'I');
    EXPECT_EQ(parameter->value, L" 2");
}

TEST(ParameterLine, NeedsNoBlanksAndNoNumber) {
    EXPECT_TRUE(ParseParameterLine(L"$7=\"Width\"R5").has_value());
    EXPECT_EQ(ParseParameterLine(L"$ = \"Width\"R 5")->number, L"");
}

TEST(ParameterLine, IsNotALineOfAnotherForm) {
    for (const wchar_t* line : {L"$5 = \"Angle\"x 15", L" $5 = \"Angle\"R 15", L"VAR", L"", L"#1 = 900",
                                L"$1 = 900", L"$1 = \"Angle\" R 15", L"; $1 = \"a\"R1", L"$1\t=\"a\"R1"}) {
        EXPECT_FALSE(ParseParameterLine(line).has_value()) << line;
    }
}

TEST(ParameterLine, IsSeenUpToItsFirstNull) {
    const std::optional<ParameterLine> parameter =
        ParseParameterLine(std::wstring(L"$1 = \"a\"R5\0006\"I7", 15));
    ASSERT_TRUE(parameter.has_value());
    EXPECT_EQ(parameter->value, L"5");
    EXPECT_FALSE(ParseParameterLine(std::wstring(L"\0$1 = \"a\"R5", 11)).has_value());
}

TEST(PlaceholderNumber, IsTheLastOneOfTheText) {
    EXPECT_EQ(PlaceholderNumber(L"<<2001>>"), 2001);
    EXPECT_EQ(PlaceholderNumber(L"Size <<4>> and <<17>>!"), 17);
    EXPECT_EQ(PlaceholderNumber(L"<<0012>>"), 12);
}

TEST(PlaceholderNumber, IsZeroWithoutANumber) {
    for (const wchar_t* text : {L"", L"Width", L"<<>>", L"<<0>>", L"<<4a>>", L"<< 4>>", L"<4>", L">>4<<"}) {
        EXPECT_EQ(PlaceholderNumber(text), 0) << text;
    }
    EXPECT_EQ(PlaceholderNumber(L"<<4>> <<0>>"), 0) << "the last one counts";
}

TEST(PlaceholderNumber, StaysWithinTheRangeOfInt) {
    EXPECT_EQ(PlaceholderNumber(L"<<4294967297>>"), 2147483647);
    EXPECT_EQ(PlaceholderNumber(L"<<" + std::wstring(100000, L'9') + L">>"), 2147483647);
}

TEST(ResourceText, IsEmptyForNumbersThatNameNoText) {
    CTexts texts;
    for (int number : {0, -1, 65536, 65537 + 5, 2147483647, -2147483647}) {
        EXPECT_EQ(ResourceText(number, texts.Lookup()), L"");
    }
    EXPECT_TRUE(texts.asked.empty());
    EXPECT_EQ(ResourceText(65535, texts.Lookup()), L"Last one");
    EXPECT_EQ(ResourceText(5, texts.Lookup()), L"Five");
}

TEST(TitleText, IsTheLineOrTheTextThatItNames) {
    CTexts texts;
    EXPECT_EQ(TitleText(L"A window", texts.Lookup()), L"A window");
    EXPECT_EQ(TitleText(L"", texts.Lookup()), L"");
    EXPECT_EQ(TitleText(L"<<0>>", texts.Lookup()), L"<<0>>");
    EXPECT_TRUE(texts.asked.empty());
    EXPECT_EQ(TitleText(L"before <<2001>> behind", texts.Lookup()), L"A door")
        << "the whole line is replaced";
    EXPECT_EQ(TitleText(L"<<1>>", texts.Lookup()), L"") << "a text that is missing";
    EXPECT_EQ(TitleText(L"<<99999999999>>", texts.Lookup()), L"") << "a number that is too large";
}

TEST(LabelPrefix, IsWhatStandsBeforeTheFirstOpeningSigns) {
    EXPECT_EQ(LabelPrefix(L"Leaves: <<1503>> each"), L"Leaves: ");
    EXPECT_EQ(LabelPrefix(L"a<<b<<5>>"), L"a");
    EXPECT_EQ(LabelPrefix(L"<<5>>"), L"");
    EXPECT_EQ(LabelPrefix(L"Width"), L"");
    EXPECT_EQ(LabelPrefix(L""), L"");
}

TEST(LabelSuffix, IsWhatStandsBehindTheFirstClosingSigns) {
    EXPECT_EQ(LabelSuffix(L"Leaves: <<1503>> each"), L" each");
    EXPECT_EQ(LabelSuffix(L"<<5>>"), L"");
    EXPECT_EQ(LabelSuffix(L"a>>b<<5>>c"), L"b<<5>>c");
    EXPECT_EQ(LabelSuffix(L">>"), L"");
}

TEST(LabelSuffix, WithoutClosingSignsIsTheLabelWithoutItsFirstCharacter) {
    EXPECT_EQ(LabelSuffix(L"Frame depth"), L"rame depth");
    EXPECT_EQ(LabelSuffix(L"<<5"), L"<5");
    EXPECT_EQ(LabelSuffix(L"x"), L"");
    EXPECT_EQ(LabelSuffix(L""), L"");
}

TEST(ReadOnlyMark, IsAPercentSignAtTheEnd) {
    std::wstring label = L"Width%";
    EXPECT_TRUE(TakeReadOnlyMark(label));
    EXPECT_EQ(label, L"Width");
    EXPECT_FALSE(TakeReadOnlyMark(label));
    EXPECT_EQ(label, L"Width");
    label = L"50%%";
    EXPECT_TRUE(TakeReadOnlyMark(label));
    EXPECT_EQ(label, L"50%") << "one of them is the mark";
    label = L"";
    EXPECT_FALSE(TakeReadOnlyMark(label));
}

TEST(ReadParameter, FillsTheRecordOfADistance) {
    const std::optional<ParameterRow> row = Read(L"$1 = \"<<1501>>\"D 900");
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(row->record.number, L"1");
    EXPECT_EQ(row->record.lineIndex, 3);
    EXPECT_EQ(row->record.label, L"Width");
    EXPECT_EQ(row->record.labelPrefix, L"");
    EXPECT_EQ(row->record.labelSuffix, L"");
    EXPECT_EQ(row->record.resourceId, 1501);
    EXPECT_EQ(row->record.realValue, 900.0);
    EXPECT_EQ(row->record.intValue, 0);
    EXPECT_EQ(row->record.type, 'D');
    EXPECT_EQ(row->record.customItem, nullptr);
    EXPECT_EQ(row->record.itemId, ParamRecord::kNoItem);
    EXPECT_TRUE(row->editable);
}

TEST(ReadParameter, FillsTheRecordOfAWholeNumber) {
    const ParamRecord record = RecordOf(L"$3 = \"Leaves: <<1503>>\"I 2");
    EXPECT_EQ(record.label, L"Leaves: Number");
    EXPECT_EQ(record.labelPrefix, L"Leaves: ");
    EXPECT_EQ(record.resourceId, 1503);
    EXPECT_EQ(record.intValue, 2);
    EXPECT_EQ(record.realValue, 0.0);
    EXPECT_EQ(record.type, 'I');
}

TEST(ReadParameter, FillsTheRecordOfARealNumber) {
    const ParamRecord record = RecordOf(L"$4 = \"Frame depth\"R 0.08");
    EXPECT_EQ(record.label, L"Frame depth");
    EXPECT_EQ(record.realValue, 0.08);
    EXPECT_EQ(record.intValue, 0);
    EXPECT_EQ(record.type, 'R');
}

TEST(ReadParameter, OfAnotherLineGivesNothing) {
    EXPECT_FALSE(Read(L"$5 = \"Angle\"x 15").has_value());
    EXPECT_FALSE(Read(L"VAR").has_value());
    EXPECT_FALSE(Read(L"").has_value());
}

TEST(ReadParameter, ScalesDistancesAndRealsButNotWholeNumbers) {
    EXPECT_EQ(RecordOf(L"$1 = \"a\"D 0.9", 1000.0).realValue, 900.0);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"R 0.5", 1000.0).realValue, 500.0);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I 3", 1000.0).intValue, 3);
}

TEST(ReadParameter, TakesTheWholeNumberNotAboveTheValue) {
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I 2.9").intValue, 2);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I -2.1").intValue, -3);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I 99999999999").intValue, 2147483647);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I -1e300").intValue, -2147483647 - 1);
}

TEST(ReadParameter, TakesAValueWithoutANumberAsZero) {
    EXPECT_EQ(RecordOf(L"$1 = \"a\"I wide").intValue, 0);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"D wide").realValue, 0.0);
    EXPECT_EQ(RecordOf(L"$1 = \"a\"R").realValue, 0.0);
}

TEST(ReadParameter, GivesSmallTypeLettersTheInvalidTypeAndNoValue) {
    for (const wchar_t* line : {L"$7 = \"Width\"d 10", L"$7 = \"Width\"i 10", L"$7 = \"Width\"r 10"}) {
        const ParamRecord record = RecordOf(line);
        EXPECT_EQ(record.type, 'U') << line;
        EXPECT_EQ(record.realValue, 0.0);
        EXPECT_EQ(record.intValue, 0);
        EXPECT_EQ(record.number, L"7");
        EXPECT_EQ(record.label, L"Width");
        EXPECT_EQ(record.itemId, ParamRecord::kNoItem);
    }
}

TEST(ReadParameter, MakesAMarkedRowReadOnlyInModeOneOnly) {
    const std::optional<ParameterRow> readOnly = Read(L"$2 = \"<<1502>>%\"D 2100", 1.0, kReadOnlyMode);
    ASSERT_TRUE(readOnly.has_value());
    EXPECT_FALSE(readOnly->editable);
    EXPECT_EQ(readOnly->record.label, L"Height");
    EXPECT_EQ(readOnly->record.labelSuffix, L"%") << "so that it is written back";
    for (int mode : {0, 2, -1}) {
        const std::optional<ParameterRow> editable = Read(L"$2 = \"<<1502>>%\"D 2100", 1.0, mode);
        ASSERT_TRUE(editable.has_value());
        EXPECT_TRUE(editable->editable) << mode;
        EXPECT_EQ(editable->record.label, L"Height");
    }
    EXPECT_TRUE(Read(L"$2 = \"<<1502>>\"D 2100", 1.0, kReadOnlyMode)->editable);
}

TEST(ReadParameter, LooksForTheMarkInTheFinishedLabel) {
    const std::optional<ParameterRow> row = Read(L"$2 = \"<<8>>\"D 2100", 1.0, kReadOnlyMode);
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(row->record.label, L"Percent") << "the text itself ends in the mark";
    EXPECT_FALSE(row->editable);
}

TEST(ReadParameter, KeepsALabelWithoutPlaceholderAndGivesItNoNumber) {
    const ParamRecord record = RecordOf(L"$4 = \"Frame depth\"R 0.08");
    EXPECT_EQ(record.resourceId, 0);
    EXPECT_EQ(record.labelPrefix, L"");
    EXPECT_EQ(record.labelSuffix, L"rame depth");
    EXPECT_EQ(RecordOf(L"$4 = \"a\"R <<7>>").resourceId, 0) << "not even when the value holds one";
}

TEST(ReadParameter, TakesTheNumberFromTheWholeLine) {
    const ParamRecord record = RecordOf(L"$1 = \"<<5>>\"D 1 <<7>>");
    EXPECT_EQ(record.label, L"Five");
    EXPECT_EQ(record.resourceId, 7);
    EXPECT_EQ(RecordOf(L"$1 = \"<<5>>\"D <<0>>").resourceId, 0);
}

TEST(ReadParameter, PutsTheTextBetweenPrefixAndSuffixOnly) {
    EXPECT_EQ(LabelOf(L"$1 = \"a <<5>> b\"D 1"), L"a Five b");
    EXPECT_EQ(LabelOf(L"$1 = \"<<5>> and <<7>>\"D 1"), L"Seven and <<7>>")
        << "the last number, the first signs";
    EXPECT_EQ(LabelOf(L"$1 = \">>a<<5>>b\"D 1"), L">>aFivea<<5>>b");
    EXPECT_EQ(LabelOf(L"$1 = \"<<x>>y<<5>>\"D 1"), L"Fivey<<5>>");
    EXPECT_EQ(LabelOf(L"$1 = \"<<0>>\"D 1"), L"<<0>>");
}

TEST(ReadParameter, LeavesAMissingTextEmpty) {
    EXPECT_EQ(LabelOf(L"$1 = \"a<<9>>b\"D 1"), L"ab");
    EXPECT_EQ(LabelOf(L"$1 = \"a<<65541>>b\"D 1"), L"ab") << "not text 5, as if the number were cut off";
    EXPECT_EQ(LabelOf(L"$1 = \"a<<99999999999>>b\"D 1"), L"ab");
}

TEST(ReadParameter, AsksForEachTextAgain) {
    CTexts texts;
    TitleText(L"<<1501>>", texts.Lookup());
    ReadParameter(L"$1 = \"<<1501>>\"D 1", 3, 1.0, 0, texts.Lookup());
    EXPECT_EQ(texts.asked, (std::vector<unsigned>{1501, 1501}));
}

TEST(ReadParameter, TakesAnEmptyLabelAsNotMarked) {
    const std::optional<ParameterRow> row = Read(L"$1 = \"\"D 1", 1.0, kReadOnlyMode);
    ASSERT_TRUE(row.has_value());
    EXPECT_EQ(row->record.label, L"");
    EXPECT_EQ(row->record.labelSuffix, L"");
    EXPECT_TRUE(row->editable);
}

TEST(ReadParameter, ReadsALineOfAMegabyte) {
    const std::wstring label(500000, L'"');
    const std::wstring value(500000, L'7');
    const ParamRecord record = RecordOf(L"$1 = \"" + label + L"\"I" + value);
    EXPECT_TRUE(record.label == label);
    EXPECT_EQ(record.intValue, 2147483647);
}

TEST(TemplateText, ReportsAFailingAllocationAndRecovers) {
    const std::wstring line =
        L"$1 = \"<<1501>> and a rather long label behind it\"D 900 and a rather long value";
    bool failed = true;
    for (std::size_t allocations = 0; failed; ++allocations) {
        bool reported = false;
        bool recognized = false;
        {
            const CFailingMemory memory(allocations);
            try {
                recognized = ParseParameterLine(line).has_value() && PlaceholderNumber(line) == 1501;
            } catch (const std::bad_alloc&) {
                reported = true;
            }
            failed = memory.HasFailed();
        }
        EXPECT_EQ(recognized, !failed);
        EXPECT_EQ(reported, failed);
        EXPECT_EQ(ParseParameterLine(line)->number, L"1");
        EXPECT_EQ(PlaceholderNumber(line), 1501);
    }
}
