// The routine of a sample item, run by the real evaluator into a real drawing. User and dialogs
// are simulated: they answer as the test says, and the item dialog writes the working file as the module does
// after OK.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "devhost/drawing/Drawing.h"
#include "lisp/Evaluator.h"
#include "lisp/LispHost.h"

namespace tests {

using namespace devhost;
using namespace tavrin::lisp;

struct SampleItem {
    std::string name;
    std::vector<std::string> variants;
};

// The items of the folder samples/.
const std::vector<SampleItem>& SampleItems();

class ItemRoutine : public testing::Test, protected ILispHost {
protected:
    ItemRoutine();
    ~ItemRoutine() override;

    // What the user does.
    std::string chosen;                     // the variant; empty: Cancel
    std::map<int, std::string> typed;       // values typed into the item dialog, by the parameter's number
    bool presses = true;                    // OK rather than Cancel
    std::map<int, std::string> typedAgain;  // typed when the dialog comes back; empty: Cancel
    bool remembers = false;                 // the dialog writes its values into the template
    std::optional<LispPoint> clicked;       // nothing: Escape

    // What the user sees.
    std::vector<std::string> offered;     // names of slides
    std::map<int, std::string> shown;     // values in the item dialog
    std::vector<std::wstring> messages;   // alerts
    std::vector<std::wstring> questions;  // prompts

    // Copies the item's template to a folder that is searched, and loads its routine.
    void Load(const std::string& item);
    // Gives LISP the texts of a language: it, en.
    void UseTexts(const std::string& language);
    // Evaluates a text; false when it gave nil or ended with an error.
    bool Run(const std::string& text);
    // How many parameters a function written in LISP takes; -1 when there is none of the name.
    int ParameterCount(const std::string& name) const;
    // Chooses `variant`, takes the dialog's values as they are but for `typed`, and clicks at (0, 0).
    bool Make(const std::string& item, const std::string& variant);

    // Of the drawing: closed polylines that are upright rectangles of this size; arcs of this radius.
    int Boxes(double width, double height) const;
    int Arcs(double radius) const;
    // A text that holds this one.
    bool HasText(const std::wstring& text) const;

    CDrawing drawing;
    std::filesystem::path folder;  // where template and working file stand

private:
    void Write(std::wstring_view) override {}
    void Alert(const std::wstring& text) override { messages.push_back(text); }
    std::optional<std::wstring> FindFile(const std::wstring& name) override;
    std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) override;
    CValue GetVariable(const std::wstring& name) override;
    void SetVariable(const std::wstring&, const CValue&) override {}
    LispAnswer Ask(const std::wstring& prompt, std::optional<LispPoint> base, EQuestion question) override;
    bool IsEscapePressed() override { return false; }

    LispResult PlayChoice(std::span<const CValue> arguments);
    LispResult PlayItemDialog(std::span<const CValue> arguments);

    CEvaluator m_evaluator{*this};
    int m_openings = 0;  // of the item dialog, in this Run
    std::string m_item;
};

}  // namespace tests
