// What the examples of the LISP reference need of a host: output that is kept, files of the current folder,
// system variables of a new drawing. Nobody answers its questions.
#pragma once

#include <filesystem>
#include <string>

#include "lisp/Evaluator.h"

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
