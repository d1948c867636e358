#include "itemdlg/TextFile.h"

#include <afx.h>

namespace tavrin::itemdlg {

namespace {

// Writes a line that may hold NUL characters: the framework's texts end at the first, so a NUL is written
// as the byte that it was read from.
void WriteLine(CStdioFile& file, const std::wstring& line) {
    size_t start = 0;
    for (size_t nul = line.find(L'\0'); nul != std::wstring::npos; nul = line.find(L'\0', start)) {
        file.WriteString(line.c_str() + start);
        file.Write("", 1);
        start = nul + 1;
    }
    file.WriteString(line.c_str() + start);
    file.WriteString(L"\n");
}

}  // namespace

bool ReadTextFile(const std::wstring& path, std::vector<std::wstring>& lines) {
    try {
        CStdioFile file(path.c_str(), CFile::modeRead | CFile::typeText);
        CString line;
        while (file.ReadString(line)) {
            lines.emplace_back(line.GetString(), static_cast<size_t>(line.GetLength()));
        }
        file.Close();
        return true;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

bool WriteTextFile(const std::wstring& path, const std::vector<std::wstring>& lines) {
    try {
        CStdioFile file(path.c_str(), CFile::modeCreate | CFile::modeWrite | CFile::typeText);
        for (const std::wstring& line : lines) {
            WriteLine(file, line);
        }
        file.Close();
        return true;
    } catch (CFileException* exception) {
        exception->Delete();
        return false;
    }
}

}  // namespace tavrin::itemdlg
