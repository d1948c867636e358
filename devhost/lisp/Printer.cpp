#include "Printer.h"

#include <charconv>
#include <cmath>

namespace {

std::wstring RealText(double number) {
    if (std::isnan(number))
        return L"nan";
    char buffer[64];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, number).ptr;
    std::wstring text(buffer, end);
    if (std::isfinite(number) && text.find_first_of(L".e") == std::wstring::npos)
        text += L".0";
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
            case L'\t':
                quoted += L"\\t";
                break;
            default:
                quoted += c;
        }
    }
    return quoted + L'"';
}

std::wstring ListText(const CValue& list) {
    std::wstring text = L"(" + Print(list.Car());
    const CValue* rest = &list.Cdr();
    for (; rest->Type() == VT_PAIR; rest = &rest->Cdr())
        text += L' ' + Print(rest->Car());
    if (!rest->IsNil())
        text += L" . " + Print(*rest);
    return text + L')';
}

}  // namespace

std::wstring Print(const CValue& value) {
    switch (value.Type()) {
        case VT_INTEGER:
            return std::to_wstring(value.AsInteger());
        case VT_REAL:
            return RealText(value.AsReal());
        case VT_STRING:
            return QuotedText(value.AsString());
        case VT_SYMBOL:
            return value.AsSymbol();
        case VT_PAIR:
            return ListText(value);
        default:
            return L"nil";
    }
}
