#include "tools/rules/PictureRules.h"

#include <algorithm>

#include "imagedlg/ChoiceLayout.h"
#include "imagedlg/ChoiceSlides.h"
#include "itemdlg/ItemFiles.h"
#include "tools/lines/FileLines.h"
#include "tools/rules/RoutineCalls.h"
#include "tools/texts/CodePage.h"

namespace {

constexpr SRule kPictureMissing = {"picture-missing", SV_WARNING, "a picture is not there",
                                   "Beside NAME.TXT the item dialog looks for NAME.png; without it, its left "
                                   "part stays empty, and nothing is\n"
                                   "said. The same goes for a picture that NAME.lsp shows with a call such "
                                   "as (tavrinprevmask \"door_preview\").",
                                   "door.TXT (no door.png beside it)"};

constexpr SRule kSlideMissing = {
    "slide-missing", SV_WARNING, "a choice has no slide",
    "(tavrinselmask ...) leaves out each name for which it finds neither NAME_t.png nor, where its second\n"
    "argument is 0, NAME_t_3d.png. Looked at are the names that stand as texts in calls in NAME.lsp; slides\n"
    "are looked for beside it.",
    "(tavrinselmask \"Replace\" 0 \"door_single\" \"door_shop\")"};

constexpr SRule kChoiceCount = {"choice-count", SV_WARNING, "a choice among more than six",
                                "The choice dialog has six cells. With more choices that have a slide it "
                                "closes as soon as it opens, and\n"
                                "the routine gets nil.",
                                "(tavrinselmask \"Replace\" 0 \"a\" \"b\" \"c\" \"d\" \"e\" \"f\" \"g\")"};

constexpr SRule kRoutineUnread = {
    "routine-unread", SV_NOTE, "the item's routine cannot be read",
    "NAME.lsp is no complete LISP text, so that the slides it offers are not known.",
    "(defun door () (tavrinselmask \"Replace\" 0 \"door_single\")"};

constexpr const SRule* kRules[] = {&kPictureMissing, &kSlideMissing, &kChoiceCount, &kRoutineUnread};

// Routines are UTF-8 if they can be, else in code page 1252; a byte without meaning there stands for itself.
std::wstring RoutineText(const std::string& bytes) {
    if (std::optional<std::wstring> text = DecodeText(bytes, kUtf8)) {
        return *std::move(text);
    }
    return CharactersOf(bytes);
}

class CPictureCheck {
public:
    explicit CPictureCheck(const SPictureContext& context)
        : m_context(context), m_item(context.templateFile), m_routine(context.routineFile) {}

    std::vector<SFinding> Run() {
        const std::string picture = m_context.baseName + Utf8Text(tavrin::itemdlg::kPictureEnding);
        if (!m_context.isThere(picture)) {
            m_item.Add(kPictureMissing, "the item's picture " + picture + " is not beside it");
        }
        if (m_context.routine) {
            CheckRoutine();
        }
        std::vector<SFinding> findings = m_item.Take();
        for (SFinding& finding : m_routine.Take()) {
            findings.push_back(std::move(finding));
        }
        return findings;
    }

private:
    void CheckRoutine() {
        m_text = RoutineText(*m_context.routine);
        FindLines();
        try {
            for (const SRoutineCall& call : FindRoutineCalls(m_text)) {
                if (call.isChoice) {
                    CheckChoice(call);
                } else if (!call.names.empty()) {
                    CheckPreview(call.names.front());
                }
            }
        } catch (const CUserError& error) {
            m_routine.Add(kRoutineUnread, "the routine cannot be read: " + Utf8Text(error.Text()));
        }
    }

    void CheckPreview(const SRoutineName& name) {
        const std::string picture = Utf8Text(name.text + tavrin::itemdlg::kPictureEnding);
        if (!m_context.isThere(picture)) {
            AddAt(kPictureMissing, name, "the picture " + picture + " is not beside the routine");
        }
    }

    void CheckChoice(const SRoutineCall& call) {
        std::size_t count = 0;
        for (const SRoutineName& name : call.names) {
            const std::string flat = Utf8Text(name.text + tavrin::imagedlg::kFlatSlideEnding);
            const std::string inSpace = Utf8Text(name.text + tavrin::imagedlg::kSpaceSlideEnding);
            if (m_context.isThere(flat) || (!call.isFlatOnly && m_context.isThere(inSpace))) {
                ++count;
                continue;
            }
            AddAt(kSlideMissing, name,
                  "the choice " + Quoted(name.text) + " has no slide " + flat +
                      (call.isFlatOnly ? "" : " or " + inSpace) + " and is left out");
        }
        if (count > tavrin::imagedlg::kMaxChoices) {
            AddAt(kChoiceCount, call.names.front(),
                  std::to_string(count) + " choices have a slide; with more than " +
                      std::to_string(tavrin::imagedlg::kMaxChoices) + " the dialog closes at once");
        }
    }

    void FindLines() {
        m_lineStarts = {0};
        for (std::size_t end = m_text.find(L'\n'); end != std::wstring::npos;
             end = m_text.find(L'\n', end + 1)) {
            m_lineStarts.push_back(end + 1);
        }
    }

    void AddAt(const SRule& rule, const SRoutineName& name, std::string message) {
        const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), name.start);
        const std::size_t lineStart = *(next - 1);
        const std::size_t lineEnd = next != m_lineStarts.end() ? *next : m_text.size();
        std::wstring_view line = std::wstring_view(m_text).substr(lineStart, lineEnd - lineStart);
        line = line.substr(0, line.find_last_not_of(L"\r\n") + 1);
        SFinding finding = m_routine.Make(rule, std::move(message));
        finding.line = static_cast<std::size_t>(next - m_lineStarts.begin());
        finding.column = name.start - lineStart + 1;
        finding.length = name.length;
        finding.excerpt = MakeExcerpt(line, name.start - lineStart, name.length);
        m_routine.Add(std::move(finding));
    }

    const SPictureContext& m_context;
    CFindingList m_item;
    CFindingList m_routine;
    std::wstring m_text;                    // of the routine
    std::vector<std::size_t> m_lineStarts;  // in it
};

}  // namespace

RuleList PictureRules() {
    return kRules;
}

std::vector<SFinding> CheckPictures(const SPictureContext& context) {
    return CPictureCheck(context).Run();
}
