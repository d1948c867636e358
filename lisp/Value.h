// A LISP value: nil, a 32-bit whole number, a real, a text, a symbol, a pair (lists are chains of pairs that
// end in nil), a function or an open file. Values are cheap to copy: copies share their contents. There are
// no cycles, and all values but files are immutable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tavrin::lisp {

enum EValueType { VT_NIL, VT_INTEGER, VT_REAL, VT_STRING, VT_SYMBOL, VT_PAIR, VT_FUNCTION, VT_FILE };

class CHeldText;
class CPair;
class CLispFile;
struct FunctionObject;

// Where a list begins in a source.
struct SourceLine {
    int line = 0;  // from 1; 0 for a list that was not read
    int file = 0;  // by its number, see Source.h; 0 for typed text
};

class CValue {
public:
    CValue() noexcept;  // nil
    CValue(const CValue& other);
    CValue(CValue&& other) noexcept;  // leaves nil behind
    CValue& operator=(const CValue& other);
    CValue& operator=(CValue&& other) noexcept;
    ~CValue();
    static CValue Integer(std::int32_t number);
    static CValue Real(double number);
    static CValue String(std::wstring text);
    // Symbols are not case-sensitive and carry their name in capitals; "nil" gives nil.
    static CValue Symbol(std::wstring_view name);
    static CValue Pair(CValue car, CValue cdr, SourceLine line = {});
    static CValue List(std::span<const CValue> elements, CValue tail = {}, SourceLine line = {});
    static CValue Function(std::shared_ptr<FunctionObject> function);
    static CValue File(std::shared_ptr<CLispFile> file);
    static CValue True();
    // T or nil.
    static CValue Truth(bool holds);

    EValueType Type() const { return static_cast<EValueType>(m_data.index()); }
    bool IsNil() const { return Type() == VT_NIL; }
    bool IsSymbol(std::wstring_view upperCaseName) const;

    // Each requires a value of its type.
    std::int32_t AsInteger() const { return std::get<VT_INTEGER>(m_data); }
    double AsReal() const { return std::get<VT_REAL>(m_data); }
    const std::wstring& AsString() const;
    const std::wstring& AsSymbol() const;
    const CValue& Car() const;
    const CValue& Cdr() const;
    SourceLine Line() const;
    std::shared_ptr<const FunctionObject> AsFunction() const { return std::get<VT_FUNCTION>(m_data); }
    CLispFile& AsFile() const { return *std::get<VT_FILE>(m_data); }

    // The approximate memory that the pairs and texts of all values use, in bytes.
    static std::size_t HeldBytes();

    // Identity: equal numbers of one type, the same symbol, text, pair, function or file.
    bool IsSameAs(const CValue& other) const;

private:
    friend class CPair;
    friend struct FunctionObject;

    struct StringData {
        std::shared_ptr<const CHeldText> text;
    };
    struct SymbolData {
        std::shared_ptr<const CHeldText> name;
    };

    void MovePartsTo(std::vector<CValue>& parts);
    static void Release(std::vector<CValue>& parts);

    // In the order of EValueType.
    std::variant<std::monostate, std::int32_t, double, StringData, SymbolData, std::shared_ptr<CPair>,
                 std::shared_ptr<FunctionObject>, std::shared_ptr<CLispFile>>
        m_data;
};

// The result of an evaluation; nothing when a function set no result.
using LispResult = std::optional<CValue>;

// The name in capitals. Only ASCII letters change, so that names do not depend on the locale.
std::wstring UpperCase(std::wstring_view name);

}  // namespace tavrin::lisp
