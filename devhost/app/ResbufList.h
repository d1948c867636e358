// Lists of the host interface, and how LISP values pass through them.
#pragma once

#include <windows.h>

#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "lisp/Value.h"
#include "sds/sds.h"

// Owns the records of one list and the texts in them; their addresses hold as long as the list lives.
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

// Appends `value` as an argument of the function `name`. Throws CLispError for a value that arguments
// cannot be: a whole number beyond 16 bits, a list, a symbol, T or nil.
void AddArgument(CResbufList& list, const CValue& value, std::wstring_view name);

// The list as LISP sees it; nothing when a record in it is of a type that LISP has no value for, a text is
// missing, or the list has no end.
std::optional<CValue> ToLisp(const sds_resbuf* list);
