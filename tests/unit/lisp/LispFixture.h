// A test fixture with an evaluator. Its host records output and gives the test's answers to questions.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

namespace tests {

using namespace tavrin::lisp;

class CFakeLispHost : public ILispHost {
public:
    struct Asked {
        std::wstring prompt;
        std::optional<LispPoint> base;
        EQuestion question;
    };

    void Write(std::wstring_view text) override { output += text; }
    void Alert(const std::wstring& text) override { alerts.push_back(text); }
    std::optional<std::wstring> FindFile(const std::wstring& name) override {
        const auto found = files.find(name);
        return found != files.end() ? std::optional(found->second) : std::nullopt;
    }
    std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) override {
        return CLispFile::Open(name, mode);
    }
    CValue GetVariable(const std::wstring& name) override { return variables[name]; }
    void SetVariable(const std::wstring& name, const CValue& value) override { variables[name] = value; }
    LispAnswer Ask(const std::wstring& prompt, std::optional<LispPoint> base, EQuestion question) override {
        asked.push_back({prompt, base, question});
        if (answers.empty()) {
            return {};
        }
        const LispAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    bool IsEscapePressed() override {
        ++polls;
        return polls == escapeAt;
    }

    std::wstring output;
    std::vector<std::wstring> alerts;
    std::map<std::wstring, std::wstring> files;  // name to path
    std::map<std::wstring, CValue> variables;
    std::deque<LispAnswer> answers;  // cancelled when there are none left
    std::vector<Asked> asked;
    int polls = 0;
    int escapeAt = -1;  // the poll that finds Escape pressed
};

class CLispTest : public testing::Test {
protected:
    // The value of the last expression, printed.
    std::wstring Evaluate(std::wstring_view text) {
        const LispResult result = m_evaluator.Run(ReadText(text));
        return result ? Print(*result) : L"; no result";
    }

    // The text of the error that ends the evaluation; "gave VALUE" when there is no error.
    std::wstring ErrorOf(std::wstring_view text) {
        try {
            return L"gave " + Evaluate(text);
        } catch (const CLispError& error) {
            return error.Text();
        }
    }

    struct Case {
        const wchar_t* text;
        const wchar_t* expected;
    };

    void ExpectValues(std::initializer_list<Case> cases) {
        for (const Case& c : cases) {
            EXPECT_EQ(ErrorOf(c.text), std::wstring(L"gave ") + c.expected) << testing::PrintToString(c.text);
        }
    }

    // Expects errors at line 1; `expected` is the text after the location.
    void ExpectErrors(std::initializer_list<Case> cases) {
        for (const Case& c : cases) {
            EXPECT_EQ(ErrorOf(c.text), std::wstring(L"line 1: ") + c.expected)
                << testing::PrintToString(c.text);
        }
    }

    CFakeLispHost m_host;
    CEvaluator m_evaluator{m_host};
};

}  // namespace tests
