// The module's way to its files beside the C++ standard library's: lines of a template read and written, and
// all that a call does with its files, what the lines mean included.
#include <filesystem>
#include <fstream>

#include "benchmarks/BenchTable.h"
#include "benchmarks/windows/MemoryFolder.h"
#include "itemdlg/ItemContents.h"
#include "itemdlg/TemplateRewrite.h"
#include "itemdlg/TextFile.h"
#include "tests/windows/support/TempFolder.h"

using namespace tavrin::benchmarks;
using namespace tavrin::itemdlg;

namespace {

// Each row has a label of its own, as in an item.
std::string Template(std::size_t parameters) {
    std::string text = "free text\r\n<<2001>>\r\nVAR\r\n";
    for (std::size_t number = 1; number <= parameters; ++number) {
        text += "$" + std::to_string(number) + " = \"<<" + std::to_string(1501 + number % 8) + ">> " +
                std::to_string(number) + "\"D " + std::to_string(number % 3000) + "\r\n";
    }
    return text + "END_VAR\r\n";
}

TextLines LinesByModule(const std::wstring& path) {
    TextLines lines;
    ReadTextFile(path, lines);
    return lines;
}

TextLines LinesByStandardLibrary(const std::wstring& path) {
    TextLines lines;
    std::wifstream file{std::filesystem::path(path)};
    for (std::wstring line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

void CopyByModule(const std::wstring& source, const std::wstring& target) {
    WriteTextFile(target, LinesByModule(source));
}

void CopyByStandardLibrary(const std::wstring& source, const std::wstring& target) {
    const TextLines lines = LinesByStandardLibrary(source);
    std::wofstream file{std::filesystem::path(target)};
    for (const std::wstring& line : lines) {
        file << line << L'\n';
    }
}

// The parameters are read from the working file; after OK both files are rewritten.
void CallOfModule(const std::wstring& source, const std::wstring& target) {
    const std::wstring text = L"Width";
    const ItemContents item =
        ReadItem(LinesByModule(source), 1.0, kReadOnlyMode, [&](unsigned) { return text; });
    ParamRecordMap records;
    for (const ItemParameter& parameter : item.parameters) {
        records.emplace(parameter.record.lineIndex, parameter.record);
    }
    const ValueTextOf valueTextOf = [](const ParamRecord& record) { return ValueText(record, 1.0); };
    TextLines lines = LinesByModule(source);
    RewriteWorkingFile(lines, records, valueTextOf);
    WriteTextFile(target, lines);
    lines = LinesByModule(source);
    RewriteTemplateFile(lines, records, valueTextOf);
    WriteTextFile(target, lines);
}

void CallOfStandardLibrary(const std::wstring& source, const std::wstring& target) {
    Use(LinesByStandardLibrary(source).size());
    CopyByStandardLibrary(source, target);
    CopyByStandardLibrary(source, target);
}

}  // namespace

int main() {
    const CTempFolder folder(kMemoryFolder);
    const std::wstring source = folder.Path(L"source.TXT");
    const std::wstring target = folder.Path(L"target.TXT");
    for (const std::size_t parameters : {10U, 100U, 1000U, 10000U, 100000U}) {
        folder.Write(L"source.TXT", Template(parameters));
        const std::vector<double> times = MedianTimes(
            {[&] { CopyByModule(source, target); }, [&] { CopyByStandardLibrary(source, target); },
             [&] { CallOfModule(source, target); }, [&] { CallOfStandardLibrary(source, target); }});
        const std::string size = std::to_string(parameters) + " parameters";
        const auto lines = static_cast<double>(parameters + 4);
        PrintRow({"module's files", "reading and writing a line", size, times[0] / lines, "ns",
                  "standard library", times[1] / lines, 3});
        PrintRow({"module's files", "a call's reading and rewriting", size, times[2] / lines, "ns/line",
                  "reading, reading and writing twice", times[3] / lines, 3});
    }
    return 0;
}
