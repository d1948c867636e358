#include "devhost/app/LispConsole.h"

#include <windows.h>

#include "devhost/Libraries.h"
#include "devhost/drawing/TypedPoint.h"
#include "lisp/LispError.h"

namespace devhost {

lisp::LispAnswer CLispConsole::TypedAnswer(const std::wstring& text, std::optional<Point> base,
                                           lisp::EQuestion question) const {
    lisp::LispAnswer answer;
    answer.kind = lisp::ANSWER_TEXT;
    answer.text = text;
    // A number alone is the distance in a question for one, and otherwise a point on the rubber band.
    const bool mayBePoint =
        question == lisp::Q_POINT || (question == lisp::Q_DISTANCE && text.find(L',') != std::wstring::npos);
    const auto point = mayBePoint ? ParsePoint(text, base, m_window.MousePoint()) : std::nullopt;
    if (point) {
        answer.kind = lisp::ANSWER_POINT;
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

std::shared_ptr<lisp::CLispFile> CLispConsole::OpenFile(const std::wstring& name, lisp::EFileMode mode) {
    return lisp::CLispFile::Open(name, mode);
}

lisp::CValue CLispConsole::GetVariable(const std::wstring& name) {
    return m_variables.Get(name);
}

void CLispConsole::SetVariable(const std::wstring& name, const lisp::CValue& value) {
    m_variables.Set(name, value);
}

lisp::LispAnswer CLispConsole::Ask(const std::wstring& prompt, std::optional<lisp::LispPoint> base,
                                   lisp::EQuestion question) {
    if (m_window.IsAsking() || !IsWindowEnabled(m_window.Handle())) {
        throw lisp::CLispError(L"nothing can be asked while another question or a dialog is open");
    }
    m_output.EndLine();
    const auto from = base ? std::optional(Point{base->x, base->y}) : std::nullopt;
    const Answer given =
        m_window.Ask(StatusText(prompt), from, question == lisp::Q_TEXT ? ASK_TEXT : ASK_POINT);
    lisp::LispAnswer answer;
    if (const auto* point = std::get_if<Point>(&given)) {
        answer.kind = lisp::ANSWER_POINT;
        answer.point = {point->x, point->y, 0};
    } else if (const auto* text = std::get_if<std::wstring>(&given)) {
        answer = TypedAnswer(*text, from, question);
    } else if (std::holds_alternative<PlainEnter>(given)) {
        answer.kind = lisp::ANSWER_NOTHING;
    }
    return answer;
}

// Not at each call: handling messages repaints the drawing, and most of the time would go into repainting a
// large one.
bool CLispConsole::IsEscapePressed() {
    constexpr unsigned long long kInterval = 50;  // milliseconds
    if (GetTickCount64() - m_lastPoll < kInterval) {
        return false;
    }
    m_output.FlushIfDue();
    const bool isPressed = m_window.PollEscape();
    m_lastPoll = GetTickCount64();
    return isPressed;
}

void ShowAlert(CMainWindow& window, CTextOutput& output, const std::wstring& text) {
    output.Line(L"; alert: " + text);
    // Over an open dialog, if any: with a box over the main window the dialog would stay enabled.
    MessageBoxW(GetLastActivePopup(window.Handle()), text.c_str(), L"DevHost", MB_OK | MB_ICONINFORMATION);
}

std::wstring StatusText(const std::wstring& prompt) {
    const std::size_t start = prompt.find_first_not_of(L"\r\n");
    return start != std::wstring::npos ? prompt.substr(start) : L"";
}

}  // namespace devhost
