// A LISP value: nil, a 32-bit whole number, a real, a text, a symbol or a pair (lists are chains of pairs
// that end in nil). Values are immutable and cheap to copy; they share texts and pairs, never in cycles.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

enum EValueType { VT_NIL, VT_INTEGER, VT_REAL, VT_STRING, VT_SYMBOL, VT_PAIR };

class CPair;

class CValue {
public:
    CValue() = default;  // nil
    static CValue Integer(std::int32_t number);
    static CValue Real(double number);
    static CValue String(std::wstring text);
    // Symbols do not distinguish case and carry their name in capitals; "nil" gives nil.
    static CValue Symbol(std::wstring_view name);
    static CValue Pair(CValue car, CValue cdr);
    static CValue List(std::span<const CValue> elements, CValue tail = {});
    static CValue True();

    EValueType Type() const { return EValueType(m_data.index()); }
    bool IsNil() const { return Type() == VT_NIL; }
    bool IsSymbol(std::wstring_view upperCaseName) const;

    // Each of these only for a value of that type.
    std::int32_t AsInteger() const { return std::get<VT_INTEGER>(m_data); }
    double AsReal() const { return std::get<VT_REAL>(m_data); }
    const std::wstring& AsString() const { return *std::get<VT_STRING>(m_data).text; }
    const std::wstring& AsSymbol() const { return *std::get<VT_SYMBOL>(m_data).name; }
    const CValue& Car() const;
    const CValue& Cdr() const;

private:
    friend class CPair;

    struct SString {
        std::shared_ptr<const std::wstring> text;
    };
    struct SSymbol {
        std::shared_ptr<const std::wstring> name;
    };
    using CPairPtr = std::shared_ptr<CPair>;

    // In the order of EValueType.
    std::variant<std::monostate, std::int32_t, double, SString, SSymbol, CPairPtr> m_data;
};

// The name in capitals: ASCII letters alone, so that no locale decides which names are the same.
std::wstring UpperCase(std::wstring_view name);
