// Lists of the host interface, and their conversion from and to LISP values.
#pragma once

#include <windows.h>

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "devhost/Libraries.h"
#include "lisp/Value.h"
#include "sds/sds.h"

namespace devhost {

// Owns the records of one list and their texts; the addresses stay valid during its lifetime.
class CResbufList {
public:
    void AddReal(double number);
    void AddShort(short number);
    void AddString(std::wstring_view text);

    // Null when the list is empty.
    sds_resbuf* First() { return m_records.empty() ? nullptr : &m_records.front(); }

private:
    sds_resbuf& Add(short type);

    std::deque<sds_resbuf> m_records;
    std::deque<std::wstring> m_texts;
};

// Appends `value` as an argument of the function `name`. Throws CLispError for values that cannot be
// arguments: whole numbers beyond 16 bits, lists, symbols, T and nil.
void AddArgument(CResbufList& list, const lisp::CValue& value, std::wstring_view name);

// The list as a LISP value; nothing when a record has an unknown type, a text is null, or the list is cyclic.
std::optional<lisp::CValue> ToLisp(const sds_resbuf* list);

}  // namespace devhost
