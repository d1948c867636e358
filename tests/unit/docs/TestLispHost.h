// A host for the examples of the LISP reference: records output, finds files in the current folder, and has
// the system variables of a new drawing. It answers no questions.
#pragma once

#include <filesystem>
#include <string>

#include "lisp/Evaluator.h"

namespace tests {

using namespace tavrin::lisp;

class TestLispHost : public CNullLispHost {
public:
    std::string Printed() const { return std::filesystem::path(m_printed).string(); }

    void Write(std::wstring_view text) override { m_printed += text; }
    std::optional<std::wstring> FindFile(const std::wstring& name) override {
        if (std::filesystem::is_regular_file(name)) {
            return name;
        }
        return std::nullopt;
    }
    std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) override {
        return CLispFile::Open(name, mode);
    }
    CValue GetVariable(const std::wstring& name) override {
        return name == L"LUNITS" ? CValue::Integer(2) : name == L"LUPREC" ? CValue::Integer(4) : CValue();
    }

private:
    std::wstring m_printed;
};

}  // namespace tests
