// A file whose reading fails in the middle: a pipe that gives some bytes and breaks.
#pragma once

#include <windows.h>

#include <string>
#include <thread>
#include <utility>

class CBreakingFile {
public:
    // To be opened and read once, which the destructor waits for.
    explicit CBreakingFile(std::string content)
        : m_content(std::move(content)),
          m_pipe(::CreateNamedPipeW(Path(), PIPE_ACCESS_OUTBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1, 4096, 4096,
                                    0, nullptr)),
          m_thread([this] { Serve(); }) {}
    ~CBreakingFile() {
        m_thread.join();
        ::CloseHandle(m_pipe);
    }
    CBreakingFile(const CBreakingFile&) = delete;
    CBreakingFile& operator=(const CBreakingFile&) = delete;

    static const wchar_t* Path() { return L"\\\\.\\pipe\\tavrin_breaking_file"; }

private:
    void Serve() {
        ::ConnectNamedPipe(m_pipe, nullptr);
        DWORD written = 0;
        ::WriteFile(m_pipe, m_content.data(), static_cast<DWORD>(m_content.size()), &written, nullptr);
        ::FlushFileBuffers(m_pipe);
        ::DisconnectNamedPipe(m_pipe);
    }

    std::string m_content;
    HANDLE m_pipe;
    std::thread m_thread;
};
