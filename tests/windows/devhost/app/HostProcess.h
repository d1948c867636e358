// A run of DevHost.exe with arguments. Gives access to its output and its window.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tests {

struct Outcome {
    DWORD status;
    std::string output;
    std::string errors;
};

enum class EStart {
    Usual,       // with the test plug-in, output captured
    Bare,        // with the given arguments alone
    OwnConsole,  // with the test plug-in, as if double-clicked: the output goes to a new console
    NoConsole,   // with the test plug-in, as from a launcher: the output goes nowhere
};

class CHostProcess {
public:
    explicit CHostProcess(const std::vector<std::wstring>& arguments, EStart start = EStart::Usual);
    ~CHostProcess();  // ends it if it still runs
    CHostProcess(const CHostProcess&) = delete;
    CHostProcess& operator=(const CHostProcess&) = delete;

    // Waits until it exits.
    Outcome Wait();

    // Windows of the program; waits until they are visible, null after a timeout.
    HWND MainWindow() const;
    HWND Control(const wchar_t* className, int id) const;
    HWND WindowWithTitle(const wchar_t* className, const wchar_t* title) const;
    DWORD ThreadId() const { return m_process.dwThreadId; }
    DWORD ProcessId() const { return m_process.dwProcessId; }

private:
    PROCESS_INFORMATION m_process = {};
    std::wstring m_outputFile;
    std::wstring m_errorsFile;
};

// Runs DevHost with the test plug-in to its end.
Outcome RunHost(const std::vector<std::wstring>& arguments);
// Evaluates one text with the test plug-in and returns the output, without the line about the heap.
std::string Evaluate(const std::wstring& text, const std::vector<std::wstring>& options = {});

// Waits until `condition` holds; false after 20 seconds.
bool WaitUntil(const std::function<bool()>& condition);

// The text of a control, of another process too.
std::wstring TextOf(HWND window);

// A temporary folder for the files of one test, which is the current folder during its lifetime.
class CTestFolder {
public:
    CTestFolder();
    ~CTestFolder();
    CTestFolder(const CTestFolder&) = delete;
    CTestFolder& operator=(const CTestFolder&) = delete;

    const std::wstring& Path() const { return m_path; }
    void Write(const std::wstring& name, const std::string& bytes) const;
    void MakeFolder(const std::wstring& name) const;

private:
    std::wstring m_path;
    std::wstring m_before;
};

// Sets an environment variable during its lifetime.
class CEnvironment {
public:
    CEnvironment(const wchar_t* name, const wchar_t* value) : m_name(name) {
        SetEnvironmentVariableW(name, value);
    }
    ~CEnvironment() { SetEnvironmentVariableW(m_name, nullptr); }
    CEnvironment(const CEnvironment&) = delete;
    CEnvironment& operator=(const CEnvironment&) = delete;

private:
    const wchar_t* m_name;
};

// DevHost.exe, the test plug-in and the folder of both allocators, as full paths.
std::wstring HostProgram();
std::wstring TestPlugIn();

}  // namespace tests
