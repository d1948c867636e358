// Runs the tasks of the command line, typed lines and items, and prints their results and errors. Each is one
// command of the drawing, which is undone as a whole.
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
    CSession(lisp::CEvaluator& evaluator, CDrawing& drawing, CTextOutput& output, CMainWindow& window)
        : m_evaluator(evaluator), m_drawing(drawing), m_output(output), m_window(window) {}

    // Runs the tasks in order, up to the first failure or an exit, and returns the exit status.
    int RunTasks(const std::vector<PreparedTask>& tasks);
    // Runs a line that was typed at the prompt. An exit ends the evaluation, not the session. An expression
    // that the line leaves unfinished is completed by the lines that follow.
    void RunTyped(const std::wstring& line);
    void DropUnfinished();
    // Loads the routine of an item and calls it.
    void RunItem(const std::wstring& name);

private:
    // The status to exit with; nothing on success. What a failed evaluation has drawn is taken back.
    std::optional<int> Evaluate(const lisp::Source& source, bool printing);
    void EvaluateAndPrint(const lisp::Source& source);

    lisp::CEvaluator& m_evaluator;
    CDrawing& m_drawing;
    CTextOutput& m_output;
    CMainWindow& m_window;
    std::wstring m_unfinished;  // the typed lines of an expression that is not complete
};

}  // namespace devhost
