// What LISP needs of the program around it. Every call comes from an evaluation, on its thread.
//
// Agreed for item routines:
// - File names that are not absolute are looked for by FindFile when they are read by load, and relative to
//   the current folder by open.
// - Sources are UTF-8 when they are valid as such, otherwise Windows-1252. Files that LISP reads and writes
//   are Windows-1252 and keep every byte; lines are written with CR LF and read with LF or CR LF.
// - Errors read FILE:LINE: in NAME: what, or line LINE: in NAME: what for typed text; outside of functions
//   without "in NAME". A mistake of the notation reads FILE:LINE:COLUMN: what, or line LINE, column COLUMN:
//   what. "cancelled" stands alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lisp/LispFile.h"
#include "lisp/Value.h"

// A place in the drawing, in drawing units.
struct SLispPoint {
    double x = 0;
    double y = 0;
    double z = 0;
};

// What a question is about. A point answers the first two; a text that the user typed answers the last two.
enum EQuestion { Q_POINT, Q_DISTANCE, Q_TEXT };

enum EAnswer { ANSWER_POINT, ANSWER_TEXT, ANSWER_NOTHING, ANSWER_CANCELLED };

struct SLispAnswer {
    EAnswer kind = ANSWER_CANCELLED;
    SLispPoint point;   // clicked, or typed as a point
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
    // CLispFile::Open, unless LISP is to leave files alone.
    virtual std::shared_ptr<CLispFile> OpenFile(const std::wstring& name, EFileMode mode) = 0;
    // A system variable by its name in capitals; nil when there is none of that name.
    virtual CValue GetVariable(const std::wstring& name) = 0;
    // Throws CLispError when there is no such variable or it does not take the value.
    virtual void SetVariable(const std::wstring& name, const CValue& value) = 0;
    // Asks the user. With `base` a line follows the mouse from there.
    virtual SLispAnswer Ask(const std::wstring& prompt, std::optional<SLispPoint> base,
                            EQuestion question) = 0;
    // Whether the user wants the evaluation to end; asked every few thousand steps.
    virtual bool IsEscapePressed() = 0;
};

// A host without anyone: it shows nothing, has no files and answers no question.
class CNullLispHost : public ILispHost {
public:
    void Write(std::wstring_view) override {}
    void Alert(const std::wstring&) override {}
    std::optional<std::wstring> FindFile(const std::wstring&) override { return std::nullopt; }
    std::shared_ptr<CLispFile> OpenFile(const std::wstring&, EFileMode) override { return nullptr; }
    CValue GetVariable(const std::wstring&) override { return {}; }
    void SetVariable(const std::wstring&, const CValue&) override {}
    SLispAnswer Ask(const std::wstring&, std::optional<SLispPoint>, EQuestion) override { return {}; }
    bool IsEscapePressed() override { return false; }
};
