// The evaluated arguments of a call of a built-in function, accessed by type. Indices count from 0, in
// messages from 1.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "lisp/Function.h"
#include "lisp/LispHost.h"
#include "lisp/Value.h"

namespace tavrin::lisp {

class CArguments {
public:
    CArguments(CEvaluator& evaluator, std::wstring_view function, std::span<const CValue> values)
        : m_evaluator(evaluator), m_function(function), m_values(values) {}

    CEvaluator& Evaluator() const { return m_evaluator; }
    std::size_t Count() const { return m_values.size(); }
    bool Has(std::size_t index) const { return index < m_values.size(); }
    const CValue& operator[](std::size_t index) const { return m_values[index]; }
    std::span<const CValue> Values() const { return m_values; }
    std::wstring Function() const { return std::wstring(m_function); }

    // Each of these throws CLispError, with the names of function and argument, for a value of another type.
    std::int32_t Integer(std::size_t index) const;
    double Number(std::size_t index) const;  // a whole number or a real
    const std::wstring& Text(std::size_t index) const;
    const std::wstring& Symbol(std::size_t index) const;
    std::vector<CValue> List(std::size_t index) const;  // the elements; nil has none
    LispPoint Point(std::size_t index) const;           // a list of two or three numbers
    // Uses an open file. Errors of the file become errors of the function.
    void WithFile(std::size_t index, const std::function<void(CLispFile&)>& use) const;

    // Throws CLispError: "FUNCTION needs WHAT as argument N, not VALUE".
    [[noreturn]] void Refuse(std::size_t index, const wchar_t* needed) const;
    // Throws CLispError: "FUNCTION: WHAT".
    [[noreturn]] void Fail(const std::wstring& what) const;

private:
    CEvaluator& m_evaluator;
    std::wstring_view m_function;
    std::span<const CValue> m_values;
};

bool IsNumber(const CValue& value);
// The value of a whole number or a real.
double ToReal(const CValue& number);
// Nothing unless the value is a list of two or three numbers.
std::optional<LispPoint> ToPoint(const CValue& list);

constexpr int kAnyCount = -1;

// For CEvaluator::Define: a function with `least` to `most` arguments (kAnyCount: no limit); any other count
// is an error.
NativeFunction TakeArguments(CEvaluator& evaluator, std::wstring name, int least, int most,
                             std::function<LispResult(const CArguments&)> run);

}  // namespace tavrin::lisp
