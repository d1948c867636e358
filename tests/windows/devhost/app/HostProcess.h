// One run of DevHost.exe: started with arguments, watched through its outputs and its window.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

struct SOutcome {
    DWORD status;
    std::string output;
    std::string errors;
};

enum class EStart {
    Usual,       // with the test plug-in, outputs captured
    Bare,        // with the given arguments alone
    OwnConsole,  // with the test plug-in, as a click on its icon does it: the outputs go into a new console
};

class CHostProcess {
public:
    explicit CHostProcess(const std::vector<std::wstring>& arguments, EStart start = EStart::Usual);
    ~CHostProcess();  // ends it if it still runs
    CHostProcess(const CHostProcess&) = delete;
    CHostProcess& operator=(const CHostProcess&) = delete;

    // Waits for its end.
    SOutcome Wait();

    // The windows of the program, once they are visible; null when that takes too long.
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
SOutcome RunHost(const std::vector<std::wstring>& arguments);
// Evaluates one text with the test plug-in and gives what was printed, without the line about the heap.
std::string Evaluate(const std::wstring& text, const std::vector<std::wstring>& options = {});

// Asks until `condition` holds; false when it does not within 20 seconds.
bool WaitUntil(const std::function<bool()>& condition);

// The text of a control, of another process too.
std::wstring TextOf(HWND window);

// A folder for the files of one test, emptied and made the current one; its files are named relative to it.
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

// Sets an environment variable for the processes started while it lives.
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
