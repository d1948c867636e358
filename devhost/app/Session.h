// Runs the tasks of the command line, typed lines and items, and prints their results and errors. Each is one
// command of the drawing, which is undone as a whole.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
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

// Parses a task. Throws CUserError, which names the task, for a script that cannot be read, a syntax
// error and an empty expression.
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

    // Called before a typed call of a function that is not defined, with its name in capitals. Gives the name
    // of the item whose routine has to be loaded for it, if there is one.
    using FindItem = std::function<std::optional<std::wstring>(std::wstring_view function)>;
    void SetItemFinder(FindItem find) { m_findItem = std::move(find); }

private:
    // The status to exit with; nothing on success. What a failed evaluation has drawn is taken back.
    std::optional<int> Evaluate(const std::function<void()>& evaluation);
    void EvaluateAndPrint(const lisp::Source& source);
    void LoadRoutine(const std::wstring& item);
    // Loads the routine of the item that a typed expression calls, unless its function is defined.
    void LoadFor(const lisp::CValue& expression);

    lisp::CEvaluator& m_evaluator;
    CDrawing& m_drawing;
    CTextOutput& m_output;
    CMainWindow& m_window;
    FindItem m_findItem;
    std::wstring m_unfinished;  // the typed lines of an expression that is not complete
};

}  // namespace devhost
