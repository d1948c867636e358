// The texts of the companion resource module TavrinRes.dll, by number and language: what placeholders in an
// item's files stand for.
//
//     CTextTable texts;
//     texts.ReadFile("samples/texts/TavrinRes.it.rc");
//     texts.Load(1501);  // "Larghezza anta"
//
// Texts are read from the script that the module is made from (see CStringScript) or from the module itself,
// a DLL or EXE file (see StringModule.h). Several files may be read one after the other, the modules of
// several languages for instance.
//
// Texts are UTF-16 everywhere, one unit to a wchar_t also where that is wider, since the module's limits
// count units.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/files/Files.h"

struct SText {
    unsigned number = 0;       // 0 to 65535
    std::wstring text;         // the whole text, as the file has it
    std::size_t language = 0;  // in CTextTable::Languages
    std::size_t file = 0;      // in CTextTable::Files
    std::size_t line = 0;      // in a script, from 1; 0 in a module
    std::size_t column = 0;    // in bytes, from 1; 0 together with the line
};

class CTextTable {
public:
    // The module takes so many units of a text and drops what follows.
    static constexpr std::size_t kLongestText = 255;

    // Reads the file of that name, whichever of the two kinds it is, and adds its texts. Throws CToolError,
    // having added nothing, when the file cannot be read, when it is no well-formed file of its kind or has
    // no texts, or when it holds a text that is there already in the same language.
    void ReadFile(const std::string& name);

    // The same from a file's bytes, which may have no texts; `name` (UTF-8) stands for the file in messages
    // and in Files.
    void ReadBytes(const std::string& name, std::string_view bytes);

    // The files that were read, and the languages of their texts, both in the order of their appearance. A
    // script names its languages as its LANGUAGE lines do ("LANG_ITALIAN, SUBLANG_ITALIAN"); a language
    // that is given by number is "language 0x0410", and a script without LANGUAGE has one of its own.
    const std::vector<std::string>& Files() const { return m_files; }
    const std::vector<std::string>& Languages() const { return m_languages; }

    // All texts, in the order in which the files hold them.
    const std::vector<SText>& Texts() const { return m_texts; }

    // The text with a number in a language, or in the first language that has it; null when there is none.
    // The address stays good until more is read.
    const SText* Find(unsigned number, std::size_t language) const;
    const SText* Find(unsigned number) const;

    // The text with a number, in the first language that has it, as the module loads it: at most
    // kLongestText units, up to the first null character; empty when there is none.
    std::wstring Load(unsigned number) const;

private:
    using Key = std::pair<unsigned, std::size_t>;  // number, language

    struct Reading;
    void Add(Reading reading);

    std::vector<std::string> m_files;
    std::vector<std::string> m_languages;
    std::vector<SText> m_texts;
    std::map<Key, std::size_t> m_places;  // in m_texts
};
