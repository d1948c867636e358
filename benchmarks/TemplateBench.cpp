// Reading and rewriting an item's files beside reading and writing the same files with the C++ standard
// library alone.
//
// The module's own way to the disk exists on Windows only. Here both sides read and write lines with the same
// two functions, so that the ratio says what the meaning of the lines costs on top of having them.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

#include "benchmarks/BenchTable.h"
#include "benchmarks/WorkFolder.h"
#include "itemdlg/ItemContents.h"
#include "itemdlg/TemplateRewrite.h"
#include "itemdlg/TemplateText.h"

using namespace tavrin::itemdlg;

namespace {

namespace fs = std::filesystem;

// Each row has a label of its own, as in an item.
TextLines TemplateOf(std::size_t parameters) {
    const wchar_t* const kinds[] = {L"\"D ", L"%\"I ", L"\"R 0.", L" (mm)\"D"};
    TextLines lines = {L"A sample item", L"<<2001>>", L"VAR"};
    for (std::size_t number = 1; number <= parameters; ++number) {
        const std::wstring text = std::to_wstring(number);
        lines.push_back(L'$' + text + L" = \"<<1501>> " + text + kinds[number % std::size(kinds)] +
                        std::to_wstring(number * 7 % 5000));
    }
    lines.push_back(L"END_VAR");
    return lines;
}

TextLines ReadLines(const fs::path& path) {
    std::wifstream file(path);
    TextLines lines;
    for (std::wstring line; std::getline(file, line);) {
        lines.push_back(line);
    }
    return lines;
}

void WriteLines(const fs::path& path, const TextLines& lines) {
    std::wofstream file(path);
    for (const std::wstring& line : lines) {
        file << line << L'\n';
    }
}

ItemContents ReadContents(const fs::path& path) {
    static const std::wstring text = L"Width";
    return ReadItem(ReadLines(path), 1.0, kReadOnlyMode, [](unsigned) { return text; });
}

ParamRecordMap ReadRecords(const fs::path& path) {
    ParamRecordMap records;
    for (const ItemParameter& parameter : ReadContents(path).parameters) {
        records.emplace(parameter.record.lineIndex, parameter.record);
    }
    return records;
}

struct Task {
    const char* name;
    const char* peer;
    std::function<void()> ours;
    std::function<void()> theirs;
};

// What a call does with its files: it reads the parameters from the working file, and after OK it rewrites
// that file and the template. A file ten times as large takes ten times as long: the time per parameter may
// not grow. Opening files weighs on the small ones, so that a thousand parameters are the measure, which
// `perParameter` keeps; twice as much is left for what the caches of the machine hold.
void Measure(std::size_t parameters, std::map<std::string, double>& perParameter) {
    constexpr std::size_t kMeasure = 1000;
    const CWorkFolder folder;
    const fs::path source = folder.File("door.TXT");
    const fs::path target = folder.File("written.TXT");
    WriteLines(source, TemplateOf(parameters));
    // In a thread of its own, and so in memory of its own: the records would stand between the pieces of
    // memory that the measured work takes and gives back, and scatter them.
    ParamRecordMap records;
    std::thread([&] { records = ReadRecords(source); }).join();
    if (records.size() != parameters) {
        throw std::runtime_error("not every parameter was read");
    }
    const ValueTextOf valueTextOf = [](const ParamRecord& record) { return ValueText(record, 1.0); };
    const auto read = [&] { Use(ReadContents(source).parameters.size()); };
    const auto readLines = [&] { Use(ReadLines(source).size()); };
    const auto rewriteWorkingFile = [&] {
        TextLines lines = ReadLines(source);
        RewriteWorkingFile(lines, records, valueTextOf);
        WriteLines(target, lines);
    };
    const auto rewriteTemplate = [&] {
        TextLines lines = ReadLines(source);
        RewriteTemplateFile(lines, records, valueTextOf);
        WriteLines(target, lines);
    };
    const auto copy = [&] { WriteLines(target, ReadLines(source)); };
    const Task tasks[] = {
        {"reading the parameters", "reading the lines", read, readLines},
        {"rewriting the working file", "reading and writing the lines", rewriteWorkingFile, copy},
        {"rewriting the template", "reading and writing the lines", rewriteTemplate, copy},
        {"all three, as in a call", "reading, reading and writing twice",
         [&] { read(), rewriteWorkingFile(), rewriteTemplate(); }, [&] { readLines(), copy(), copy(); }},
    };
    const std::string size = std::to_string(parameters) + " parameters";
    for (const Task& task : tasks) {
        const std::vector<double> times = MedianTimes({task.ours, task.theirs});
        const double ours = times[0] / static_cast<double>(parameters);
        const double theirs = times[1] / static_cast<double>(parameters);
        PrintRow({"files", task.name, size, ours, "ns/parameter", task.peer, theirs, 3.0});
        if (parameters == kMeasure) {
            perParameter[task.name] = ours;
        } else if (parameters > kMeasure) {
            PrintRow({"files' growth", task.name, size, ours, "ns/parameter", "itself at 1000",
                      perParameter[task.name], 2.0});
        }
    }
}

}  // namespace

int main() {
    try {
        std::map<std::string, double> perParameter;
        for (std::size_t parameters = 10; parameters <= 100'000; parameters *= 10) {
            Measure(parameters, perParameter);
        }
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_template: %s\n", failure.what());
        return 1;
    }
}
