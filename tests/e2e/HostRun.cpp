#include "tests/e2e/HostRun.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

#include "tests/e2e/Desktop.h"
#include "tests/e2e/Programs.h"

namespace {

bool RedirectTo(const char* file, int descriptor) noexcept {
    const int opened = open(file, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const bool done = dup2(opened, descriptor) == descriptor;
    close(opened);
    return done;
}

}  // namespace

HostRun::HostRun() : m_program(ProgramFolder() / "DevHost.exe") {
    std::string name = (std::filesystem::path(WORK_DIR) / "host-XXXXXX").string();
    std::filesystem::create_directories(WORK_DIR);
    m_folder = mkdtemp(name.data());
}

HostRun::~HostRun() {
    if (m_wasStarted && testing::Test::HasFailure()) {
        PrintState();
    }
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    std::error_code ignored;
    std::filesystem::remove_all(m_folder, ignored);
}

void HostRun::UseSample(const std::string& name) const {
    for (const auto& file : std::filesystem::directory_iterator(std::filesystem::path(SAMPLES_DIR) / name)) {
        std::filesystem::copy(file.path(), m_folder / file.path().filename(),
                              std::filesystem::copy_options::overwrite_existing);
    }
}

void HostRun::Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(m_folder / name, std::ios::binary) << bytes;
}

std::string HostRun::Read(const std::string& name) const {
    std::ifstream file(m_folder / name, std::ios::binary);
    if (!file) {
        return "(no file)";
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

void HostRun::Start(const std::vector<std::string>& arguments) {
    std::vector<std::string> words = {"--search", "."};
    words.insert(words.end(), arguments.begin(), arguments.end());
    StartProgram(words);
}

void HostRun::StartProgram(const std::vector<std::string>& arguments) {
    const char* const wine = std::getenv("WINE");
    if (wine == nullptr) {
        std::cerr << "e2e_tests: there is no test environment for Windows programs: run it through "
                     "scripts/with-wine\n";
        std::exit(1);
    }
    std::vector<std::string> words = {wine, m_program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    m_wasStarted = true;
    m_process = fork();
    if (m_process == 0) {
        Become(argv);
    }
}

// In the child. Nothing may throw here: the tests would go on in it as well, and start further children.
void HostRun::Become(const std::vector<char*>& argv) const noexcept {
    if (chdir(m_folder.c_str()) == 0 && RedirectTo(".output", STDOUT_FILENO) &&
        RedirectTo(".errors", STDERR_FILENO)) {
        execv(argv[0], argv.data());
    }
    _exit(127);
}

int HostRun::Wait(int seconds) {
    if (m_process <= 0) {
        return -1;
    }
    int status = 0;
    const bool ended = WaitUntil([&] { return waitpid(m_process, &status, WNOHANG) == m_process; }, seconds);
    if (!ended) {
        return -1;
    }
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

void HostRun::PrintState() const {
    int status = 0;
    const bool runs = m_process > 0 && waitpid(m_process, &status, WNOHANG) == 0;
    std::cout << m_program.filename().string() << (runs ? " still runs" : " has ended");
    if (m_process > 0 && !runs) {
        std::cout << (WIFEXITED(status) ? " with status " : " by signal ")
                  << (WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status));
    }
    std::cout << "\nits output: " << Output() << "\nits errors: " << Errors() << std::endl;
}

std::string HostRun::Answer() const {
    const std::string output = Output();
    return output.substr(0, output.find_first_of("\r\n"));
}
