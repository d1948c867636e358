#include "tests/windows/devhost/app/HostProcess.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace tests {

namespace {

namespace fs = std::filesystem;

constexpr DWORD kPatience = 60'000;  // milliseconds

fs::path TestsFolder() {
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    return fs::path(program).parent_path();
}

// An argument as a command line holds it, so that the program gets it back unchanged.
std::wstring Quoted(const std::wstring& argument) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : argument) {
        if (c == L'"') {
            quoted.append(backslashes + 1, L'\\');
        }
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L'"';
}

HANDLE CreateOutput(const std::wstring& file) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

std::string Contents(const std::wstring& file) {
    std::ifstream stream{fs::path(file), std::ios::binary};
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

CHostProcess::CHostProcess(const std::vector<std::wstring>& arguments, EStart start)
    : m_outputFile(TestsFolder() / L"devhost_tests.output"),
      m_errorsFile(TestsFolder() / L"devhost_tests.errors") {
    std::wstring commandLine = Quoted(HostProgram());
    if (start != EStart::Bare) {
        commandLine += L" --plugin " + Quoted(TestPlugIn());
    }
    for (const std::wstring& argument : arguments) {
        commandLine += L' ' + Quoted(argument);
    }

    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    const bool isCaptured = start == EStart::Usual || start == EStart::Bare;
    if (isCaptured) {
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = CreateOutput(m_outputFile);
        startup.hStdError = CreateOutput(m_errorsFile);
    }
    const DWORD flags = start == EStart::OwnConsole  ? CREATE_NEW_CONSOLE
                        : start == EStart::NoConsole ? DETACHED_PROCESS
                                                     : 0;
    EXPECT_TRUE(CreateProcessW(HostProgram().c_str(), commandLine.data(), nullptr, nullptr, isCaptured, flags,
                               nullptr, nullptr, &startup, &m_process))
        << "error " << GetLastError();
    for (const HANDLE output : {startup.hStdOutput, startup.hStdError}) {
        if (output != nullptr) {
            CloseHandle(output);
        }
    }
}

CHostProcess::~CHostProcess() {
    TerminateProcess(m_process.hProcess, 99);
    WaitForSingleObject(m_process.hProcess, kPatience);
    CloseHandle(m_process.hProcess);
    CloseHandle(m_process.hThread);
    DeleteFileW(m_outputFile.c_str());
    DeleteFileW(m_errorsFile.c_str());
}

Outcome CHostProcess::Wait() {
    EXPECT_EQ(WaitForSingleObject(m_process.hProcess, kPatience), WAIT_OBJECT_0) << "DevHost hangs";
    DWORD status = 0;
    GetExitCodeProcess(m_process.hProcess, &status);
    return {status, Contents(m_outputFile), Contents(m_errorsFile)};
}

HWND CHostProcess::MainWindow() const {
    return WindowWithTitle(L"DevHostMain", L"DevHost");
}

HWND CHostProcess::Control(const wchar_t* className, int id) const {
    const HWND control = GetDlgItem(MainWindow(), id);
    wchar_t name[50] = L"";
    GetClassNameW(control, name, 50);
    EXPECT_STRCASEEQ(fs::path(name).string().c_str(), fs::path(className).string().c_str());
    return control;
}

HWND CHostProcess::WindowWithTitle(const wchar_t* className, const wchar_t* title) const {
    HWND found = nullptr;
    WaitUntil([&] {
        found = nullptr;
        while ((found = FindWindowExW(nullptr, found, className, title)) != nullptr) {
            DWORD process;
            GetWindowThreadProcessId(found, &process);
            if (process == m_process.dwProcessId && IsWindowVisible(found)) {
                return true;
            }
        }
        return false;
    });
    return found;
}

Outcome RunHost(const std::vector<std::wstring>& arguments) {
    return CHostProcess(arguments).Wait();
}

std::string Evaluate(const std::wstring& text, const std::vector<std::wstring>& options) {
    std::vector<std::wstring> arguments = options;
    arguments.insert(arguments.end(), {L"--eval", text});
    const Outcome outcome = RunHost(arguments);
    EXPECT_EQ(outcome.status, 0u) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    const std::size_t heap = outcome.output.find("; heap: 0 blocks held\n");
    EXPECT_NE(heap, std::string::npos) << outcome.output;
    return outcome.output.substr(0, heap);
}

bool WaitUntil(const std::function<bool()>& condition) {
    const ULONGLONG start = GetTickCount64();
    while (!condition()) {
        if (GetTickCount64() - start > 20'000) {
            return false;
        }
        Sleep(10);
    }
    return true;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                                      reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

CTestFolder::CTestFolder() : m_path(TestsFolder() / L"devhost_tests.folder"), m_before(fs::current_path()) {
    fs::remove_all(m_path);
    fs::create_directory(m_path);
    fs::current_path(m_path);
}

CTestFolder::~CTestFolder() {
    fs::current_path(m_before);
    fs::remove_all(m_path);
}

void CTestFolder::Write(const std::wstring& name, const std::string& bytes) const {
    std::ofstream(fs::path(m_path) / name, std::ios::binary) << bytes;
}

void CTestFolder::MakeFolder(const std::wstring& name) const {
    fs::create_directories(fs::path(m_path) / name);
}

std::wstring HostProgram() {
    return (TestsFolder().parent_path() / L"bin" / L"DevHost.exe").wstring();
}

std::wstring TestPlugIn() {
    return (TestsFolder() / L"TestPlugin.dll").wstring();
}

}  // namespace tests
