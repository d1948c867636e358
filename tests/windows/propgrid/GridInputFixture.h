// What the tests of the grid's input share: a grid driven by mouse and keyboard messages, rows of every
// kind, a custom item that follows a script, and a look at the editor that is open.
#pragma once

#include <string>
#include <vector>

#include "tests/windows/propgrid/GridFixture.h"
#include "tests/windows/support/Pixels.h"

// A custom item that records the grid's calls and returns what the test sets.
class CScriptedItem final : public ICustomItem {
public:
    int mode = EM_CUSTOM;
    bool capturesMouse = false, takesText = true, buttonChanges = true;
    std::wstring text = L"custom";
    std::vector<std::string> calls;  // "down 3 4", "text ...", in order
    CRect rect;                      // of the last call with one
    std::function<void()> during;    // called in each of them

    int GetEditMode() override { return mode; }
    void DrawItem(CDC&, CRect, bool) override {}
    void AcceptValue() override {}
    bool OnLButtonDown(CRect area, CPoint point) override;
    void OnMouseMove(CRect area, CPoint point) override { Note("move", area, point); }
    void OnLButtonUp(CRect area, CPoint point) override { Note("up", area, point); }
    std::wstring GetStringValue() override { return text; }
    bool SetStringValue(std::wstring newText) override;
    void ShowDropDown(CRect area) override { Note("drop", area, CPoint(0, 0)); }
    bool OnButtonClicked() override;

private:
    void Note(const char* what, CRect area, CPoint point);
};

// An owner of the grid other than its parent: runs a test's step on each change.
class CListeningOwner : public CWnd {
public:
    CListeningOwner();
    ~CListeningOwner() override { DestroyWindow(); }
    std::function<void(UINT item)> onChanged;

protected:
    afx_msg LRESULT OnItemChanged(WPARAM item, LPARAM zero);
    DECLARE_MESSAGE_MAP()
};

// A grid of 300 x 200 pixels that has the focus, in insertion order unless a test says otherwise.
class GridInputTest : public GridTest {
protected:
    GridInputTest();
    // An edit that is still open gives its text to its item, which must be there.
    ~GridInputTest() override { grid.DestroyWindow(); }

    // The mouse, in client coordinates of the grid.
    void Press(CPoint point) { SendMouse(WM_LBUTTONDOWN, point); }
    void MoveTo(CPoint point) { SendMouse(WM_MOUSEMOVE, point); }
    void Release(CPoint point) { SendMouse(WM_LBUTTONUP, point); }
    void ClickOn(CPoint point);
    // As Windows reports it: the second press is the double click.
    void DoubleClickOn(CPoint point);
    // Focuses a row as a person does, by its name.
    void Focus(UINT item) { ClickOn(NameOf(item)); }

    void PressKey(UINT key) { grid.SendMessage(WM_KEYDOWN, key, 1); }
    void Type(wchar_t character) { grid.SendMessage(WM_CHAR, character, 1); }
    // The wheel; a notch is 120, up is positive.
    void Turn(int delta) { grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0); }
    void Scroll(UINT code, int position = 0);
    int ScrollPosition() const { return ScrollInfo().nPos; }

    // Points of what is painted now.
    CPoint NameOf(UINT item) { return RectsOf(item).first.CenterPoint(); }
    CPoint ValueOf(UINT item) { return RectsOf(item).second.CenterPoint(); }
    CPoint ButtonOf(UINT item);  // the square at the right end of the row
    CPoint HeaderOf(UINT section);
    CPoint GlyphOf(UINT section);
    std::pair<CRect, CRect> RectsOf(UINT item);

    // The editor that is open, or null. EditorCount counts all three.
    HWND Edit() const { return ::FindWindowEx(grid.m_hWnd, nullptr, L"Edit", nullptr); }
    static HWND List();
    static HWND Calendar();
    int EditorCount() const { return (Edit() != nullptr) + (List() != nullptr) + (Calendar() != nullptr); }
    static std::wstring TextOf(HWND window);
    // Puts a text into the open in-area edit and ends it with Enter.
    void Enter(const std::wstring& typed);

    // Types over all of the open in-area edit's text, character by character, as a person does. A text that
    // begins with Enter, Tab or Escape types over nothing.
    void TypeInEdit(const std::wstring& typed);

    // The grid holds no editor window, nor the object of one that has closed.
    void ExpectNoEditorLeft();

    // One row of each kind, in a section of their own; the result is the first one's id, the others follow
    // in the order of the kinds' numbers.
    UINT AddAllKinds(const std::wstring& sectionName);
    UINT Section() { return section; }

    template <class T>
    T Value(UINT item) const {
        T value{};
        EXPECT_TRUE(grid.GetItemValue(item, value));
        return value;
    }
    using Ids = std::vector<UINT>;
    using Texts = std::vector<std::wstring>;

    UINT section = 0;
    CScriptedItem custom;

private:
    void SendMouse(UINT message, CPoint point) { grid.SendMessage(message, 0, MAKELPARAM(point.x, point.y)); }
};
