// What LISP needs of the program around it. All calls come from an evaluation, on its thread.
//
// Conventions of item routines:
// - load searches file names that are not absolute with FindFile; open takes them relative to the current
// folder.
// - Sources are UTF-8 when they are well-formed, otherwise Windows-1252. Files that LISP reads and writes are
//   Windows-1252, and every byte is preserved; lines are written with CR LF and read with LF or CR LF.
// - Errors begin with the chain of calls, from the outermost one: FILE:LINE in NAME > FILE:LINE in NAME:
// what.
//   Typed text has line LINE instead of FILE:LINE; outside of functions "in NAME" is left out. A syntax error
//   reads FILE:LINE:COLUMN: what, or line LINE, column COLUMN: what.
//   "cancelled" has no prefix.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lisp/LispFile.h"
#include "lisp/Value.h"

namespace tavrin::lisp {

// A point of the drawing, in drawing units.
struct LispPoint {
    double x = 0;
    double y = 0;
    double z = 0;
};

// The kind of a question. A point answers the first two; a text that the user typed answers the last two.
enum EQuestion { Q_POINT, Q_DISTANCE, Q_TEXT };

enum EAnswer { ANSWER_POINT, ANSWER_TEXT, ANSWER_NOTHING, ANSWER_CANCELLED };

struct LispAnswer {
    EAnswer kind = ANSWER_CANCELLED;
    LispPoint point;    // clicked, or typed as a point
    std::wstring text;  // any other line, as it was typed; a plain Enter is ANSWER_NOTHING
};

class ILispHost {
public:
    virtual ~ILispHost() = default;

    // Output: a piece of text, with line feeds where lines end.
    virtual void Write(std::wstring_view text) = 0;
    // Shows a message and waits until the user has read it.
    virtual void Alert(const std::wstring& text) = 0;
    // The full path of an existing file; nothing when there is none.
    virtual std::optional<std::wstring> FindFile(const std::wstring& name) = 0;
    // CLispFile::Open, unless LISP must not access files.
    virtual std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) = 0;
    // A system variable by its name in capitals; nil when there is none of that name.
    virtual CValue GetVariable(const std::wstring& name) = 0;
    // Throws CLispError when there is no such variable or it does not take the value.
    virtual void SetVariable(const std::wstring& name, const CValue& value) = 0;
    // Asks the user. With `base` a line follows the mouse from there.
    virtual LispAnswer Ask(const std::wstring& prompt, std::optional<LispPoint> base, EQuestion question) = 0;
    // Whether the user wants to stop the evaluation; polled every few thousand steps.
    virtual bool IsEscapePressed() = 0;
};

// A host without a user: it shows nothing, has no files and answers no question.
class CNullLispHost : public ILispHost {
public:
    void Write(std::wstring_view) override {}
    void Alert(const std::wstring&) override {}
    std::optional<std::wstring> FindFile(const std::wstring&) override { return std::nullopt; }
    std::shared_ptr<CLispFile> OpenFile(const std::wstring&, EFileMode) override { return nullptr; }
    CValue GetVariable(const std::wstring&) override { return {}; }
    void SetVariable(const std::wstring&, const CValue&) override {}
    LispAnswer Ask(const std::wstring&, std::optional<LispPoint>, EQuestion) override { return {}; }
    bool IsEscapePressed() override { return false; }
};

}  // namespace tavrin::lisp
