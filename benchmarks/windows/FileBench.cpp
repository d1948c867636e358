// The module's way to its files beside the C++ standard library's: lines of a template read and written.
#include <filesystem>
#include <fstream>

#include "BenchTable.h"
#include "TempFolder.h"
#include "TextFile.h"

namespace {

std::string Template(std::size_t parameters) {
    std::string text = "free text\r\n<<2001>>\r\nVAR\r\n";
    for (std::size_t number = 1; number <= parameters; ++number)
        text += "$" + std::to_string(number) + " = \"<<" + std::to_string(1501 + number % 8) + ">>\"D " +
                std::to_string(number % 3000) + "\r\n";
    return text + "END_VAR\r\n";
}

void CopyByModule(const std::wstring& source, const std::wstring& target) {
    std::vector<std::wstring> lines;
    ReadTextFile(source, lines);
    WriteTextFile(target, lines);
    Use(lines.size());
}

void CopyByStandardLibrary(const std::wstring& source, const std::wstring& target) {
    std::vector<std::wstring> lines;
    {
        std::wifstream file{std::filesystem::path(source)};
        for (std::wstring line; std::getline(file, line);)
            lines.push_back(line);
    }
    std::wofstream file{std::filesystem::path(target)};
    for (const std::wstring& line : lines)
        file << line << L'\n';
    Use(lines.size());
}

}  // namespace

int main() {
    const CTempFolder folder;
    const std::wstring source = folder.Path(L"source.TXT");
    const std::wstring target = folder.Path(L"target.TXT");
    for (const std::size_t parameters : {10U, 100U, 1000U, 10000U, 100000U}) {
        folder.Write(L"source.TXT", Template(parameters));
        const std::vector<double> times = MedianTimes(
            {[&] { CopyByModule(source, target); }, [&] { CopyByStandardLibrary(source, target); }});
        const auto lines = static_cast<double>(parameters + 4);
        PrintRow({"module's files", "reading and writing a line", std::to_string(parameters) + " parameters",
                  times[0] / lines, "ns", "standard library", times[1] / lines, 3});
    }
    return 0;
}
