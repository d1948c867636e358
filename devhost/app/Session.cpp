#include "devhost/app/Session.h"

#include "devhost/Libraries.h"
#include "devhost/app/ExitStatus.h"
#include "devhost/app/Host.h"
#include "lisp/Printer.h"

namespace devhost {

namespace {

// The prompt is disabled while LISP runs.
class CBusyScope {
public:
    explicit CBusyScope(CMainWindow& window) : m_window(window) { m_window.SetBusy(true); }
    ~CBusyScope() { m_window.SetBusy(false); }
    CBusyScope(const CBusyScope&) = delete;
    CBusyScope& operator=(const CBusyScope&) = delete;

private:
    CMainWindow& m_window;
};

lisp::Source ReadExpressions(std::wstring_view text) {
    lisp::Source source = lisp::ReadText(text);
    if (source.expressions.empty()) {
        throw lisp::CLispError(L"there is nothing to evaluate");
    }
    return source;
}

}  // namespace

PreparedTask Prepare(const Task& task) {
    try {
        return {task.isScript,
                task.isScript ? lisp::ReadSourceFile(task.text, task.text) : ReadExpressions(task.text)};
    } catch (const lisp::CLispError& error) {
        throw CUserError((task.isScript ? L"" : L"--eval '" + task.text + L"': ") + error.Text());
    }
}

int CSession::RunTasks(const std::vector<PreparedTask>& tasks) {
    for (const PreparedTask& task : tasks) {
        m_drawing.BeginCommand();
        const auto end = Evaluate([&] {
            if (task.isScript) {
                m_evaluator.Run(task.source);
            } else {
                EvaluateAndPrint(task.source);
            }
        });
        if (end) {
            return *end;
        }
    }
    return kExitDone;
}

void CSession::RunTyped(const std::wstring& line) {
    m_output.Line(line);
    const std::wstring text = m_unfinished + line;
    if (lisp::IsUnfinished(text)) {
        m_unfinished = text + L'\n';
        m_window.SetUnfinished(true);
        return;
    }
    DropUnfinished();
    m_drawing.BeginCommand();
    try {
        const lisp::Source source = ReadExpressions(text);
        Evaluate([&] {
            for (const lisp::CValue& expression : source.expressions) {
                LoadFor(expression);
                EvaluateAndPrint({source.file, {expression}});
            }
        });
    } catch (const lisp::CLispError& error) {
        m_output.Error(error.Text());
    }
}

void CSession::DropUnfinished() {
    m_unfinished.clear();
    m_window.SetUnfinished(false);
}

void CSession::RunItem(const std::wstring& name) {
    DropUnfinished();
    m_output.Line(L'(' + name + L')');
    m_drawing.BeginCommand();
    Evaluate([&] {
        LoadRoutine(name);
        EvaluateAndPrint(lisp::ReadText(L'(' + name + L')'));
    });
}

void CSession::LoadRoutine(const std::wstring& item) {
    m_evaluator.Run(lisp::ReadText(L"(load \"" + item + L".lsp\")"));
    m_output.EndLine();
}

void CSession::LoadFor(const lisp::CValue& expression) {
    if (expression.Type() != lisp::VT_PAIR || expression.Car().Type() != lisp::VT_SYMBOL) {
        return;
    }
    const std::wstring& function = expression.Car().AsSymbol();
    if (m_findItem && !m_evaluator.IsFunction(function)) {
        if (const auto item = m_findItem(function)) {
            LoadRoutine(*item);
        }
    }
}

std::optional<int> CSession::Evaluate(const std::function<void()>& evaluation) {
    const CBusyScope busy(m_window);
    m_drawing.ClearPlacement();
    try {
        evaluation();
        m_output.EndLine();
        return std::nullopt;
    } catch (const lisp::LispExit& exit) {
        m_output.EndLine();
        return exit.status;
    } catch (const CReportedError&) {
        m_output.EndLine();
    } catch (const lisp::CLispError& error) {
        m_output.EndLine();
        if (!error.IsHandled()) {
            m_output.Error(error.Text());
        }
    }
    m_drawing.RevertCommand();
    return kExitFailed;
}

void CSession::EvaluateAndPrint(const lisp::Source& source) {
    for (const lisp::CValue& expression : source.expressions) {
        const lisp::LispResult result = m_evaluator.Run({source.file, {expression}});
        m_output.EndLine();
        // (princ) at the end of a routine suppresses the result.
        if (result && result->IsSymbol(L"")) {
            continue;
        }
        m_output.Line(result ? lisp::Print(*result) : L"; no result");
    }
}

}  // namespace devhost
