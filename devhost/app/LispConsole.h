// The program around LISP: output, questions, files and system variables of a routine, by way of the main
// window.
#pragma once

#include "devhost/app/SearchPath.h"
#include "devhost/app/SystemVariables.h"
#include "devhost/app/TextOutput.h"
#include "devhost/window/MainWindow.h"
#include "lisp/LispHost.h"

class CLispConsole : public ILispHost {
public:
    // All must outlive the console.
    CLispConsole(CMainWindow& window, CTextOutput& output, const CSearchPath& searchPath,
                 CSystemVariables& variables)
        : m_window(window), m_output(output), m_searchPath(searchPath), m_variables(variables) {}

    void Write(std::wstring_view text) override;
    void Alert(const std::wstring& text) override;
    std::optional<std::wstring> FindFile(const std::wstring& name) override;
    std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) override;
    CValue GetVariable(const std::wstring& name) override;
    void SetVariable(const std::wstring& name, const CValue& value) override;
    SLispAnswer Ask(const std::wstring& prompt, std::optional<SLispPoint> base, EQuestion question) override;
    bool IsEscapePressed() override;

private:
    SLispAnswer TypedAnswer(const std::wstring& text, std::optional<SPoint> base, EQuestion question) const;

    CMainWindow& m_window;
    CTextOutput& m_output;
    const CSearchPath& m_searchPath;
    CSystemVariables& m_variables;
    unsigned long long m_lastLook = 0;  // for Escape; milliseconds of the system's clock
};

// A message box over the window or the dialog that is open over it, repeated in the output.
void ShowAlert(CMainWindow& window, CTextOutput& output, const std::wstring& text);
// A prompt as one line: those of CAD programs begin with a line break that a status line has no use for.
std::wstring StatusText(const std::wstring& prompt);
