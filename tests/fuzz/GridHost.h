// The property grid under test, model, layout and controllers, in a window that is none: carries out what the
// controllers return and records it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "propgrid/controller/KeyController.h"
#include "propgrid/controller/MouseController.h"
#include "tests/fuzz/GridWindow.h"

namespace tests {

class CHostedCustomItem;

class CGridHost {
public:
    CGridHost(Size client, int rowHeight);
    ~CGridHost();
    CGridHost(const CGridHost&) = delete;
    CGridHost& operator=(const CGridHost&) = delete;

    // The client's calls.
    void AddSection(const std::wstring& name, bool collapsed, Id before);
    void AddItem(Id section, EItemType kind, const std::wstring& name, const SlotValue& value, bool editable,
                 bool undefined);
    void Reset();
    void SetDisplayMode(std::uint32_t mode);
    void SetGutter(int x);
    void SetFocusNonEditable(bool canFocus);
    void SetCollapsed(Id id, bool collapsed);
    void SetEditable(Id id, bool editable);
    void SetValue(Id id, const SlotValue& value);
    void SetUndefined(Id id, bool undefined);
    void SetChoices(Id id, int count);
    void AcceptValues();
    void FocusItem(Id id);
    void FocusSection(Id id);
    void ChangeCustom(unsigned index, const CustomState& state);

    // The user's and the system's events.
    void Resize(Size client);
    void Press(Point point);
    void Release(Point point, unsigned answer);
    void Move(Point point);
    void DoubleClick(unsigned answer);
    void LoseCapture();
    void PressKey(unsigned key);
    void TypeCharacter(wchar_t character);
    void TurnWheel(int delta);
    void Scroll(unsigned code, int thumb);
    void TypeText(const std::wstring& text);
    void EndText(bool escape);
    void Choose(int index);
    void ChooseDate(double days);
    void CloseEditor();
    void Paint();

    const CGridModel& GetModel() const { return m_model; }
    const CGridLayout& GetLayout() const { return m_layout; }
    bool IsButtonPressed() const { return m_mouse.IsButtonPressed(); }
    // Which of the client's custom items an item holds.
    static unsigned FindCustomIndex(const GridItem& item);

    GridWindow window;
    bool asksForPaint = false;
    Reaction reaction;

private:
    friend class CHostedCustomItem;

    void Repaint() { asksForPaint = true; }
    void Relayout();
    void UpdateView();
    void React();
    void Record(const WindowCall& call) { window.calls.push_back(call); }
    void FocusRow(const RowId& row);
    Value MakeValueOf(EItemType kind, const SlotValue& slots);
    ScrollState GetScroll() const;
    void ScrollTo(std::optional<int> position);
    void EndEditor();

    void Run(const Actions& actions);
    static Id FindNamedItem(const Action& asked);
    void Do(const action::BeginCapture& capture);
    void Do(const action::EndCapture& capture);
    void Do(const action::ShowCursor& cursor);
    void Do(const action::Repaint& repaint);
    void Do(const action::Relayout& relayout);
    void Do(const action::ScrollTo& scroll);
    void Do(const action::AskCustomItem& question);
    void Do(const action::NotifyCustomItem& event);
    void Do(const action::OpenTextEdit& edit);
    void Do(const action::DropDown& list);
    void Do(const action::EditInDialog& dialog);
    void Do(const action::GiveText& text);
    void Do(const action::Notify& change);
    void Do(const action::DefaultHandling& handling);
    void ReportCustomChange(Id item, const ICustomItem* custom);
    const ICustomItem* FindCustomItem(Id id) const;

    CGridModel m_model;
    CGridLayout m_layout{m_model};
    CMouseController m_mouse{m_model, m_layout};
    CKeyController m_keys{m_model, m_layout};
    std::vector<std::unique_ptr<CHostedCustomItem>> m_customItems;
    int m_rowHeight;
    unsigned m_answer = 0;  // to a dialog
};

}  // namespace tests
