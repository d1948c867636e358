#include "tools/rules/PictureRules.h"

#include <algorithm>
#include <set>

#include "encoding/Encoding.h"
#include "imagedlg/ChoiceLayout.h"
#include "imagedlg/ChoiceSlides.h"
#include "itemdlg/ItemFiles.h"
#include "tools/files/FileLines.h"
#include "tools/rules/RoutineCalls.h"
#include "tools/texts/CodePage.h"

namespace tavrin::tools {

namespace {

constexpr Rule kPictureMissing = {
    "picture-missing", SV_WARNING, "a picture is missing",
    "The item dialog looks for NAME.png beside NAME.TXT; without it the left part of the dialog is empty,\n"
    "without a message. The same applies to pictures in calls of NAME.lsp such as (tavrinprevmask\n"
    "\"door_preview\").",
    "door.TXT (no door.png beside it)"};

constexpr Rule kSlideMissing = {
    "slide-missing", SV_WARNING, "a choice has no slide",
    "(tavrinselmask ...) skips each name without a slide NAME_t.png or, if its second argument is 0,\n"
    "NAME_t_3d.png. The checker looks at names that are written as texts in calls of NAME.lsp, and at the\n"
    "lists of variants in (item-choose \"NAME\" ...), literal or from a setq; slides belong beside NAME.lsp.",
    "(tavrinselmask \"Replace\" 0 \"door_single\" \"door_shop\")"};

constexpr Rule kChoiceCount = {
    "choice-count", SV_WARNING, "a choice among more than six",
    "The choice dialog has six cells. With slides for more than six choices it closes at once and returns\n"
    "nil.",
    "(tavrinselmask \"Replace\" 0 \"a\" \"b\" \"c\" \"d\" \"e\" \"f\" \"g\")"};

constexpr Rule kRoutineUnread = {
    "routine-unread", SV_ERROR, "the item's routine cannot be read",
    "NAME.lsp has a LISP syntax error: it cannot be loaded. Its slides and texts are "
    "not checked,\n"
    "and the texts that it alone uses are reported as unused.",
    "(defun door () (tavrinselmask \"Replace\" 0 \"door_single\")"};

constexpr Rule kRoutineTextUnknown = {
    "routine-text-unknown", SV_WARNING, "the routine uses a text that does not exist",
    "None of the files given with --texts has the number N of (res-text N) or of the samples' (item-words N\n"
    "...) in NAME.lsp: (res-text N) gives nil, (item-words N ...) the routine's own words in every language.",
    "(item-words 5199 \"The slats do not fit.\")"};

constexpr const Rule* kRules[] = {&kPictureMissing, &kSlideMissing, &kChoiceCount, &kRoutineUnread,
                                  &kRoutineTextUnknown};

class CPictureCheck {
public:
    explicit CPictureCheck(const PictureContext& context)
        : m_context(context), m_item(context.templateFile), m_routine(context.routineFile) {}

    std::vector<Finding> Run() {
        const std::string picture = m_context.baseName + encoding::EncodeUtf8(itemdlg::kPictureEnding);
        if (!m_context.exists(picture)) {
            m_item.Add(kPictureMissing, "the item's picture " + picture + " is not beside it");
        }
        if (m_context.routine) {
            CheckRoutine();
        }
        std::vector<Finding> findings = m_item.Take();
        for (Finding& finding : m_routine.Take()) {
            findings.push_back(std::move(finding));
        }
        return findings;
    }

private:
    void CheckRoutine() {
        m_text = encoding::DecodeUtf8OrWindows1252(*m_context.routine);
        FindLines();
        try {
            const RoutineContents routine = ReadRoutine(m_text);
            for (const RoutineCall& call : routine.calls) {
                if (call.isChoice) {
                    CheckChoice(call);
                } else if (!call.names.empty()) {
                    CheckPreview(call.names.front());
                }
            }
            const std::set<unsigned> numbers(routine.textNumbers.begin(), routine.textNumbers.end());
            for (const unsigned number : numbers) {
                TakeText(number);
            }
        } catch (const lisp::CReadError& error) {
            const std::size_t lineStart = m_lineStarts.at(static_cast<std::size_t>(error.Line()) - 1);
            AddAt(kRoutineUnread, {{}, lineStart + static_cast<std::size_t>(error.Column()) - 1, 1},
                  "the routine cannot be read: " + encoding::EncodeUtf8(error.What()));
        }
    }

    void TakeText(unsigned number) {
        if (m_context.usedTexts != nullptr) {
            m_context.usedTexts->set(number);
        }
        if (m_context.texts != nullptr && m_context.texts->Find(number) == nullptr) {
            m_routine.Add(kRoutineTextUnknown, "the routine uses text " + std::to_string(number) +
                                                   ", which none of the files of texts has");
        }
    }

    void CheckPreview(const RoutineName& name) {
        const std::string picture = encoding::EncodeUtf8(name.text + itemdlg::kPictureEnding);
        if (!m_context.exists(picture)) {
            AddAt(kPictureMissing, name, "the picture " + picture + " is not beside the routine");
        }
    }

    void CheckChoice(const RoutineCall& call) {
        std::size_t count = 0;
        for (const RoutineName& name : call.names) {
            const std::string flat = encoding::EncodeUtf8(name.text + imagedlg::kFlatSlideEnding);
            const std::string inSpace = encoding::EncodeUtf8(name.text + imagedlg::kSpaceSlideEnding);
            if (m_context.exists(flat) || (!call.isFlatOnly && m_context.exists(inSpace))) {
                ++count;
                continue;
            }
            AddAt(kSlideMissing, name,
                  "the choice " + Quoted(name.text) + " has no slide " + flat +
                      (call.isFlatOnly ? "" : " or " + inSpace) + " and is left out");
        }
        if (count > imagedlg::kMaxChoices) {
            AddAt(kChoiceCount, call.names.front(),
                  std::to_string(count) + " choices have a slide; with more than " +
                      std::to_string(imagedlg::kMaxChoices) + " the dialog closes at once");
        }
    }

    void FindLines() {
        m_lineStarts = {0};
        for (std::size_t end = m_text.find(L'\n'); end != std::wstring::npos;
             end = m_text.find(L'\n', end + 1)) {
            m_lineStarts.push_back(end + 1);
        }
    }

    void AddAt(const Rule& rule, const RoutineName& name, std::string message) {
        const auto next = std::upper_bound(m_lineStarts.begin(), m_lineStarts.end(), name.start);
        const std::size_t lineStart = *(next - 1);
        const std::size_t lineEnd = next != m_lineStarts.end() ? *next : m_text.size();
        std::wstring_view line = std::wstring_view(m_text).substr(lineStart, lineEnd - lineStart);
        line = line.substr(0, line.find_last_not_of(L"\r\n") + 1);
        Finding finding = m_routine.Make(rule, std::move(message));
        finding.line = static_cast<std::size_t>(next - m_lineStarts.begin());
        finding.column = name.start - lineStart + 1;
        finding.length = name.length;
        finding.excerpt = MakeExcerpt(line, name.start - lineStart, name.length);
        m_routine.Add(std::move(finding));
    }

    const PictureContext& m_context;
    CFindingList m_item;
    CFindingList m_routine;
    std::wstring m_text;                    // of the routine
    std::vector<std::size_t> m_lineStarts;  // in it
};

}  // namespace

RuleList PictureRules() {
    return kRules;
}

std::vector<Finding> CheckPictures(const PictureContext& context) {
    return CPictureCheck(context).Run();
}

}  // namespace tavrin::tools
