// Writing an item's values back into its two files: the short assignments that the LISP caller reads in the
// working file, and the new defaults in the template file. Both work on the lines of a file as read, without
// line ends, and change only the lines that they mean to; every other line stays as it is, null characters
// included.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "itemdlg/ParamRecord.h"

namespace tavrin::itemdlg {

using TextLines = std::vector<std::wstring>;

// Gives the text of the value that a parameter has now.
using ValueTextOf = std::function<std::wstring(const ParamRecord& record)>;

// The text of the value that a record holds: I as a whole number, D and R divided by the scale and with six
// significant digits, which is all that the files keep (1234567.891 becomes 1.23457e+06); empty for U.
std::wstring ValueText(const ParamRecord& record, double scale);

// The assignment line: "$3 = 2" for I, "#1 = 900" for all others.
std::wstring WorkingFileLine(const ParamRecord& record, const std::wstring& valueText);

// The parameter line: $1 = "<<1501>>"D900. Its label always has the form prefix, placeholder, suffix, so that
// one that held no placeholder comes back with "<<0>>" instead of its first character; a read-only mark
// comes back in the suffix. There is no blank between the type letter and the value.
std::wstring TemplateFileLine(const ParamRecord& record, const std::wstring& valueText);

// Replaces each line whose index has a record by the assignment line, inside a block or not: the file must
// still have the layout that the records were read from. Records beyond its end are skipped. A record of
// type U is assigned nothing, and `valueTextOf` is not called for it.
void RewriteWorkingFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf);

// Replaces, for each record, the last line inside a block that has the record's number, compared as text
// ("01" is not "1"). Records whose number does not occur and those of type U are skipped. `valueTextOf` is
// called in the order of the records' lines.
void RewriteTemplateFile(TextLines& lines, const ParamRecordMap& records, const ValueTextOf& valueTextOf);

}  // namespace tavrin::itemdlg
