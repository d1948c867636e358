// The LISP host of DevHost: output, questions, files and system variables, through the main window.
#pragma once

#include "devhost/Libraries.h"
#include "devhost/app/SearchPath.h"
#include "devhost/app/SystemVariables.h"
#include "devhost/app/TextOutput.h"
#include "devhost/window/MainWindow.h"
#include "lisp/LispHost.h"

namespace devhost {

class CLispConsole : public lisp::ILispHost {
public:
    // All must outlive the console.
    CLispConsole(CMainWindow& window, CTextOutput& output, const CSearchPath& searchPath,
                 CSystemVariables& variables)
        : m_window(window), m_output(output), m_searchPath(searchPath), m_variables(variables) {}

    void Write(std::wstring_view text) override;
    void Alert(const std::wstring& text) override;
    std::optional<std::wstring> FindFile(const std::wstring& name) override;
    std::shared_ptr<lisp::CLispFile> OpenFile(const std::wstring& name, lisp::EFileMode mode) override;
    lisp::CValue GetVariable(const std::wstring& name) override;
    void SetVariable(const std::wstring& name, const lisp::CValue& value) override;
    lisp::LispAnswer Ask(const std::wstring& prompt, std::optional<lisp::LispPoint> base,
                         lisp::EQuestion question) override;
    bool IsEscapePressed() override;

private:
    lisp::LispAnswer TypedAnswer(const std::wstring& text, std::optional<Point> base,
                                 lisp::EQuestion question) const;

    CMainWindow& m_window;
    CTextOutput& m_output;
    const CSearchPath& m_searchPath;
    CSystemVariables& m_variables;
    unsigned long long m_lastPoll = 0;  // milliseconds of the system's clock
};

// A message box over the window or its open dialog. The text is repeated in the output.
void ShowAlert(CMainWindow& window, CTextOutput& output, const std::wstring& text);
// A prompt without the leading line breaks that are usual in CAD programs.
std::wstring StatusText(const std::wstring& prompt);

}  // namespace devhost
