// Writing values back into an item's files.
#include "itemdlg/TemplateRewrite.h"

#include <gtest/gtest.h>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/TemplateText.h"

using namespace tavrin::itemdlg;

namespace {

std::wstring NoTexts(unsigned) {
    return L"text";
}

// The records of the parameters of a file, as the item dialog reads them.
ParamRecordMap ReadAll(const TextLines& lines, double scale = 1.0) {
    ParamRecordMap records;
    CBlockTracker block;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (block.TakeLine(lines[index])) {
            const auto lineIndex = static_cast<std::int32_t>(index);
            if (const auto row = ReadParameter(lines[index], lineIndex, scale, 0, NoTexts)) {
                records[lineIndex] = row->record;
            }
        }
    }
    return records;
}

ValueTextOf ValuesAt(double scale) {
    return [scale](const ParamRecord& record) { return ValueText(record, scale); };
}

ParamRecord Record(wchar_t type, const std::wstring& number = L"1") {
    ParamRecord record;
    record.type = type;
    record.number = number;
    return record;
}

const TextLines kDoor = {L"free text for the LISP side",
                         L"<<2001>>",
                         L"VAR",
                         L"$1 = \"<<1501>>\"D 900",
                         L"$2 = \"<<1502>>%\"D 2100",
                         L"$3 = \"Leaves: <<1503>>\"I 2",
                         L"$4 = \"Frame depth\"R 0.08",
                         L"$5 = \"Angle\"x 15",
                         L"END_VAR",
                         L"$6 = \"Outside\"R 1"};

}  // namespace

TEST(ValueText, IsTheValueWithoutTheScale) {
    ParamRecord record = Record(L'D');
    record.realValue = 900.0;
    EXPECT_EQ(ValueText(record, 1.0), L"900");
    EXPECT_EQ(ValueText(record, 1000.0), L"0.9");
    record.type = 'R';
    record.realValue = 1234567.891;
    EXPECT_EQ(ValueText(record, 1.0), L"1.23457e+06");
    record.realValue = 0.0000001;
    EXPECT_EQ(ValueText(record, 1.0), L"1e-07");
}

TEST(ValueText, OfAWholeNumberIsNeverScaled) {
    ParamRecord record = Record(L'I');
    record.intValue = 1234567;
    EXPECT_EQ(ValueText(record, 1000.0), L"1234567");
    record.intValue = -3;
    EXPECT_EQ(ValueText(record, 0.001), L"-3");
}

TEST(ValueText, OfAnInvalidTypeIsEmpty) {
    EXPECT_EQ(ValueText(Record(L'U'), 1.0), L"");
}

TEST(WorkingFileLine, MarksWholeNumbersWithADollarSignAndOthersWithAHash) {
    EXPECT_EQ(WorkingFileLine(Record(L'I', L"3"), L"2"), L"$3 = 2");
    EXPECT_EQ(WorkingFileLine(Record(L'D', L"1"), L"900"), L"#1 = 900");
    EXPECT_EQ(WorkingFileLine(Record(L'R', L"01"), L"0.5"), L"#01 = 0.5");
    EXPECT_EQ(WorkingFileLine(Record(L'U', L"7"), L""), L"#7 = ");
    EXPECT_EQ(WorkingFileLine(Record(L'I', L""), L"2"), L"$ = 2");
}

TEST(TemplateFileLine, PutsTheLabelTogetherAroundAPlaceholder) {
    ParamRecord record = Record(L'D');
    record.resourceId = 1501;
    EXPECT_EQ(TemplateFileLine(record, L"900"), L"$1 = \"<<1501>>\"D900");
    record.labelPrefix = L"Leaves: ";
    record.labelSuffix = L" each%";
    record.type = 'I';
    EXPECT_EQ(TemplateFileLine(record, L"2"), L"$1 = \"Leaves: <<1501>> each%\"I2");
    record.type = 'R';
    EXPECT_EQ(TemplateFileLine(record, L"0.5"), L"$1 = \"Leaves: <<1501>> each%\"R0.5");
}

TEST(RewriteWorkingFile, ReplacesParametersByAssignments) {
    TextLines lines = {L"",         L"title", L"VAR", L"$1 = \"<<1501>>\"D 900", L"$3 = \"<<1503>>\"I 2",
                       L"free line"};
    RewriteWorkingFile(lines, ReadAll(lines), ValuesAt(1.0));
    EXPECT_EQ(lines, (TextLines{L"", L"title", L"VAR", L"#1 = 900", L"$3 = 2", L"free line"}));
}

TEST(RewriteWorkingFile, KeepsEveryOtherLine) {
    TextLines lines = kDoor;
    RewriteWorkingFile(lines, ReadAll(kDoor), ValuesAt(1.0));
    EXPECT_EQ(lines, (TextLines{kDoor[0], kDoor[1], kDoor[2], L"#1 = 900", L"#2 = 2100", L"$3 = 2",
                                L"#4 = 0.08", kDoor[7], kDoor[8], kDoor[9]}));
}

TEST(RewriteWorkingFile, WritesUnscaledValues) {
    TextLines lines = {L"VAR", L"$1 = \"a\"D 0.9"};
    const ParamRecordMap records = ReadAll(lines, 1000.0);
    EXPECT_EQ(records.at(1).realValue, 900.0);
    RewriteWorkingFile(lines, records, ValuesAt(1000.0));
    EXPECT_EQ(lines[1], L"#1 = 0.9");
}

TEST(RewriteWorkingFile, AssignsNothingToAnInvalidTypeAndDoesNotAskForItsValue) {
    TextLines lines = {L"VAR", L"$7 = \"Width\"d 10"};
    RewriteWorkingFile(lines, ReadAll(lines), [](const ParamRecord&) -> std::wstring {
        ADD_FAILURE() << "asked";
        return L"10";
    });
    EXPECT_EQ(lines[1], L"#7 = ");
}

TEST(RewriteWorkingFile, GoesByTheLineIndexAlone) {
    const ParamRecordMap records = ReadAll(kDoor);
    TextLines lines = {L"0", L"1", L"2", L"3", L"4"};
    int asked = 0;
    RewriteWorkingFile(lines, records, [&asked](const ParamRecord& record) {
        ++asked;
        return ValueText(record, 1.0);
    });
    EXPECT_EQ(lines, (TextLines{L"0", L"1", L"2", L"#1 = 900", L"#2 = 2100"}));
    EXPECT_EQ(asked, 2) << "records beyond the end of the file are left out";
}

TEST(RewriteWorkingFile, OfAnEmptyFileLeavesItEmpty) {
    TextLines lines;
    RewriteWorkingFile(lines, ReadAll(kDoor), ValuesAt(1.0));
    EXPECT_TRUE(lines.empty());
}

TEST(RewriteTemplateFile, RebuildsParametersWithTheNewValues) {
    ParamRecordMap records = ReadAll(kDoor);
    records.at(3).realValue = 950.0;
    records.at(5).intValue = 4;
    TextLines lines = kDoor;
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines, (TextLines{kDoor[0], kDoor[1], kDoor[2], L"$1 = \"<<1501>>\"D950",
                                L"$2 = \"<<1502>>%\"D2100", L"$3 = \"Leaves: <<1503>>\"I4",
                                L"$4 = \"<<0>>rame depth\"R0.08", kDoor[7], kDoor[8], kDoor[9]}));
}

TEST(RewriteTemplateFile, WritesUnscaledValues) {
    TextLines lines = {L"VAR", L"$1 = \"<<1501>>\"D 0.9"};
    RewriteTemplateFile(lines, ReadAll(lines, 1000.0), ValuesAt(1000.0));
    EXPECT_EQ(lines[1], L"$1 = \"<<1501>>\"D0.9");
}

TEST(RewriteTemplateFile, WritesWhatCanBeReadAgain) {
    TextLines lines = kDoor;
    RewriteTemplateFile(lines, ReadAll(kDoor), ValuesAt(1.0));
    const TextLines once = lines;
    RewriteTemplateFile(lines, ReadAll(once), ValuesAt(1.0));
    for (std::size_t index : {3u, 4u, 5u}) {
        EXPECT_EQ(lines[index], once[index]);
    }
}

TEST(RewriteTemplateFile, FindsParametersByTheirNumber) {
    const ParamRecordMap records = ReadAll(kDoor);
    TextLines lines = {L"VAR", L"$3 = \"x\"I 0", L"END_VAR", L"VAR", L"a", L"$1 = \"y\"R 0", L"END_VAR"};
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines, (TextLines{L"VAR", L"$3 = \"Leaves: <<1503>>\"I2", L"END_VAR", L"VAR", L"a",
                                L"$1 = \"<<1501>>\"D900", L"END_VAR"}));
}

TEST(RewriteTemplateFile, LeavesOutNumbersThatItLacks) {
    TextLines lines = kDoor;
    lines[3] = L"$9 = \"<<1501>>\"D 900";
    RewriteTemplateFile(lines, ReadAll(kDoor), ValuesAt(1.0));
    EXPECT_EQ(lines[3], L"$9 = \"<<1501>>\"D 900");
    EXPECT_EQ(lines[5], L"$3 = \"Leaves: <<1503>>\"I2");
}

TEST(RewriteTemplateFile, RewritesOnlyTheLastLineOfANumber) {
    TextLines lines = {L"VAR", L"$2 = \"<<5>>\"D 1", L"$2 = \"<<5>>\"D 2", L"END_VAR"};
    ParamRecordMap records;
    records[9] = Record(L'D', L"2");
    records[9].realValue = 7.0;
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines, (TextLines{L"VAR", L"$2 = \"<<5>>\"D 1", L"$2 = \"<<0>>\"D7", L"END_VAR"}));
}

TEST(RewriteTemplateFile, LetsTheLastRecordOfANumberWin) {
    TextLines lines = {L"VAR", L"$2 = \"<<5>>\"D 1"};
    ParamRecordMap records;
    records[3] = Record(L'D', L"2");
    records[4] = Record(L'I', L"2");
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines[1], L"$2 = \"<<0>>\"I0");
}

TEST(RewriteTemplateFile, ComparesNumbersAsText) {
    TextLines lines = {L"VAR", L"$01 = \"<<5>>\"D 1", L"$ = \"<<5>>\"D 1"};
    ParamRecordMap records;
    records[3] = Record(L'D', L"1");
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines[1], L"$01 = \"<<5>>\"D 1");
    records[3].number = L"";
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines[2], L"$ = \"<<0>>\"D0");
}

TEST(RewriteTemplateFile, LooksIntoBlocksOnly) {
    TextLines lines = {L"$1 = \"a\"D 1", L"VAR", L"$2 = \"b\"D 2", L"END_VAR", L"$2 = \"c\"D 3"};
    ParamRecordMap records;
    records[0] = Record(L'D', L"1");
    records[1] = Record(L'D', L"2");
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines,
              (TextLines{L"$1 = \"a\"D 1", L"VAR", L"$2 = \"<<0>>\"D0", L"END_VAR", L"$2 = \"c\"D 3"}));
}

TEST(RewriteTemplateFile, LeavesTheLineOfAnInvalidTypeAsItWas) {
    TextLines lines = {L"VAR", L"$7 = \"Width\"d 10"};
    RewriteTemplateFile(lines, ReadAll(lines), [](const ParamRecord&) -> std::wstring {
        ADD_FAILURE() << "asked";
        return L"10";
    });
    EXPECT_EQ(lines[1], L"$7 = \"Width\"d 10");
}

TEST(RewriteTemplateFile, FindsTheLineOfANumberByItsFormWhateverItsType) {
    TextLines lines = {L"VAR", L"$7 = \"Width\"d 10"};
    ParamRecordMap records;
    records[3] = Record(L'I', L"7");
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines[1], L"$7 = \"<<0>>\"I0");
}

TEST(Rewrite, KeepsNullCharactersInLinesThatItDoesNotChange) {
    const std::wstring withNull(L"a\0b", 3);
    TextLines lines = {withNull, L"VAR", L"$1 = \"<<5>>\"D 1", withNull};
    const ParamRecordMap records = ReadAll(lines);
    RewriteTemplateFile(lines, records, ValuesAt(1.0));
    RewriteWorkingFile(lines, records, ValuesAt(1.0));
    EXPECT_EQ(lines[0], withNull);
    EXPECT_EQ(lines[2], L"#1 = 1");
    EXPECT_EQ(lines[3], withNull);
}

TEST(Rewrite, OfManyParametersFindsEachOne) {
    TextLines lines = {L"", L"", L"VAR"};
    for (int number = 0; number < 20000; ++number) {
        lines.push_back(L"$" + std::to_wstring(number) + L" = \"<<5>>\"I " + std::to_wstring(number));
    }
    const ParamRecordMap records = ReadAll(lines);
    ASSERT_EQ(records.size(), 20000u);
    TextLines rewritten = lines;
    RewriteTemplateFile(rewritten, records, ValuesAt(1.0));
    EXPECT_EQ(rewritten.back(), L"$19999 = \"<<5>>\"I19999");
    RewriteWorkingFile(rewritten, records, ValuesAt(1.0));
    EXPECT_EQ(rewritten.back(), L"$19999 = 19999");
}

TEST(Rewrite, OfNumbersInAnyOrderFindsEachOne) {
    const std::vector<std::wstring> numbers = {L"7", L"100", L"20", L"", L"3", L"0100", L"19", L"20", L"007"};
    TextLines lines = {L"VAR"};
    for (std::size_t line = 0; line < numbers.size(); ++line) {
        lines.push_back(L"$" + numbers[line] + L" = \"<<5>>\"I " + std::to_wstring(line));
    }
    TextLines rewritten = lines;
    RewriteTemplateFile(rewritten, ReadAll(lines), ValuesAt(1.0));
    EXPECT_EQ(rewritten[3], lines[3]) << "its number comes again further down";
    for (const std::size_t line : {0u, 1u, 3u, 4u, 5u, 6u, 7u, 8u}) {
        EXPECT_EQ(rewritten[line + 1], L"$" + numbers[line] + L" = \"<<5>>\"I" + std::to_wstring(line));
    }
}
