// The preview of the item dialog. A window test compares it with the dialog itself; these tests check what
// the preview adds.
#include "tools/tavrincheck/ItemPreview.h"

#include <gtest/gtest.h>

#include "tools/files/Files.h"
#include "tools/tavrincheck/PreviewReport.h"

using namespace tavrin::tools;

using namespace tavrin::itemdlg;

namespace {

const std::string kTemplate =
    "Door\n<<2001>>\nVAR\n$1 = \"<<1501>>\"D 900\n$2 = \"<<1502>>%\"R 0.5\n$3 = \"<<1501>>\"I 2\n$4 = \"x\"d "
    "1\n"
    "END_VAR\n";

PreviewSettings Settings(double scale = 1.0, int mode = 0) {
    PreviewSettings settings;
    settings.scale = scale;
    settings.mode = mode;
    settings.texts = [](unsigned number) { return L"text " + std::to_wstring(number); };
    settings.distanceText = [](double value) { return std::to_wstring(static_cast<int>(value)) + L" mm"; };
    return settings;
}

CItemPreview PreviewOf(const std::string& bytes, double scale = 1.0, int mode = 0) {
    return CItemPreview(TextsOf(SplitLines(bytes)), Settings(scale, mode));
}

std::string ErrorOf(CItemPreview& preview, const std::wstring& number, const std::wstring& value) {
    try {
        preview.SetValue(number, value);
        return "(none)";
    } catch (const CToolError& error) {
        return error.what();
    }
}

TEST(ItemPreview, AValueThatIsSetIsShownAndWrittenUnscaled) {
    CItemPreview preview = PreviewOf(kTemplate, 10.0);
    preview.SetValue(L"1", L"1'3\"");
    preview.SetValue(L"2", L"-7.5");
    EXPECT_EQ(preview.ValueTextOf(preview.Contents().parameters[0]), L"15 mm");
    const TextLines lines = preview.WorkingFileAfter(TextsOf(SplitLines(kTemplate)));
    EXPECT_EQ(lines[3], L"#1 = 1.5");
    EXPECT_EQ(lines[4], L"#2 = -0.75");
    EXPECT_EQ(preview.TemplateFileAfter(TextsOf(SplitLines(kTemplate)))[4], L"$2 = \"<<1502>>%\"R-0.75");
}

TEST(ItemPreview, WholeNumbersAreSetAsSuch) {
    CItemPreview preview = PreviewOf("x\nx\nVAR\n$3 = \"a\"I 2\n", 10.0);
    EXPECT_EQ(preview.SetValue(L"3", L"3.7"), "$3: the dialog takes '3.7' as 3");
    EXPECT_EQ(preview.SetValue(L"3", L"7,25"), "$3: the dialog takes '7,25' as 7");
    EXPECT_EQ(preview.SetValue(L"3", L"abc"), "$3: the dialog takes 'abc' as 0");
    EXPECT_EQ(preview.SetValue(L"3", L"99999999999"), "$3: the dialog takes '99999999999' as 2147483647");
    EXPECT_EQ(preview.SetValue(L"3", L"-4"), "");
    EXPECT_EQ(preview.SetValue(L"3", L""), "$3: nothing was typed; the value stays -4");
    EXPECT_EQ(preview.WorkingFileAfter(TextLines(4))[3], L"$3 = -4");
}

TEST(ItemPreview, ARowThatCannotBeSetSaysWhy) {
    CItemPreview preview = PreviewOf(kTemplate, 1.0, 1);
    EXPECT_EQ(ErrorOf(preview, L"9", L"1"), "there is no parameter with the number '9'");
    EXPECT_EQ(ErrorOf(preview, L"3", L"1"), "parameter '3' has no row to type a value into");
    EXPECT_EQ(ErrorOf(preview, L"2", L"1"), "parameter '2' is read-only in this mode");
    CItemPreview twice = PreviewOf("x\nx\nVAR\n$1 = \"a\"R 1\n$1 = \"b\"R 1\n");
    EXPECT_EQ(ErrorOf(twice, L"1", L"5"),
              "number '1' has two rows, in lines 4 and 5: which one is meant is open");
    EXPECT_EQ(ErrorOf(twice, L"1", L"nan"),
              "number '1' has two rows, in lines 4 and 5: which one is meant is open");
}

TEST(ItemPreview, ARealNumberIsWhatTheTextBeginsWith) {
    CItemPreview preview = PreviewOf(kTemplate);
    EXPECT_EQ(preview.SetValue(L"2", L"7,25"), "$2: the dialog takes '7,25' as 7");
    EXPECT_EQ(preview.SetValue(L"2", L" 1.5 mm"), "$2: the dialog takes ' 1.5 mm' as 1.5");
    EXPECT_EQ(preview.SetValue(L"2", L"inf"), "$2: the dialog takes 'inf' as 0");
    EXPECT_EQ(preview.SetValue(L"2", L"1e3"), "");
}

TEST(ItemPreview, AnInvalidDistanceKeepsTheValueAfterABox) {
    CItemPreview preview = PreviewOf(kTemplate);
    EXPECT_EQ(preview.SetValue(L"1", L"wide"),
              "$1: a box says that 'wide' is invalid; the value stays 900 mm");
    EXPECT_EQ(preview.WorkingFileAfter(TextsOf(SplitLines(kTemplate)))[3], L"#1 = 900");
}

TEST(PreviewReport, ShowsTitleRowsMessagesAndChanges) {
    PreviewInput input;
    input.workingFile = {"door_TMP.TXT", SplitLines(kTemplate)};
    input.templateFile = {"door.TXT", SplitLines("VAR\r\n$1 = \"<<1501>>\"D900\r\n")};
    input.templateName = "door.TXT";
    EXPECT_EQ(PreviewReport(input, PreviewOf(kTemplate, 1.0, 1)),
              "Title:    text 2001\n"
              "Header:   text 1363text 2001\n"
              "Picture:  (none)\n"
              "\n"
              "line  number  kind          label      value\n"
              "   4  $1      distance      text 1501  900 mm\n"
              "   5  $2      real number   text 1502  0.5     read-only\n"
              "   6  $3      whole number  text 1501  2       NO ROW\n"
              "   7  $4      (invalid)     x                  NO ROW\n"
              "\n"
              "line 6: there is no row, since line 4 has the same label; OK writes the value that was read\n"
              "line 7: a box says \"Warning! Found invalid type code.\"; there is no row, OK assigns nothing "
              "to the "
              "number and leaves the template's line\n"
              "\n"
              "door_TMP.TXT: OK ends every line with CR LF, which 8 of 8 do not\n"
              "--- door_TMP.TXT\n"
              "+++ door_TMP.TXT after OK\n"
              "@@ -1,8 +1,8 @@\n"
              " Door\n"
              " <<2001>>\n"
              " VAR\n"
              "-$1 = \"<<1501>>\"D 900\n"
              "-$2 = \"<<1502>>%\"R 0.5\n"
              "-$3 = \"<<1501>>\"I 2\n"
              "-$4 = \"x\"d 1\n"
              "+#1 = 900\n"
              "+#2 = 0.5\n"
              "+$3 = 2\n"
              "+#4 = \n"
              " END_VAR\n"
              "\n"
              "door.TXT: OK changes no line\n");
}

TEST(PreviewReport, SaysThatTheTemplateIsMissing) {
    PreviewInput input;
    input.workingFile = {"a_TMP.TXT", SplitLines("x\r\n")};
    input.templateName = "a.TXT";
    input.picture = "a.png";
    EXPECT_EQ(PreviewReport(input, PreviewOf("x\r\n")),
              "Title:    (the item's base name)\n"
              "Header:     Parametri\n"
              "Picture:  a.png\n"
              "\n"
              "There are no rows.\n"
              "\n"
              "after OK a box says \"File not found!\": there is no a.TXT\n"
              "\n"
              "a_TMP.TXT: OK changes no line\n");
}

TEST(PreviewReport, ShowsWhatDoesNotPrintAsPictures) {
    PreviewInput input;
    const std::string file = "x\r\na\tb\x80\x7F\r\n";
    input.workingFile = {"a_TMP.TXT", SplitLines(file)};
    EXPECT_EQ(PreviewReport(input, PreviewOf(file)).substr(0, 22), "Title:    a␉b\uFFFD␡\n");
}

}  // namespace
