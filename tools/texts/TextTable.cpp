#include "tools/texts/TextTable.h"

#include <utility>

#include "tools/texts/PlaceError.h"
#include "tools/texts/StringModule.h"
#include "tools/texts/StringScript.h"

// A file's texts before they are known to fit in with the others; their languages by name.
struct CTextTable::Reading {
    struct Entry {
        unsigned number;
        std::wstring text;
        std::string language;
        std::size_t line;
        std::size_t column;
    };
    std::string file;
    std::vector<Entry> entries;
};

void CTextTable::ReadFile(const std::string& name) {
    const std::size_t before = m_texts.size();
    ReadBytes(name, ::ReadBytes(name));
    if (m_texts.size() == before) {
        throw CToolError(name + ": there are no texts in it: name a string table script or a DLL");
    }
}

void CTextTable::ReadBytes(const std::string& name, std::string_view bytes) {
    Reading reading{name, {}};
    if (LooksLikeModule(bytes)) {
        for (SModuleText& text : ReadStringModule(name, bytes)) {
            reading.entries.push_back({text.number, std::move(text.text), std::move(text.language), 0, 0});
        }
    } else {
        for (SScriptText& text : ReadStringScript(name, bytes).texts) {
            reading.entries.push_back(
                {text.number, std::move(text.text), std::move(text.language), text.line, text.column});
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
        }
        const auto [place, isFirst] =
            whole.m_places.try_emplace({entry.number, language->second}, whole.m_texts.size());
        if (!isFirst) {
            const SText& other = whole.m_texts[place->second];
            const std::string message = "text " + std::to_string(entry.number) + " is there already, in " +
                                        whole.m_files[other.file] +
                                        (other.line != 0 ? ":" + std::to_string(other.line) : "");
            throw entry.line != 0 ? PlaceError(reading.file, entry.line, message)
                                  : CToolError(reading.file + ": " + message);
        }
        whole.m_texts.push_back({entry.number, std::move(entry.text), language->second,
                                 whole.m_files.size() - 1, entry.line, entry.column});
    }
    *this = std::move(whole);
}

const SText* CTextTable::Find(unsigned number, std::size_t language) const {
    const auto found = m_places.find({number, language});
    return found != m_places.end() ? &m_texts[found->second] : nullptr;
}

const SText* CTextTable::Find(unsigned number) const {
    const auto found = m_places.lower_bound({number, 0});
    return found != m_places.end() && found->first.first == number ? &m_texts[found->second] : nullptr;
}

std::wstring CTextTable::Load(unsigned number) const {
    const SText* const found = Find(number);
    if (found == nullptr) {
        return {};
    }
    const std::wstring text = found->text.substr(0, kLongestText);
    return text.substr(0, text.find(L'\0'));
}
