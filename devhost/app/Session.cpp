#include "devhost/app/Session.h"

#include "devhost/app/ExitStatus.h"
#include "devhost/app/Host.h"
#include "lisp/Printer.h"

namespace {

// While LISP runs the prompt takes nothing.
class CBusyScope {
public:
    explicit CBusyScope(CMainWindow& window) : m_window(window) { m_window.SetBusy(true); }
    ~CBusyScope() { m_window.SetBusy(false); }
    CBusyScope(const CBusyScope&) = delete;
    CBusyScope& operator=(const CBusyScope&) = delete;

private:
    CMainWindow& m_window;
};

SSource ReadExpressions(std::wstring_view text) {
    SSource source = ReadText(text);
    if (source.expressions.empty()) {
        throw CLispError(L"there is nothing to evaluate");
    }
    return source;
}

}  // namespace

SPreparedTask Prepare(const STask& task) {
    try {
        return {task.isScript,
                task.isScript ? ReadSourceFile(task.text, task.text) : ReadExpressions(task.text)};
    } catch (const CLispError& error) {
        throw CUserError((task.isScript ? L"" : L"--eval '" + task.text + L"': ") + error.Text());
    }
}

int CSession::RunTasks(const std::vector<SPreparedTask>& tasks) {
    for (const SPreparedTask& task : tasks) {
        if (const auto end = Evaluate(task.source, !task.isScript)) {
            return *end;
        }
    }
    return kExitDone;
}

void CSession::RunTyped(const std::wstring& text) {
    m_output.Line(text);
    try {
        Evaluate(ReadExpressions(text), true);
    } catch (const CLispError& error) {
        m_output.Error(error.Text());
    }
}

void CSession::RunItem(const std::wstring& name) {
    m_output.Line(L'(' + name + L')');
    if (!Evaluate(ReadText(L"(load \"" + name + L".lsp\")"), false)) {
        Evaluate(ReadText(L'(' + name + L')'), true);
    }
}

std::optional<int> CSession::Evaluate(const SSource& source, bool printing) {
    const CBusyScope busy(m_window);
    try {
        if (printing) {
            EvaluateAndPrint(source);
        } else {
            m_evaluator.Run(source);
        }
        m_output.EndLine();
        return std::nullopt;
    } catch (const SLispExit& exit) {
        m_output.EndLine();
        return exit.status;
    } catch (const CReportedError&) {
        m_output.EndLine();
    } catch (const CLispError& error) {
        m_output.EndLine();
        if (!error.IsHandled()) {
            m_output.Error(error.Text());
        }
    }
    return kExitFailed;
}

void CSession::EvaluateAndPrint(const SSource& source) {
    for (const CValue& expression : source.expressions) {
        const CLispResult result = m_evaluator.Run({source.file, {expression}});
        m_output.EndLine();
        // (princ) at the end of a routine asks for silence.
        if (result && result->IsSymbol(L"")) {
            continue;
        }
        m_output.Line(result ? Print(*result) : L"; no result");
    }
}
