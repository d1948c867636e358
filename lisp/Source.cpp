#include "lisp/Source.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "encoding/Encoding.h"
#include "lisp/LispError.h"
#include "lisp/Reader.h"

namespace tavrin::lisp {

Source ReadText(std::wstring_view text) {
    Source source;
    CReader reader(text);
    while (auto expression = reader.Read()) {
        source.expressions.push_back(std::move(*expression));
    }
    return source;
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
        Source source = ReadText(encoding::DecodeUtf8OrWindows1252(bytes));
        source.file = name;
        return source;
    } catch (const CReadError& error) {
        throw error.InFile(name);
    }
}

}  // namespace tavrin::lisp
