// Checks item files on disk: each by itself, against the other file of its item, and its pictures and
// routine.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "tools/files/FileList.h"
#include "tools/rules/Finding.h"
#include "tools/rules/TextRules.h"
#include "tools/texts/TextTable.h"

namespace tavrin::tools {

class CFileCheck {
public:
    // `texts`, which placeholders stand for, must outlive this object; null when unknown.
    explicit CFileCheck(const CTextTable* texts) : m_texts(texts) {}

    // The findings of a file. A template and its working file are compared when the first of the two is
    // checked; pictures and the routine are checked with the template. Throws CToolError when a file cannot
    // be read.
    std::vector<Finding> Check(const ItemFile& file);

    // The numbers of the texts that the files checked so far use.
    const TextNumbers& UsedTexts() const { return m_usedTexts; }

private:
    void CheckPair(const ItemFile& file, const std::string& bytes, std::vector<Finding>& findings);
    void CheckRoutine(const ItemFile& file, std::vector<Finding>& findings);
    void TakeLoadedTexts(const std::string& routine, const std::filesystem::path& folder);

    const CTextTable* m_texts;
    TextNumbers m_usedTexts;
    std::set<std::string> m_comparedItems;
};

}  // namespace tavrin::tools
