// One run of the stand-in host in a folder of its own, with its output and its exit status.
#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

class HostRun {
public:
    HostRun();
    // Ends the program if it still runs and removes the folder. Prints the state first when the test failed.
    ~HostRun();
    HostRun(const HostRun&) = delete;
    HostRun& operator=(const HostRun&) = delete;

    // The folder that the host searches: put the item's files there.
    const std::filesystem::path& Folder() const { return m_folder; }
    // Copies a sample item into the folder.
    void UseSample(const std::string& name) const;
    void Write(const std::string& name, const std::string& bytes) const;
    std::string Read(const std::string& name) const;

    // Another copy of the program than the built DevHost.exe.
    void UseProgram(const std::filesystem::path& program) { m_program = program; }

    // Starts the host with `arguments` (and --search for the folder) in the folder.
    void Start(const std::vector<std::string>& arguments);
    // Starts a program that is not the host, with `arguments` alone.
    void StartProgram(const std::vector<std::string>& arguments);

    // Waits for the end. The exit status, or -1 when it does not end within `seconds`.
    int Wait(int seconds = 60);

    // The process that was started and has not been waited for, -1 without one.
    pid_t Process() const { return m_process; }

    // What LISP was answered: the first line of the output.
    std::string Answer() const;

    // What it has printed so far on standard output and standard error.
    std::string Output() const { return Read(".output"); }
    std::string Errors() const { return Read(".errors"); }

private:
    // Prints whether it still runs and what it printed.
    void PrintState() const;
    // Makes this process the program, with `argv` that ends with a null; ends it when that fails.
    [[noreturn]] void Become(const std::vector<char*>& argv) const noexcept;

    std::filesystem::path m_folder;
    std::filesystem::path m_program;
    pid_t m_process = -1;
    bool m_wasStarted = false;
};
