#include "devhost/app/ResbufList.h"

#include <climits>
#include <cstdint>
#include <vector>

#include "devhost/Libraries.h"
#include "lisp/LispError.h"
#include "lisp/Printer.h"

namespace devhost {

namespace {

// A longer list is taken for a cyclic one.
constexpr std::size_t kMaxRecords = 1'000'000;

std::optional<lisp::CValue> ToLispValue(const sds_resbuf& record) {
    switch (record.type) {
        case RTNONE:
            return lisp::CValue();
        case RTREAL:
            return lisp::CValue::Real(record.value.real);
        case RTSHORT:
            return lisp::CValue::Integer(record.value.integer);
        case RTSTR:
            if (record.value.string == nullptr) {
                return std::nullopt;
            }
            return lisp::CValue::String(record.value.string);
        default:
            return std::nullopt;
    }
}

}  // namespace

void CResbufList::AddReal(double number) {
    Add(RTREAL).value.real = number;
}

void CResbufList::AddShort(short number) {
    Add(RTSHORT).value.integer = number;
}

void CResbufList::AddString(std::wstring_view text) {
    m_texts.emplace_back(text);
    Add(RTSTR).value.string = m_texts.back().data();
}

sds_resbuf& CResbufList::Add(short type) {
    sds_resbuf* last = m_records.empty() ? nullptr : &m_records.back();
    sds_resbuf& record = m_records.emplace_back();
    record.type = type;
    if (last != nullptr) {
        last->next = &record;
    }
    return record;
}

void AddArgument(CResbufList& list, const lisp::CValue& value, std::wstring_view name) {
    switch (value.Type()) {
        case lisp::VT_INTEGER: {
            const std::int32_t number = value.AsInteger();
            if (number < SHRT_MIN || number > SHRT_MAX) {
                throw lisp::CLispError(std::wstring(name) + L" cannot take " + lisp::Print(value) +
                                       L": whole numbers are passed in 16 bits, -32768 to 32767");
            }
            list.AddShort(static_cast<short>(number));
            break;
        }
        case lisp::VT_REAL:
            list.AddReal(value.AsReal());
            break;
        case lisp::VT_STRING:
            list.AddString(value.AsString());
            break;
        default:
            throw lisp::CLispError(std::wstring(name) + L" cannot take " + lisp::Print(value) +
                                   L": only numbers and texts are passed");
    }
}

std::optional<lisp::CValue> ToLisp(const sds_resbuf* list) {
    std::vector<lisp::CValue> elements;
    for (; list != nullptr; list = list->next) {
        const auto element = ToLispValue(*list);
        if (!element || elements.size() == kMaxRecords) {
            return std::nullopt;
        }
        elements.push_back(*element);
    }
    return lisp::CValue::List(elements);
}

}  // namespace devhost
