// A folder of a test's own, removed with all that lies in it.
#pragma once

#include <string>

class CTempFolder {
public:
    // In the folder `parent`, which ends with a backslash.
    explicit CTempFolder(const std::wstring& parent = SystemFolder());
    ~CTempFolder();
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    // Full path of `name` in the folder; with an empty name the folder itself with its trailing backslash.
    std::wstring Path(const std::wstring& name) const { return m_path + name; }

    // Files as bytes. Reading a file that is not there gives "(no file)".
    void Write(const std::wstring& name, const std::string& bytes) const;
    std::string Read(const std::wstring& name) const;

private:
    // The system's folder for temporary files.
    static std::wstring SystemFolder();

    std::wstring m_path;
};
