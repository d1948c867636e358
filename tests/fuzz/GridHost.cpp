#include "tests/fuzz/GridHost.h"

#include <bit>
#include <utility>

#include "propgrid/controller/EditResult.h"
#include "propgrid/controller/Focus.h"
#include "propgrid/layout/PaintPass.h"
#include "tests/fuzz/HostedCustomItem.h"

namespace tests {

CGridHost::CGridHost(Size client, int rowHeight) : m_rowHeight(rowHeight) {
    window.client = client;
    m_model.settings.gutter = client.width / 2;
    for (unsigned index = 0; index < kCustomItems; ++index) {
        m_customItems.push_back(std::make_unique<CHostedCustomItem>(*this, index));
    }
    UpdateView();
}

CGridHost::~CGridHost() = default;

// ---- The client's calls

void CGridHost::AddSection(const std::wstring& name, bool collapsed, Id before) {
    m_model.AddSection(name, collapsed, before);
    Relayout();
}

void CGridHost::AddItem(Id section, EItemType kind, const std::wstring& name, const SlotValue& value,
                        bool editable, bool undefined) {
    if (m_model.AddItem(section, kind, name, MakeValueOf(kind, value), editable, undefined) != kNoId) {
        Relayout();
    }
}

void CGridHost::Reset() {
    m_model.Clear();
    Relayout();
}

void CGridHost::SetDisplayMode(std::uint32_t mode) {
    m_model.settings.displayMode = mode;
    Relayout();
}

void CGridHost::SetGutter(int x) {
    m_model.settings.gutter = x;
    Repaint();
}

void CGridHost::SetFocusNonEditable(bool canFocus) {
    m_model.settings.focusNonEditable = canFocus;
    Repaint();
}

void CGridHost::SetCollapsed(Id id, bool collapsed) {
    if (GridSection* const section = m_model.FindSection(id)) {
        m_model.SetCollapsed(*section, collapsed);
        Relayout();
    }
}

void CGridHost::SetEditable(Id id, bool editable) {
    if (GridItem* const item = m_model.FindItem(id)) {
        item->SetEditable(editable);
        Repaint();
    }
}

void CGridHost::SetValue(Id id, const SlotValue& value) {
    if (m_model.FindItem(id) != nullptr && m_model.GetFocus().item == id) {
        EndEditor();
    }
    if (GridItem* const item = m_model.FindItem(id)) {
        item->value = MakeValueOf(item->kind, value);
        item->undefined = false;
        Repaint();
    }
}

void CGridHost::SetUndefined(Id id, bool undefined) {
    if (m_model.FindItem(id) != nullptr && m_model.GetFocus().item == id) {
        EndEditor();
    }
    GridItem* const item = m_model.FindItem(id);
    if (item != nullptr && item->kind != IT_CUSTOM) {
        item->undefined = undefined;
        Repaint();
    }
}

void CGridHost::SetChoices(Id id, int count) {
    if (GridItem* const item = m_model.FindItem(id); item != nullptr && item->kind == IT_COMBO) {
        item->options.assign(static_cast<std::size_t>(count), L"choice");
        Repaint();
    }
}

void CGridHost::AcceptValues() {
    for (Id id = 0; id < m_model.GetItemCount(); ++id) {
        m_model.FindItem(id)->TakeSavedCopy();
    }
    Repaint();
}

void CGridHost::FocusItem(Id id) {
    if (m_model.FindItem(id) != nullptr) {
        FocusRow({.item = id});
    }
}

void CGridHost::FocusSection(Id id) {
    if (m_model.FindSection(id) != nullptr) {
        FocusRow({.section = id});
    }
}

void CGridHost::FocusRow(const RowId& row) {
    MoveFocus(m_model, m_layout, row);
    Repaint();
}

void CGridHost::ChangeCustom(unsigned index, const CustomState& state) {
    window.customs[index] = state;
}

Value CGridHost::MakeValueOf(EItemType kind, const SlotValue& slots) {
    switch (kind) {
        case IT_CUSTOM:
            return static_cast<ICustomItem*>(m_customItems[slots.custom].get());
        case IT_STRING:
        case IT_TEXT:
        case IT_FILE:
        case IT_FOLDER:
            return slots.text;
        case IT_INTEGER:
        case IT_COMBO:
            return slots.number;
        case IT_DOUBLE:
            return slots.real;
        case IT_BOOLEAN:
            return slots.flag;
        case IT_DATE:
        case IT_DATETIME:
            return DateValue{slots.days, static_cast<EDateStatus>(slots.status)};
        case IT_COLOR:
            return slots.color;
        case IT_FONT:
            return std::make_shared<const FontValue>(std::bit_cast<FontValue>(slots.font));
    }
    return 0;
}

unsigned CGridHost::FindCustomIndex(const GridItem& item) {
    return static_cast<const CHostedCustomItem*>(item.GetCustomItem())->GetIndex();
}

void CGridHost::React() {
    if (const Reaction step = std::exchange(reaction, std::nullopt)) {
        RunClientStep(*this, *step);
    }
}

// ---- The window

void CGridHost::Relayout() {
    const int position = window.bar.shown ? window.bar.position : 0;
    UpdateView();
    const int total = m_layout.GetTotalHeight();
    if (m_layout.NeedsScrollBar()) {
        window.bar.Show(total, window.client.height, std::min(position, total));
    } else {
        window.bar.shown = false;
    }
    UpdateView();
    Repaint();
}

void CGridHost::UpdateView() {
    m_layout.SetView({.client = window.client,
                      .scrollBarWidth = window.bar.shown ? ScrollBar::kWidth : 0,
                      .scrollPosition = window.bar.shown ? window.bar.position : 0,
                      .rowHeight = m_rowHeight});
}

void CGridHost::Resize(Size client) {
    window.client = client;
    UpdateView();
    if (window.bar.exists) {
        Relayout();
    }
}

void CGridHost::Paint() {
    window.drawn.clear();
    CPaintPass pass(m_layout);
    while (const std::optional<PaintedRow> row = pass.Next()) {
        window.drawn.push_back({.section = row->section != nullptr ? row->section->id : kNoId,
                                .item = row->item != nullptr ? row->item->id : kNoId,
                                .row = row->row,
                                .name = row->parts.name,
                                .value = row->parts.value,
                                .button = row->parts.button,
                                .editMode = row->parts.editMode});
    }
}

ScrollState CGridHost::GetScroll() const {
    return {.first = 0, .end = window.bar.end, .page = window.bar.page, .position = window.bar.position};
}

void CGridHost::ScrollTo(std::optional<int> position) {
    if (position) {
        Run({action::ScrollTo{*position}});
    }
}

void CGridHost::Scroll(unsigned code, int thumb) {
    if (!window.bar.shown || code == SC_END_SCROLL) {
        return;
    }
    EndEditor();
    if (window.bar.shown) {
        ScrollTo(FindScrollTarget(GetScroll(), code, thumb, m_rowHeight, window.client.height));
    }
}

void CGridHost::TurnWheel(int delta) {
    if (!window.bar.shown || !FindWheelTarget(GetScroll(), delta, m_rowHeight)) {
        return;
    }
    EndEditor();
    if (window.bar.shown) {
        ScrollTo(FindWheelTarget(GetScroll(), delta, m_rowHeight));
    }
}

// ---- Input

void CGridHost::Press(Point point) {
    m_mouse.BeginPress();
    EndEditor();
    Paint();
    Run(m_mouse.Press(point));
}

void CGridHost::Release(Point point, unsigned answer) {
    m_answer = answer;
    Paint();
    Run(m_mouse.Release(point));
}

void CGridHost::Move(Point point) {
    Run(m_mouse.Move(point, window.editor != ED_NONE));
}

void CGridHost::DoubleClick(unsigned answer) {
    m_answer = answer;
    Run(m_mouse.DoubleClick());
}

void CGridHost::LoseCapture() {
    window.captured = false;
    Run(m_mouse.LoseCapture());
}

void CGridHost::PressKey(unsigned key) {
    if (CKeyController::IsGridKey(key)) {
        EndEditor();
        Paint();
    }
    Run(m_keys.PressKey(key, GetScroll()));
}

void CGridHost::TypeCharacter(wchar_t character) {
    Run(m_keys.TypeCharacter(character));
}

// ---- The editor

void CGridHost::EndEditor() {
    if (std::exchange(window.editor, ED_NONE) == ED_TEXT) {
        Run(TakeEditText(m_model, m_model.GetFocus().item, window.text, window.typed));
    }
}

void CGridHost::TypeText(const std::wstring& text) {
    if (window.editor == ED_TEXT) {
        window.text = text;
        window.typed = true;
    }
}

void CGridHost::EndText(bool escape) {
    if (window.editor != ED_TEXT) {
        return;
    }
    if (escape) {
        window.text = window.openedText;
        window.typed = false;
    }
    EndEditor();
}

void CGridHost::CloseEditor() {
    if (window.editor != ED_TEXT) {
        window.editor = ED_NONE;
    }
}

void CGridHost::Choose(int index) {
    if (window.editor != ED_LIST) {
        return;
    }
    const Actions actions = TakeListChoice(m_model, m_model.GetFocus().item, index);
    if (!actions.empty()) {
        window.editor = ED_NONE;
        Run(actions);
    }
}

void CGridHost::ChooseDate(double days) {
    if (window.editor != ED_CALENDAR) {
        return;
    }
    const Actions actions = TakeCalendarDate(m_model, m_model.GetFocus().item, {days, DS_VALID});
    if (!actions.empty()) {
        window.editor = ED_NONE;
        Run(actions);
    }
}

}  // namespace tests
