#include "devhost/app/LispConsole.h"

#include <windows.h>

#include "devhost/drawing/TypedPoint.h"
#include "lisp/LispError.h"

SLispAnswer CLispConsole::TypedAnswer(const std::wstring& text, std::optional<SPoint> base,
                                      EQuestion question) const {
    SLispAnswer answer;
    answer.kind = ANSWER_TEXT;
    answer.text = text;
    // A length alone is a distance where one is asked for, and otherwise a place on the rubber band.
    const bool mayBePoint =
        question == Q_POINT || (question == Q_DISTANCE && text.find(L',') != std::wstring::npos);
    const auto point = mayBePoint ? ParsePoint(text, base, m_window.MousePoint()) : std::nullopt;
    if (point) {
        answer.kind = ANSWER_POINT;
        answer.point = {point->x, point->y, 0};
    }
    return answer;
}

void CLispConsole::Write(std::wstring_view text) {
    m_output.Text(text);
}

void CLispConsole::Alert(const std::wstring& text) {
    ShowAlert(m_window, m_output, text);
}

std::optional<std::wstring> CLispConsole::FindFile(const std::wstring& name) {
    return m_searchPath.Find(name);
}

std::shared_ptr<CLispFile> CLispConsole::OpenFile(const std::wstring& name, EFileMode mode) {
    return CLispFile::Open(name, mode);
}

CValue CLispConsole::GetVariable(const std::wstring& name) {
    return m_variables.Get(name);
}

void CLispConsole::SetVariable(const std::wstring& name, const CValue& value) {
    m_variables.Set(name, value);
}

SLispAnswer CLispConsole::Ask(const std::wstring& prompt, std::optional<SLispPoint> base,
                              EQuestion question) {
    if (m_window.IsAsking() || !IsWindowEnabled(m_window.Handle())) {
        throw CLispError(L"nothing can be asked while another question or a dialog is open");
    }
    m_output.EndLine();
    const auto from = base ? std::optional(SPoint{base->x, base->y}) : std::nullopt;
    const CAnswer given = m_window.Ask(StatusText(prompt), from, question == Q_TEXT ? ASK_TEXT : ASK_POINT);
    SLispAnswer answer;
    if (const auto* point = std::get_if<SPoint>(&given)) {
        answer.kind = ANSWER_POINT;
        answer.point = {point->x, point->y, 0};
    } else if (const auto* text = std::get_if<std::wstring>(&given)) {
        answer = TypedAnswer(*text, from, question);
    } else if (std::holds_alternative<SPlainEnter>(given)) {
        answer.kind = ANSWER_NOTHING;
    }
    return answer;
}

// Not each time that LISP asks: handling messages repaints what was drawn meanwhile, and a large drawing
// would be repainted more than it is drawn.
bool CLispConsole::IsEscapePressed() {
    constexpr unsigned long long kPause = 50;  // milliseconds
    if (GetTickCount64() - m_lastLook < kPause) {
        return false;
    }
    m_output.TellNowAndThen();
    const bool isPressed = m_window.PollEscape();
    m_lastLook = GetTickCount64();
    return isPressed;
}

void ShowAlert(CMainWindow& window, CTextOutput& output, const std::wstring& text) {
    output.Line(L"; alert: " + text);
    // Over the dialog that is open, if one is: a box over the window behind it would leave it usable.
    MessageBoxW(GetLastActivePopup(window.Handle()), text.c_str(), L"DevHost", MB_OK | MB_ICONINFORMATION);
}

std::wstring StatusText(const std::wstring& prompt) {
    const std::size_t start = prompt.find_first_not_of(L"\r\n");
    return start != std::wstring::npos ? prompt.substr(start) : L"";
}
