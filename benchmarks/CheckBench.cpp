// Checking a file beside counting its lines, words and bytes: whole programs, with all that starting and
// ending them takes.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/BenchTable.h"
#include "benchmarks/WorkFolder.h"

using namespace tavrin::benchmarks;

namespace {

namespace fs = std::filesystem;

// Runs a program without its output. Gives the most memory that it held, in bytes.
double RunProgram(std::vector<std::string> arguments) {
    std::vector<char*> values;
    for (std::string& argument : arguments) {
        values.push_back(argument.data());
    }
    values.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int error = posix_spawnp(&process, values[0], &actions, nullptr, values.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    if (error != 0 || wait4(process, &status, 0, &usage) != process || status != 0) {
        throw std::runtime_error(arguments[0] + " did not do its work");
    }
    constexpr double kKilobyte = 1024.0;
    return static_cast<double>(usage.ru_maxrss) * kKilobyte;
}

// A template without mistakes, since those are few in a file that people work with.
void WriteTemplate(const fs::path& path, std::size_t parameters) {
    const char* const kinds[] = {"\"D ", "%\"I ", "\"R 0.", " (mm)\"D"};
    std::ofstream file(path, std::ios::binary);
    file << "A sample item\r\n<<2001>>\r\nVAR\r\n";
    for (std::size_t number = 1; number <= parameters; ++number) {
        file << '$' << number << " = \"<<" << 1000 + number % 50000 << ">> " << number
             << kinds[number % std::size(kinds)] << number * 7 % 5000 << "\r\n";
    }
    file << "END_VAR\r\n";
}

double Measure(const std::string& checker, std::size_t parameters) {
    const CWorkFolder folder;
    const fs::path source = folder.File("door.TXT");
    WriteTemplate(source, parameters);
    std::ofstream(folder.File("door.png")) << "a picture that is there";
    const std::vector<std::string> check = {checker, source.string()};
    const std::vector<double> times = MedianTimes({[&] { RunProgram(check); },
                                                   [&] {
                                                       RunProgram({"wc", source.string()});
                                                   }});
    const auto count = static_cast<double>(parameters);
    const std::string size = std::to_string(parameters) + " parameters";
    PrintRow({"checking", "a file", size, times[0] / count, "ns/parameter", "wc", times[1] / count, 10.0});
    return RunProgram(check) / static_cast<double>(fs::file_size(source));
}

}  // namespace

int main(int count, char** values) {
    try {
        if (count != 2) {
            throw std::runtime_error("name the checker");
        }
        constexpr std::size_t kMany = 100'000;
        const double memory = Measure(values[1], kMany);
        const double moreMemory = Measure(values[1], 10 * kMany);
        PrintRow({"checking", "memory per byte of the file", std::to_string(10 * kMany) + " parameters",
                  moreMemory, "bytes", "itself at " + std::to_string(kMany), memory, 1.5});
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench_check: %s\n", failure.what());
        return 1;
    }
}
