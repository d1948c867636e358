// Reading the parameters of an item's file and rewriting its template beside the same work over other
// libraries, and rewriting the working file beside copying its lines.
//
// The module's file access exists on Windows only. Here both sides read and write lines with the same two
// functions.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <tuple>

#include "benchmarks/BenchTable.h"
#include "benchmarks/PeerReader.h"
#include "benchmarks/WorkFolder.h"
#include "itemdlg/ItemContents.h"
#include "itemdlg/TemplateRewrite.h"
#include "itemdlg/TemplateText.h"

using namespace tavrin::benchmarks;
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

std::wstring Lookup(unsigned) {
    return L"Width";
}

ItemContents ReadContents(const fs::path& path) {
    return ReadItem(ReadLines(path), 1.0, kReadOnlyMode, Lookup);
}

void RequireSame(const ItemContents& ours, const ItemContents& theirs) {
    const bool same =
        std::equal(ours.parameters.begin(), ours.parameters.end(), theirs.parameters.begin(),
                   theirs.parameters.end(), [](const ItemParameter& one, const ItemParameter& other) {
                       const auto parts = [](const ItemParameter& parameter) {
                           const ParamRecord& record = parameter.record;
                           return std::tie(record.number, record.lineIndex, record.label, record.labelPrefix,
                                           record.labelSuffix, record.resourceId, record.realValue,
                                           record.intValue, record.type, parameter.row, parameter.editable);
                       };
                       return parts(one) == parts(other);
                   });
    if (!same) {
        throw std::runtime_error("the peer does not read the same parameters");
    }
}

ParamRecordMap ReadRecords(const fs::path& path) {
    ParamRecordMap records;
    for (const ItemParameter& parameter : ReadContents(path).parameters) {
        records.emplace(parameter.record.lineIndex, parameter.record);
    }
    return records;
}

using Rewriter = std::function<void(TextLines&, const ParamRecordMap&, const ValueTextOf&)>;

struct Task {
    const char* name;
    const char* peer;
    double bar;
    std::function<void()> ours;
    std::function<void()> theirs;
};

// One item's files, and what a call does with them: it reads the parameters from the working file, and after
// OK it rewrites that file and the template.
class CItemFiles {
public:
    explicit CItemFiles(std::size_t parameters) {
        WriteLines(m_source, TemplateOf(parameters));
        // In a thread of its own, and so in a heap of its own: the records would otherwise scatter the memory
        // that the measured work allocates.
        std::thread([this] { m_records = ReadRecords(m_source); }).join();
        if (m_records.size() != parameters) {
            throw std::runtime_error("not every parameter was read");
        }
        RequireSamePeer();
    }

    std::vector<Task> Tasks() const {
        const auto read = [this] { Use(ReadContents(m_source).parameters.size()); };
        const auto ours = [](TextLines& lines, const ParamRecordMap& records, const ValueTextOf& values) {
            RewriteTemplateFile(lines, records, values);
        };
        const auto theirs = [this](TextLines& lines, const ParamRecordMap& records,
                                   const ValueTextOf& values) {
            m_interpreted.RewriteTemplate(lines, records, values);
        };
        const auto copy = [](TextLines&, const ParamRecordMap&, const ValueTextOf&) {};
        return {
            {"reading the parameters", "PCRE2 interpreted, std::from_chars", 1.0, read,
             ReadBy(m_interpreted)},
            {"reading the parameters", "PCRE2 JIT, std::from_chars", 0.0, read, ReadBy(m_compiled)},
            {"rewriting the working file", "reading and writing the lines", 3.0, Rewrite(RewriteWorkingFile),
             Rewrite(copy)},
            {"rewriting the template", "PCRE2 interpreted", 1.0, Rewrite(ours), Rewrite(theirs)},
        };
    }

private:
    static std::wstring Value(const ParamRecord& record) { return ValueText(record, 1.0); }

    // Peers that do not do the same are not worth a comparison.
    void RequireSamePeer() const {
        RequireSame(ReadContents(m_source), m_interpreted.Read(ReadLines(m_source), Lookup));
        TextLines ours = ReadLines(m_source);
        TextLines theirs = ours;
        RewriteTemplateFile(ours, m_records, Value);
        m_interpreted.RewriteTemplate(theirs, m_records, Value);
        if (ours != theirs) {
            throw std::runtime_error("the peer does not write the same template");
        }
    }

    std::function<void()> ReadBy(const CPeerReader& peer) const {
        return [this, &peer] { Use(peer.Read(ReadLines(m_source), Lookup).parameters.size()); };
    }

    std::function<void()> Rewrite(const Rewriter& rewrite) const {
        return [this, rewrite] {
            TextLines lines = ReadLines(m_source);
            rewrite(lines, m_records, Value);
            WriteLines(m_target, lines);
        };
    }

    CWorkFolder m_folder;
    fs::path m_source = m_folder.File("door.TXT");
    fs::path m_target = m_folder.File("written.TXT");
    ParamRecordMap m_records;
    CPeerReader m_interpreted{false};
    CPeerReader m_compiled{true};
};

// A file ten times as large takes ten times as long: the time per parameter may not grow. Opening files
// weighs on the smallest, so a hundred parameters, more than items have, are the measure; the bar leaves
// twice as much for what the caches of the machine hold.
void Measure(std::size_t parameters) {
    constexpr std::size_t kMeasure = 100;
    const CItemFiles files(parameters);
    const CItemFiles measureFiles(kMeasure);
    const std::vector<Task> tasks = files.Tasks();
    const std::vector<Task> measureTasks = measureFiles.Tasks();
    const std::string size = std::to_string(parameters) + " parameters";
    const auto perParameter = [](double time, std::size_t count) {
        return time / static_cast<double>(count);
    };
    for (std::size_t index = 0; index < tasks.size(); ++index) {
        const Task& task = tasks[index];
        const std::vector<double> times = MedianTimes({task.ours, task.theirs, measureTasks[index].ours});
        const double ours = perParameter(times[0], parameters);
        PrintRow({"files", task.name, size, ours, "ns/parameter", task.peer,
                  perParameter(times[1], parameters), task.bar});
        if (parameters > kMeasure && task.bar > 0.0) {
            PrintRow({"files' growth", task.name, size, ours, "ns/parameter", "itself at 100",
                      perParameter(times[2], kMeasure), 2.0});
        }
    }
}

}  // namespace

int main() {
    try {
        for (std::size_t parameters = 10; parameters <= 1000; parameters *= 10) {
            Measure(parameters);
        }
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_template: %s\n", failure.what());
        return 1;
    }
}
