#include "lisp/Source.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "encoding/Encoding.h"
#include "lisp/LispError.h"
#include "lisp/Reader.h"

namespace tavrin::lisp {

namespace {

// By their numbers. One for each name for as long as the program runs, since functions may hold lists of a
// file long after it was read.
std::vector<std::wstring>& FileNames() {
    static std::vector<std::wstring> names = {L""};
    return names;
}

int NumberOfFile(const std::wstring& name) {
    std::vector<std::wstring>& names = FileNames();
    const auto found = std::find(names.begin(), names.end(), name);
    const auto number = static_cast<int>(found - names.begin());
    if (found == names.end()) {
        names.push_back(name);
    }
    return number;
}

Source ReadNumbered(std::wstring_view text, int file) {
    Source source;
    CReader reader(text, file);
    while (auto expression = reader.Read()) {
        source.expressions.push_back(std::move(*expression));
    }
    source.file = SourceFileName(file);
    return source;
}

}  // namespace

const std::wstring& SourceFileName(int number) {
    return FileNames().at(static_cast<std::size_t>(number));
}

Source ReadText(std::wstring_view text) {
    return ReadNumbered(text, 0);
}

bool IsUnfinished(std::wstring_view text) {
    try {
        ReadText(text);
        return false;
    } catch (const CReadError& error) {
        return error.IsUnfinished();
    }
}

Source ReadSourceFile(const std::wstring& path, const std::wstring& name) {
    const std::filesystem::path file(path);
    std::error_code ignored;
    std::ifstream stream;
    if (!std::filesystem::is_directory(file, ignored)) {
        stream.open(file, std::ios::binary);
    }
    if (!stream.is_open()) {
        throw CLispError(L"the file '" + name + L"' cannot be opened: give an existing file");
    }
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        throw CLispError(L"the file '" + name + L"' is UTF-16: save it as UTF-8");
    }
    try {
        return ReadNumbered(encoding::DecodeUtf8OrWindows1252(bytes), NumberOfFile(name));
    } catch (const CReadError& error) {
        throw error.InFile(name);
    }
}

}  // namespace tavrin::lisp
