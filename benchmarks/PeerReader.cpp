#include "benchmarks/PeerReader.h"

// The width of wchar_t where these benchmarks run.
#define PCRE2_CODE_UNIT_WIDTH 32
#include <pcre2.h>

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "benchmarks/PeerPatterns.h"
#include "itemdlg/ItemFiles.h"

namespace tavrin::benchmarks {

using namespace tavrin::itemdlg;

class CPeerReader::CPattern {
public:
    CPattern(std::string_view pattern, bool jit) : m_match(jit ? pcre2_jit_match : pcre2_match) {
        const std::u32string wide(pattern.begin(), pattern.end());
        int error = 0;
        PCRE2_SIZE offset = 0;
        m_code.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(wide.data()), wide.size(),
                                   PCRE2_CASELESS | PCRE2_DOTALL | PCRE2_DOLLAR_ENDONLY, &error, &offset,
                                   nullptr));
        if (m_code == nullptr || (jit && pcre2_jit_compile(m_code.get(), PCRE2_JIT_COMPLETE) != 0)) {
            throw std::runtime_error("PCRE2 does not compile the pattern");
        }
        m_data.reset(pcre2_match_data_create_from_pattern(m_code.get(), nullptr));
    }

    bool Match(std::wstring_view text) {
        m_text = text;
        return m_match(m_code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()), text.size(), 0, 0,
                       m_data.get(), nullptr) > 0;
    }

    // Of the last match; from 1.
    std::wstring_view Group(std::size_t index) const {
        const PCRE2_SIZE* offsets = pcre2_get_ovector_pointer(m_data.get());
        return m_text.substr(offsets[2 * index], offsets[2 * index + 1] - offsets[2 * index]);
    }

private:
    struct Free {
        void operator()(pcre2_code* code) const { pcre2_code_free(code); }
        void operator()(pcre2_match_data* data) const { pcre2_match_data_free(data); }
    };

    decltype(&pcre2_match) m_match;
    std::unique_ptr<pcre2_code, Free> m_code;
    std::unique_ptr<pcre2_match_data, Free> m_data;
    std::wstring_view m_text;
};

namespace {

// The number that a text begins with, after blanks; 0 if there is none.
template <class TNumber>
TNumber NumberOf(std::wstring_view text) {
    const std::size_t start = text.find_first_not_of(L' ');
    std::string bytes;
    for (const wchar_t character : start == std::wstring_view::npos ? L"" : text.substr(start)) {
        bytes.push_back(static_cast<char>(character));
    }
    TNumber value{};
    std::from_chars(bytes.data(), bytes.data() + bytes.size(), value);
    return value;
}

void SetValue(ParamRecord& record, std::wstring_view value) {
    if (record.type == 'I') {
        record.intValue = static_cast<int>(std::floor(NumberOf<double>(value)));
    } else {
        record.realValue = NumberOf<double>(value);
    }
}

}  // namespace

CPeerReader::CPeerReader(bool jit)
    : m_parameter(std::make_unique<CPattern>(kPeerParameterPattern, jit)),
      m_placeholder(std::make_unique<CPattern>(kPeerPlaceholderPattern, jit)) {}

CPeerReader::~CPeerReader() = default;

int CPeerReader::PlaceholderOf(std::wstring_view text) const {
    return m_placeholder->Match(text) ? NumberOf<int>(m_placeholder->Group(1)) : 0;
}

bool CPeerReader::ReadLine(const std::wstring& line, const TextLookup& lookup,
                           ItemParameter& parameter) const {
    if (!m_parameter->Match(line)) {
        return false;
    }
    ParamRecord& record = parameter.record;
    const std::wstring_view label = m_parameter->Group(2);
    const std::size_t opening = label.find(L"<<");
    const std::size_t closing = label.find(L">>");
    record.number = m_parameter->Group(1);
    record.labelPrefix = opening == std::wstring_view::npos ? L"" : label.substr(0, opening);
    record.labelSuffix = closing == std::wstring_view::npos ? label : label.substr(closing + 2);
    record.type = m_parameter->Group(3).front();
    SetValue(record, m_parameter->Group(4));
    if (const int number = PlaceholderOf(label); number != 0) {
        record.label = record.labelPrefix + lookup(static_cast<unsigned>(number)) + record.labelSuffix;
        record.resourceId = PlaceholderOf(line);
    } else {
        record.label = label;
    }
    if (record.label.ends_with(L'%')) {
        record.label.pop_back();
        parameter.editable = false;
    }
    return true;
}

ItemContents CPeerReader::Read(const TextLines& lines, const TextLookup& lookup) const {
    ItemContents item;
    item.parameters.reserve(lines.size());
    std::unordered_set<std::wstring_view> labels;
    bool inBlock = false;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (!inBlock || lines[index] == L"END_VAR") {
            inBlock = lines[index] == L"VAR";
            continue;
        }
        ItemParameter& parameter = item.parameters.emplace_back();
        if (!ReadLine(lines[index], lookup, parameter)) {
            item.parameters.pop_back();
            continue;
        }
        parameter.record.lineIndex = static_cast<std::int32_t>(index);
        parameter.row = labels.insert(parameter.record.label).second ? PR_SHOWN : PR_LABEL_TAKEN;
    }
    return item;
}

void CPeerReader::RewriteTemplate(TextLines& lines, const ParamRecordMap& records,
                                  const ValueTextOf& valueTextOf) const {
    std::unordered_map<std::wstring, std::size_t> lineOf;
    bool inBlock = false;
    for (std::size_t index = 0; index < lines.size(); ++index) {
        if (!inBlock || lines[index] == L"END_VAR") {
            inBlock = lines[index] == L"VAR";
        } else if (m_parameter->Match(lines[index])) {
            lineOf[std::wstring(m_parameter->Group(1))] = index;
        }
    }
    for (const auto& [index, record] : records) {
        if (const auto line = lineOf.find(record.number); line != lineOf.end()) {
            lines[line->second] = L'$' + record.number + L" = \"" + record.labelPrefix + L"<<" +
                                  std::to_wstring(record.resourceId) + L">>" + record.labelSuffix + L'"' +
                                  static_cast<wchar_t>(record.type) + valueTextOf(record);
        }
    }
}

}  // namespace tavrin::benchmarks
