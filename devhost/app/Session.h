// Evaluates what the command line, the prompt and the menus ask for, prints what it gives and reports what
// goes wrong.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "devhost/app/TextOutput.h"
#include "devhost/options/Options.h"
#include "devhost/window/MainWindow.h"
#include "lisp/Evaluator.h"

// A task of the command line, read before anything is loaded.
struct SPreparedTask {
    bool isScript;
    SSource source;
};

// The task as expressions. Throws CUserError, which names it, for what cannot be read and for nothing at all.
SPreparedTask Prepare(const STask& task);

class CSession {
public:
    // All must outlive the session.
    CSession(CEvaluator& evaluator, CTextOutput& output, CMainWindow& window)
        : m_evaluator(evaluator), m_output(output), m_window(window) {}

    // In order, up to the first failure or an exit. What the program ends with.
    int RunTasks(const std::vector<SPreparedTask>& tasks);
    // What was typed at the prompt. An exit ends what runs, not the session.
    void RunTyped(const std::wstring& text);
    // Loads the routine of an item and calls it.
    void RunItem(const std::wstring& name);

private:
    // The status that ends the tasks; nothing when all went well.
    std::optional<int> Evaluate(const SSource& source, bool printing);
    void EvaluateAndPrint(const SSource& source);

    CEvaluator& m_evaluator;
    CTextOutput& m_output;
    CMainWindow& m_window;
};
