// What the tests of the grid's editors share: a grid that holds one editor and does with it what the tests
// want, windows that take the focus away, and a dialog around a grid.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "tests/windows/propgrid/GridFixture.h"

// A message of an editor.
struct Report {
    UINT message;
    int index;          // of WM_GRID_CHOICE_MADE
    std::wstring text;  // of WM_GRID_EDIT_DONE
    bool operator==(const Report&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Report& report);

// Keeps the editors' messages. Unless `keepsEditor` is set it destroys and deletes its editor inside the
// message, as the grid does: the checking allocator then detects any later use by the editor.
class CEditorGrid : public CPropertyGrid {
public:
    std::vector<Report> reports;
    std::unique_ptr<CWnd> editor;
    std::function<void()> beforeClosing;  // called for each message
    bool keepsEditor = false;
    CFont* font = nullptr;  // answered to WM_GETFONT

    // Destroys the editor's window and deletes the object.
    void CloseEditor();

protected:
    afx_msg LRESULT OnChoiceMade(WPARAM index, LPARAM zero);
    afx_msg LRESULT OnEditDone(WPARAM text, LPARAM zero);
    afx_msg LRESULT OnDateChosen(WPARAM alsoZero, LPARAM zero);
    afx_msg LRESULT OnAskedForFont(WPARAM, LPARAM);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    void Take(const Report& report);
};

// A grid of 300 x 200 pixels at 10, 10 of a top-level window.
class EditorTest : public testing::Test {
protected:
    EditorTest();
    ~EditorTest() override;

    // The rectangle of a row's value, in client coordinates of the grid.
    static CRect Cell() { return {150, 20, 300, 36}; }

    // Opens a pop-up editor and clicks with the real mouse on a point of it, until the grid is notified. A
    // window manager may give the keyboard to an earlier window in the meantime, which closes the editor;
    // then once more.
    void ClickOn(const std::function<HWND()>& open, const std::function<POINT(HWND editor)>& point);

    CGridParent parent;
    CEditorGrid grid;
    CWnd sibling;  // a child of the same parent
};

// Down for as long as it lives, for GetKeyState.
class CKeyHeldDown {
public:
    explicit CKeyHeldDown(int key);
    ~CKeyHeldDown();
    CKeyHeldDown(const CKeyHeldDown&) = delete;
    CKeyHeldDown& operator=(const CKeyHeldDown&) = delete;

private:
    int m_key;
};

// A modal dialog with a grid, OK (the default button), Cancel, and a button with the mnemonic A. Its own
// buttons only count.
class CEditorDialog : public CDialog {
public:
    static constexpr int ID_MNEMONIC = 77;

    // Opens an editor and posts what a person does to it, once the dialog is up; the dialog ends as soon
    // as all that is handled.
    void Run(std::function<void()> act);

    CEditorGrid grid;
    int oks = 0, cancels = 0, mnemonics = 0;
    bool gridHadFocus = false, editorWasOpen = false;  // when all was handled

protected:
    BOOL OnInitDialog() override;
    void OnOK() override { ++oks; }
    void OnCancel() override { ++cancels; }
    afx_msg void OnMnemonic() { ++mnemonics; }
    afx_msg LRESULT OnSettled(WPARAM roundsLeft, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    CButton m_ok, m_cancel, m_mnemonic;
};
