// Reads and rewrites the parameters of an item's files with PCRE2 and std::from_chars: the work of ReadItem
// and RewriteTemplateFile as one would write it with these libraries.
#pragma once

#include <memory>

#include "itemdlg/ItemContents.h"

namespace tavrin::benchmarks {

using namespace tavrin::itemdlg;

class CPeerReader {
public:
    // With the patterns compiled to machine code, or interpreted.
    explicit CPeerReader(bool jit);
    ~CPeerReader();
    CPeerReader(const CPeerReader&) = delete;
    CPeerReader& operator=(const CPeerReader&) = delete;

    // The same records as ReadItem gives at scale 1 and in read-only mode.
    tavrin::itemdlg::ItemContents Read(const tavrin::itemdlg::TextLines& lines,
                                       const tavrin::itemdlg::TextLookup& lookup) const;

    void RewriteTemplate(tavrin::itemdlg::TextLines& lines, const tavrin::itemdlg::ParamRecordMap& records,
                         const tavrin::itemdlg::ValueTextOf& valueTextOf) const;

private:
    class CPattern;

    int PlaceholderOf(std::wstring_view text) const;
    bool ReadLine(const std::wstring& line, const tavrin::itemdlg::TextLookup& lookup,
                  tavrin::itemdlg::ItemParameter& parameter) const;

    std::unique_ptr<CPattern> m_parameter;
    std::unique_ptr<CPattern> m_placeholder;
};

}  // namespace tavrin::benchmarks
