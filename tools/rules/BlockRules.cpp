#include "tools/rules/BlockRules.h"

#include <utility>

#include "itemdlg/BlockTracker.h"
#include "itemdlg/ItemFiles.h"
#include "tools/rules/Characters.h"
#include "tools/rules/LineRules.h"

namespace tavrin::tools {

namespace {

constexpr Rule kBlockMissing = {
    "block-missing", SV_WARNING, "the file has no parameter block",
    "Parameters must be between a line VAR and a line END_VAR. Without a block the dialog has no rows.",
    "Hinged door\n<<2001>>\n$1 = \"<<1501>>\"D 900"};

constexpr Rule kBlockLineMisspelt = {
    "block-line-misspelt", SV_ERROR, "VAR or END_VAR is misspelt",
    "The lines that open and close a block must match exactly: capitals, without blanks, tabs or other\n"
    "characters before or after. Any other line is ordinary text and does not open or close a block.",
    "var\n$1 = \"<<1501>>\"D 900\nEND VAR"};

constexpr Rule kBlockUnclosed = {"block-unclosed", SV_WARNING, "a block is not closed",
                                 "The block extends to the end of the file. Its parameters are read, but so "
                                 "is everything after it: close\n"
                                 "it with a line END_VAR.",
                                 "VAR\n$1 = \"<<1501>>\"D 900"};

constexpr Rule kBlockNested = {
    "block-nested", SV_WARNING, "VAR inside an open block",
    "Blocks do not nest. Inside a block the line is ignored, and the first END_VAR closes the block.",
    "VAR\n$1 = \"<<1501>>\"D 900\nVAR\n$2 = \"<<1502>>\"D 2100\nEND_VAR\nEND_VAR"};

constexpr Rule kBlockEmpty = {"block-empty", SV_WARNING, "a block without parameters",
                              "There is no parameter between VAR and END_VAR.", "VAR\nEND_VAR"};

constexpr Rule kBlockCloseStray = {"block-close-stray", SV_NOTE, "END_VAR where no block is open",
                                   "The line has no effect. Perhaps the VAR that belongs to it is missing.",
                                   "END_VAR"};

constexpr Rule kParameterOutside = {
    "parameter-outside", SV_ERROR, "a parameter outside of any block",
    "Only lines between VAR and END_VAR are parameters. This one gets no row and no value.",
    "END_VAR\n$6 = \"<<1506>>\"D 20"};

constexpr const Rule* kRules[] = {&kBlockMissing, &kBlockLineMisspelt, &kBlockUnclosed,   &kBlockNested,
                                  &kBlockEmpty,   &kBlockCloseStray,   &kParameterOutside};

// A blank or a control character.
bool IsInvisible(wchar_t character) {
    return character <= L' ' || IsBlank(character);
}

// The letters of a line, in capitals. Empty when the line is no misspelt VAR or END_VAR: it has more letters,
// or other characters.
std::wstring Letters(const std::wstring& text) {
    constexpr std::size_t kMost = 6;
    std::wstring letters;
    for (const wchar_t character : text) {
        const bool isSmall = character >= L'a' && character <= L'z';
        const bool isCapital = character >= L'A' && character <= L'Z';
        const bool isSign = std::wstring_view(L"_-.:;").find(character) != std::wstring_view::npos;
        if (isSmall || isCapital) {
            letters += isSmall ? static_cast<wchar_t>(character - L'a' + L'A') : character;
        }
        if ((!isSmall && !isCapital && !IsInvisible(character) && !isSign) || letters.size() > kMost) {
            return {};
        }
    }
    return letters;
}

}  // namespace

RuleList BlockRules() {
    return kRules;
}

void CBlockRules::TakeLine(const ItemLine& line) {
    switch (line.kind) {
        case LK_OPENING:
            m_hasBlock = true;
            m_openingWasMisspelt = false;
            m_unclosed = Findings().Make(kBlockUnclosed, line, 0, line.text.size(),
                                         "this block is not closed: END_VAR is missing");
            m_empty =
                Findings().Make(kBlockEmpty, line, 0, line.text.size(), "this block contains no parameter");
            break;
        case LK_CLOSING:
            m_unclosed.reset();
            m_closingWasMisspelt = false;
            if (m_empty) {
                Findings().Add(*std::exchange(m_empty, std::nullopt));
            }
            break;
        case LK_PARAMETER:
            m_empty.reset();
            break;
        case LK_IGNORED:
            TakeInside(line);
            break;
        case LK_OUTSIDE:
            TakeOutside(line);
            break;
    }
}

void CBlockRules::TakeInside(const ItemLine& line) {
    if (m_isWorkingFile && IsAssignment(line.text)) {
        m_empty.reset();
        return;
    }
    const std::wstring letters = Letters(line.text);
    if (letters == L"ENDVAR") {
        ReportMisspelt(line, false);
        m_closingWasMisspelt = true;
    } else if (letters == L"VAR" && !std::exchange(m_closingWasMisspelt, false)) {
        Findings().Add(kBlockNested, line, 0, line.text.size(),
                       "a block is already open, this line has no effect");
    }
}

void CBlockRules::TakeOutside(const ItemLine& line) {
    const std::wstring letters = Letters(line.text);
    if (letters == L"VAR") {
        m_hasBlock = true;
        ReportMisspelt(line, true);
        m_openingWasMisspelt = true;
    } else if (letters == L"ENDVAR") {
        if (line.text != itemdlg::CBlockTracker::kClosingLine) {
            ReportMisspelt(line, false);
        } else if (!m_openingWasMisspelt) {
            Findings().Add(kBlockCloseStray, line, 0, line.text.size(), "no block is open here");
        }
        m_openingWasMisspelt = false;
    } else if (line.index != itemdlg::kTitleLine && !m_openingWasMisspelt && line.text.starts_with(L'$') &&
               itemdlg::ParseParameterLine(line.text)) {
        Findings().Add(kParameterOutside, line, 0, line.text.size(),
                       "this parameter is outside of any block and is not read");
    }
}

void CBlockRules::ReportMisspelt(const ItemLine& line, bool opening) {
    const std::wstring& text = line.text;
    std::string reason = "write it in capitals without other characters";
    if (text.find_first_of(L"abcdefghijklmnopqrstuvwxyz") == std::wstring::npos) {
        if (!text.empty() && IsInvisible(text.back())) {
            reason = "nothing is allowed after it, not even a blank";
        } else if (!text.empty() && IsInvisible(text.front())) {
            reason = "nothing is allowed before it, not even a blank";
        }
    }
    Findings().Add(kBlockLineMisspelt, line, 0, text.size(),
                   Quoted(text) + (opening ? " does not open a block: " : " does not close the block: ") +
                       reason + ", as in " + (opening ? "VAR" : "END_VAR"));
}

void CBlockRules::Finish() {
    if (m_unclosed && !m_closingWasMisspelt) {
        Findings().Add(*m_unclosed);
    }
    if (m_empty) {
        Findings().Add(*m_empty);
    }
    if (!m_hasBlock) {
        Findings().Add(kBlockMissing, "the file has no line VAR: no parameter is read");
    }
}

}  // namespace tavrin::tools
