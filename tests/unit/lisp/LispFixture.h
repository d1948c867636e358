// LISP evaluated in a test: with a host that keeps what is written and answers questions as the test says.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "lisp/Evaluator.h"
#include "lisp/Printer.h"

class CFakeLispHost : public ILispHost {
public:
    struct SAsked {
        std::wstring prompt;
        std::optional<SLispPoint> base;
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
    SLispAnswer Ask(const std::wstring& prompt, std::optional<SLispPoint> base, EQuestion question) override {
        asked.push_back({prompt, base, question});
        if (answers.empty()) {
            return {};
        }
        const SLispAnswer answer = answers.front();
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
    std::deque<SLispAnswer> answers;  // when they run out: cancelled
    std::vector<SAsked> asked;
    int polls = 0;
    int escapeAt = -1;  // the poll that finds Escape pressed
};

class CLispTest : public testing::Test {
protected:
    // What the last expression gives, printed.
    std::wstring Evaluate(std::wstring_view text) {
        const CLispResult result = m_evaluator.Run(ReadText(text));
        return result ? Print(*result) : L"; no result";
    }

    // The text of the error that ends the evaluation.
    std::wstring Mistake(std::wstring_view text) {
        try {
            return L"gave " + Evaluate(text);
        } catch (const CLispError& error) {
            return error.Text();
        }
    }

    struct SCase {
        const wchar_t* text;
        const wchar_t* expected;
    };

    void ExpectValues(std::initializer_list<SCase> cases) {
        for (const SCase& c : cases) {
            EXPECT_EQ(Mistake(c.text), std::wstring(L"gave ") + c.expected) << testing::PrintToString(c.text);
        }
    }

    // Without the place, which is line 1 of typed text.
    void ExpectMistakes(std::initializer_list<SCase> cases) {
        for (const SCase& c : cases) {
            EXPECT_EQ(Mistake(c.text), std::wstring(L"line 1: ") + c.expected)
                << testing::PrintToString(c.text);
        }
    }

    CFakeLispHost m_host;
    CEvaluator m_evaluator{m_host};
};
