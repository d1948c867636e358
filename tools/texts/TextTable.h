// The texts of the resource module TavrinRes.dll, by number and language: the texts of placeholders.
//
//     CTextTable texts;
//     texts.ReadFile("samples/texts/TavrinRes.it.rc");
//     texts.Load(1501);  // "Larghezza anta"
//
// Texts are read from the module's script (StringScript.h) or from the module itself, a DLL or EXE file
// (StringModule.h). Several files may be read, for example one per language.
//
// Texts are UTF-16, one unit to a wchar_t even where that is wider, since the module's limits count units.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/files/Files.h"

namespace tavrin::tools {

struct TextEntry {
    unsigned number = 0;       // 0 to 65535
    std::wstring text;         // the whole text, as the file has it
    std::size_t language = 0;  // in CTextTable::Languages
    std::size_t file = 0;      // in CTextTable::Files
    std::size_t line = 0;      // in a script, from 1; 0 in a module
    std::size_t column = 0;    // in bytes, from 1; 0 together with the line
};

class CTextTable {
public:
    // The module truncates longer texts.
    static constexpr std::size_t kLongestText = 255;

    // Adds the texts of a script or a module. Throws CToolError, without adding anything, when the file
    // cannot be read, is invalid or has no texts, and when it has another text for a number that is in the
    // table already in the same language. The same text again, as of the module itself, is left out.
    void ReadFile(const std::string& name);

    // The same from a file's bytes, which may have no texts; `name` (UTF-8) is the file's name in messages
    // and in Files.
    void ReadBytes(const std::string& name, std::string_view bytes);

    // The files that were read, and the languages of their texts, both in order of appearance. The name of a
    // language is that of the LANGUAGE line ("LANG_ITALIAN, SUBLANG_ITALIAN"), or "language 0x0410" if it is
    // given by number; each script without LANGUAGE has a language of its own.
    const std::vector<std::string>& Files() const { return m_files; }
    const std::vector<std::string>& Languages() const { return m_languages; }
    // The number of a language in resources; nothing when its name is not known.
    std::optional<unsigned> LanguageIdOf(std::size_t language) const { return m_languageIds[language]; }

    // All texts, in the order in which the files hold them.
    const std::vector<TextEntry>& Texts() const { return m_texts; }

    // The text with a number in a language, or in the first language that has it; null when there is none.
    // The address stays valid until more is read.
    const TextEntry* Find(unsigned number, std::size_t language) const;
    const TextEntry* Find(unsigned number) const;

    // The text with a number, in the first language that has it, as the module loads it: at most
    // kLongestText units, up to the first null character; empty when there is none.
    std::wstring Load(unsigned number) const;

private:
    using Key = std::pair<unsigned, std::size_t>;  // number, language

    struct Reading;
    void Add(Reading reading);

    std::vector<std::string> m_files;
    std::vector<std::string> m_languages;
    std::vector<std::optional<unsigned>> m_languageIds;
    std::vector<TextEntry> m_texts;
    std::map<Key, std::size_t> m_indices;  // in m_texts
};

}  // namespace tavrin::tools
