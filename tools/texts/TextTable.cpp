#include "tools/texts/TextTable.h"

#include <utility>

#include "tools/texts/LineError.h"
#include "tools/texts/StringModule.h"
#include "tools/texts/StringScript.h"

namespace tavrin::tools {

// A file's texts before they are checked against the others; their languages by name.
struct CTextTable::Reading {
    struct Entry {
        unsigned number;
        std::wstring text;
        std::string language;
        std::optional<unsigned> languageId;
        std::size_t line;
        std::size_t column;
    };
    std::string file;
    std::vector<Entry> entries;
};

namespace {

// A script that was copied to be translated has the language of the original, until its line LANGUAGE is
// changed.
std::string HintAtLanguage(const std::string& language, bool isOtherFile) {
    return isOtherFile ? "; both are in " + language +
                             ": is a line LANGUAGE wrong, or does another item use the number?"
                       : "";
}

}  // namespace

void CTextTable::ReadFile(const std::string& name) {
    const std::size_t before = m_texts.size();
    ReadBytes(name, tools::ReadBytes(name));
    if (m_texts.size() == before) {
        throw CToolError(name + ": it contains no texts: give a string table script or a DLL");
    }
}

void CTextTable::ReadBytes(const std::string& name, std::string_view bytes) {
    Reading reading{name, {}};
    if (LooksLikeModule(bytes)) {
        for (ModuleText& text : ReadStringModule(name, bytes)) {
            reading.entries.push_back(
                {text.number, std::move(text.text), std::move(text.language), text.languageId, 0, 0});
        }
    } else {
        for (ScriptText& text : ReadStringScript(name, bytes).texts) {
            reading.entries.push_back({text.number, std::move(text.text), std::move(text.language),
                                       text.languageId, text.line, text.column});
        }
    }
    Add(std::move(reading));
}

void CTextTable::Add(Reading reading) {
    CTextTable whole = *this;
    whole.m_files.push_back(reading.file);
    std::map<std::string, std::size_t> languages;
    for (std::size_t i = 0; i < m_languages.size(); ++i) {
        languages[m_languages[i]] = i;
    }
    for (Reading::Entry& entry : reading.entries) {
        if (entry.language.empty()) {
            entry.language = "the language of " + reading.file;
        }
        const auto [language, isNew] = languages.try_emplace(entry.language, languages.size());
        if (isNew) {
            whole.m_languages.push_back(entry.language);
            whole.m_languageIds.push_back(entry.languageId);
        }
        const auto [index, isFirst] =
            whole.m_indices.try_emplace({entry.number, language->second}, whole.m_texts.size());
        if (!isFirst) {
            const TextEntry& other = whole.m_texts[index->second];
            const bool isOtherFile = other.file + 1 != whole.m_files.size();
            if (isOtherFile && other.text == entry.text) {
                continue;
            }
            const std::string message = "text " + std::to_string(entry.number) + " already exists, in " +
                                        whole.m_files[other.file] +
                                        (other.line != 0 ? ":" + std::to_string(other.line) : "") +
                                        HintAtLanguage(entry.language, isOtherFile);
            throw entry.line != 0 ? LineError(reading.file, entry.line, message)
                                  : CToolError(reading.file + ": " + message);
        }
        whole.m_texts.push_back({entry.number, std::move(entry.text), language->second,
                                 whole.m_files.size() - 1, entry.line, entry.column});
    }
    *this = std::move(whole);
}

const TextEntry* CTextTable::Find(unsigned number, std::size_t language) const {
    const auto found = m_indices.find({number, language});
    return found != m_indices.end() ? &m_texts[found->second] : nullptr;
}

const TextEntry* CTextTable::Find(unsigned number) const {
    const auto found = m_indices.lower_bound({number, 0});
    return found != m_indices.end() && found->first.first == number ? &m_texts[found->second] : nullptr;
}

std::wstring CTextTable::Load(unsigned number) const {
    const TextEntry* const found = Find(number);
    if (found == nullptr) {
        return {};
    }
    const std::wstring text = found->text.substr(0, kLongestText);
    return text.substr(0, text.find(L'\0'));
}

}  // namespace tavrin::tools
