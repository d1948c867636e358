#include "tools/rules/FileCheck.h"

#include <filesystem>
#include <iterator>

#include "encoding/Encoding.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/Files.h"
#include "tools/rules/Checker.h"
#include "tools/rules/PictureRules.h"
#include "tools/rules/RoutineCalls.h"

namespace tavrin::tools {

namespace {

bool IsFile(const std::string& name) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(PathOf(name), ignored);
}

void Append(std::vector<Finding>& findings, std::vector<Finding> more) {
    findings.insert(findings.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

// Nothing when it cannot be read: the item's own routine is reported elsewhere, and what it loads is checked
// when it runs.
RoutineContents ReadRoutineOrNothing(const std::string& bytes) {
    try {
        return ReadRoutine(encoding::DecodeUtf8OrWindows1252(bytes));
    } catch (const lisp::CLispError&) {
        return {};
    }
}

}  // namespace

std::vector<Finding> CFileCheck::Check(const ItemFile& file) {
    const std::string bytes = ReadBytes(file.name);
    CheckContext context;
    context.file = file.name;
    context.isWorkingFile = file.isWorkingFile;
    context.texts = m_texts;
    context.usedTexts = &m_usedTexts;
    std::vector<Finding> findings = CheckText(bytes, context);
    if (!file.item.empty()) {
        CheckPair(file, bytes, findings);
    }
    if (!file.item.empty() && !file.isWorkingFile) {
        CheckRoutine(file, findings);
    }
    return findings;
}

// Compares each pair once, when the first of its two files is checked.
void CFileCheck::CheckPair(const ItemFile& file, const std::string& bytes, std::vector<Finding>& findings) {
    const std::string other =
        file.item +
        encoding::EncodeUtf8(file.isWorkingFile ? itemdlg::kTemplateFileEnding : itemdlg::kWorkingFileEnding);
    if (!IsFile(other) || !m_comparedItems.insert(file.item).second) {
        return;
    }
    const std::string otherBytes = ReadBytes(other);
    const NamedBytes mine{file.name, bytes};
    const NamedBytes others{other, otherBytes};
    Append(findings, file.isWorkingFile ? ComparePair(others, mine) : ComparePair(mine, others));
}

void CFileCheck::CheckRoutine(const ItemFile& file, std::vector<Finding>& findings) {
    const std::filesystem::path folder = PathOf(file.item).parent_path();
    PictureContext context;
    context.templateFile = file.name;
    context.routineFile = file.item + ".lsp";
    context.baseName = NameOf(PathOf(file.item).filename());
    context.exists = [&](const std::string& name) { return IsFile(NameOf(folder / PathOf(name))); };
    context.texts = m_texts;
    context.usedTexts = &m_usedTexts;
    if (IsFile(context.routineFile)) {
        context.routine = ReadBytes(context.routineFile);
        TakeLoadedTexts(*context.routine, folder);
    }
    Append(findings, CheckPictures(context));
}

// The texts that the routine's helpers use: files that it loads from its folder or from the parent, where
// item.lsp of the samples is.
void CFileCheck::TakeLoadedTexts(const std::string& routine, const std::filesystem::path& folder) {
    const RoutineContents contents = ReadRoutineOrNothing(routine);
    for (const std::wstring& load : contents.loads) {
        std::filesystem::path file = PathOf(encoding::EncodeUtf8(load));
        if (!file.has_extension()) {
            file += ".lsp";  // as LOAD does
        }
        for (const std::filesystem::path& parent : {folder, folder / ".."}) {
            const std::string name = NameOf(parent / file);
            if (IsFile(name)) {
                const RoutineContents loaded = ReadRoutineOrNothing(ReadBytes(name));
                for (const unsigned number : loaded.textNumbers) {
                    m_usedTexts.set(number);
                }
                break;
            }
        }
    }
}

}  // namespace tavrin::tools
