// Runs the tasks of the command line, typed lines and items, and prints their results and errors.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/Libraries.h"
#include "devhost/app/TextOutput.h"
#include "devhost/options/Options.h"
#include "devhost/window/MainWindow.h"
#include "lisp/Evaluator.h"

namespace devhost {

// A task of the command line, parsed before anything is loaded.
struct PreparedTask {
    bool isScript;
    lisp::Source source;
};

// Parses a task. Throws CUserError, which names the task, for syntax errors and for an empty expression.
PreparedTask Prepare(const Task& task);

class CSession {
public:
    // All must outlive the session.
    CSession(lisp::CEvaluator& evaluator, CTextOutput& output, CMainWindow& window)
        : m_evaluator(evaluator), m_output(output), m_window(window) {}

    // Runs the tasks in order, up to the first failure or an exit, and returns the exit status.
    int RunTasks(const std::vector<PreparedTask>& tasks);
    // Runs a line that was typed at the prompt. An exit ends the evaluation, not the session.
    void RunTyped(const std::wstring& text);
    // Loads the routine of an item and calls it.
    void RunItem(const std::wstring& name);

private:
    // The status to exit with; nothing on success.
    std::optional<int> Evaluate(const lisp::Source& source, bool printing);
    void EvaluateAndPrint(const lisp::Source& source);

    lisp::CEvaluator& m_evaluator;
    CTextOutput& m_output;
    CMainWindow& m_window;
};

}  // namespace devhost
