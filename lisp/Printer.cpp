#include "lisp/Printer.h"

#include <charconv>
#include <cmath>
#include <vector>

#include "lisp/Function.h"
#include "lisp/LispError.h"
#include "lisp/LispFile.h"

namespace tavrin::lisp {

namespace {

constexpr std::size_t kExcerptLength = 60;
// Lists that share their parts can be too long as text for any memory.
constexpr std::size_t kMaxLength = 4'000'000;

std::wstring RealText(double number) {
    if (std::isnan(number)) {
        return L"nan";
    }
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
    std::wstring text(buffer, end);
    if (std::isfinite(number) && text.find_first_of(L".e") == std::wstring::npos) {
        text += L".0";
    }
    return text;
}

std::wstring QuotedText(const std::wstring& text) {
    std::wstring quoted = L"\"";
    for (const wchar_t c : text) {
        switch (c) {
            case L'"':
                quoted += L"\\\"";
                break;
            case L'\\':
                quoted += L"\\\\";
                break;
            case L'\n':
                quoted += L"\\n";
                break;
            case L'\r':
                quoted += L"\\r";
                break;
            case L'\t':
                quoted += L"\\t";
                break;
            default:
                quoted += c;
        }
    }
    return quoted + L'"';
}

std::wstring AtomText(const CValue& atom, bool quoted) {
    switch (atom.Type()) {
        case VT_INTEGER:
            return std::to_wstring(atom.AsInteger());
        case VT_REAL:
            return RealText(atom.AsReal());
        case VT_STRING:
            return quoted ? QuotedText(atom.AsString()) : atom.AsString();
        case VT_SYMBOL:
            return atom.AsSymbol();
        case VT_FUNCTION:
            return L"<function " + atom.AsFunction()->name + L'>';
        case VT_FILE:
            return L"<file " + atom.AsFile().Name() + L'>';
        default:
            return L"nil";
    }
}

// Without recursion, since lists nest as deep as memory allows. May stop beyond `enough` characters.
std::wstring Text(const CValue& value, bool quoted, std::size_t enough) {
    std::wstring text;
    std::vector<const CValue*> rests;  // of the open lists: their remaining elements
    const CValue* next = &value;
    while (next != nullptr && text.size() <= enough) {
        if (next->Type() == VT_PAIR) {
            text += L'(';
            rests.push_back(&next->Cdr());
            next = &next->Car();
            continue;
        }
        text += AtomText(*next, quoted);
        next = nullptr;
        while (next == nullptr && !rests.empty()) {
            const CValue*& rest = rests.back();
            if (rest->Type() == VT_PAIR) {
                text += L' ';
                next = &rest->Car();
                rest = &rest->Cdr();
                continue;
            }
            if (!rest->IsNil()) {
                text += L" . " + AtomText(*rest, quoted);
            }
            text += L')';
            rests.pop_back();
        }
    }
    return text;
}

std::wstring WholeText(const CValue& value, bool quoted) {
    std::wstring text = Text(value, quoted, kMaxLength);
    if (text.size() > kMaxLength) {
        throw CLispError(L"a value is too long to be printed: " + Excerpt(value));
    }
    return text;
}

}  // namespace

std::wstring Print(const CValue& value) {
    return WholeText(value, true);
}

std::wstring Display(const CValue& value) {
    return WholeText(value, false);
}

std::wstring Excerpt(const CValue& value) {
    if (value.IsSymbol(L"")) {
        return L"what (princ) gives";
    }
    std::wstring text = Text(value, true, kExcerptLength);
    if (text.size() > kExcerptLength) {
        text.replace(kExcerptLength, std::wstring::npos, L"...");
    }
    return text;
}

}  // namespace tavrin::lisp
