// The simple grid: the mouse and the editors.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cwctype>
#include <utility>

#include "tests/fuzz/SimpleGrid.h"

namespace tests {

namespace {

std::wstring WithoutSpace(const std::wstring& text) {
    std::size_t start = 0;
    while (start < text.size() && std::iswspace(static_cast<std::wint_t>(text[start])) != 0) {
        ++start;
    }
    return text.substr(start);
}

// The digits that the text begins with, after a sign.
int ReadInteger(const std::wstring& typed) {
    const std::wstring text = WithoutSpace(typed);
    const bool hasSign = !text.empty() && (text[0] == L'-' || text[0] == L'+');
    double number = 0;
    for (std::size_t i = hasSign ? 1 : 0; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        number = std::min(number * 10 + (text[i] - L'0'), 1e10);
    }
    if (hasSign && text[0] == L'-') {
        number = -number;
    }
    return static_cast<int>(std::clamp(number, static_cast<double>(INT_MIN), static_cast<double>(INT_MAX)));
}

// The longest beginning that is a decimal number, whatever the library makes of the rest.
double ReadReal(const std::wstring& typed) {
    const std::wstring text = WithoutSpace(typed);
    double best = 0;
    for (std::size_t length = 1; length <= text.size(); ++length) {
        const std::wstring head = text.substr(0, length);
        wchar_t* end = nullptr;
        const double number = std::wcstod(head.c_str(), &end);
        const bool isDecimal = head.find_first_not_of(L"0123456789.+-eE") == std::wstring::npos;
        if (isDecimal && end == head.c_str() + length) {
            best = number;
        }
    }
    return best;
}

}  // namespace

// The focus leaves nothing of the button of the row that it was on.
void CSimpleGrid::MoveFocus(const SimpleRow& row) {
    focus = row;
    editButton = {};
    Repaint();
}

void CSimpleGrid::Press(Point point) {
    m_editOnRelease = false;
    EndEditor();
    Paint();
    if (IsOnButton(point)) {
        buttonPressed = true;
        Capture(CP_BUTTON);
        return;
    }
    const SimpleItem* const item = FindFocusedItem();
    if (item != nullptr && item->kind == IT_CUSTOM && EditModeOf(*item) == EM_CUSTOM) {
        const bool takes = window.customs[item->value.custom].takesPress;
        NotifyCustomItem(WC_CUSTOM_PRESS, point);
        if (takes) {
            Capture(CP_CUSTOM);
            return;
        }
    }
    PressRow(point);
}

void CSimpleGrid::PressRow(Point point) {
    if (IsOnDivider(point)) {
        window.cursor = SC_SIZE;
        m_lastX = point.x;
        Capture(CP_DIVIDER);
        return;
    }
    MoveFocus({});
    if (const SimpleSection* const section = FindSectionAt(point)) {
        MoveFocus({.section = section->id});
        if (IsOnGlyph(*section, point)) {
            SetCollapsed(section->id, !section->collapsed);
        }
    } else if (const SimpleItem* const item = FindItemAt(point)) {
        PressItem(*item, point);
    } else {
        Record({.kind = WC_DEFAULT});
    }
}

void CSimpleGrid::PressItem(const SimpleItem& item, Point point) {
    MoveFocus({.item = item.id});
    if (!IsOnValue(item, point)) {
        return;
    }
    const int mode = EditModeOf(item);
    m_editOnRelease = mode == EM_INPLACE || mode == EM_DROPDOWN || mode == EM_INPLACE_BUTTON;
    m_textPart = mode == EM_INPLACE_BUTTON && point.x < item.valueRect.right - m_rowHeight;
}

void CSimpleGrid::Capture(ECapture use) {
    m_use = use;
    window.captured = true;
    Record({.kind = WC_CAPTURE});
    Repaint();
}

// Returns what the mouse was captured for. A window that took the capture away has it already.
CSimpleGrid::ECapture CSimpleGrid::EndCapture() {
    const ECapture use = std::exchange(m_use, CP_NONE);
    if (use != CP_NONE) {
        buttonPressed = false;
        Repaint();
    }
    if (std::exchange(window.captured, false)) {
        Record({.kind = WC_END_CAPTURE});
    }
    return use;
}

void CSimpleGrid::LoseCapture() {
    window.captured = false;
    EndCapture();
}

void CSimpleGrid::NotifyCustomItem(EWindowCall event, Point point) {
    const SimpleItem* const item = FindFocusedItem();
    if (item != nullptr && item->kind == IT_CUSTOM) {
        Record({.kind = event, .item = item->id, .rect = item->valueRect, .point = point});
        React();
    }
}

void CSimpleGrid::Move(Point point) {
    if (m_use == CP_CUSTOM) {
        NotifyCustomItem(WC_CUSTOM_MOVE, point);
    } else if (m_use == CP_BUTTON) {
        asksForPaint = asksForPaint || buttonPressed != IsOnButton(point);
        buttonPressed = IsOnButton(point);
    } else if (m_use == CP_DIVIDER) {
        window.cursor = SC_SIZE;
        gutter += point.x - m_lastX;
        gutter = std::max(gutter, window.client.width / 5);
        gutter = std::min(gutter, window.client.width * 4 / 5);
        m_lastX = point.x;
        Repaint();
    } else if (window.editor == ED_NONE) {
        window.cursor = IsOnDivider(point) ? SC_SIZE : SC_ARROW;
    }
}

void CSimpleGrid::Release(Point point, unsigned answer) {
    Paint();
    const bool edit = std::exchange(m_editOnRelease, false);
    const ECapture use = EndCapture();
    if (use == CP_CUSTOM) {
        NotifyCustomItem(WC_CUSTOM_UP, point);
        return;
    }
    if (use == CP_DIVIDER) {
        window.cursor = SC_ARROW;
    }
    if (use != CP_BUTTON && !edit) {
        return;
    }
    const SimpleItem* const item = FindFocusedItem();
    if (IsOnButton(point) || (edit && item != nullptr && IsOnValue(*item, point))) {
        OpenEditor(point, answer);
    }
}

void CSimpleGrid::DoubleClick(unsigned answer) {
    SimpleItem* const item = FindItem(focus.item);
    if (item == nullptr) {
        if (SimpleSection* const section = FindSection(focus.section)) {
            section->collapsed = !section->collapsed;
            Repaint();
        }
    } else if (item->kind == IT_BOOLEAN && !item->undefined) {
        item->value.flag = !item->value.flag;
        Notify(item->id);
    } else if (item->kind == IT_COMBO && !item->undefined && item->choices > 0) {
        // The remainder of a number below the choices is below them, too.
        const int next = static_cast<int>((item->value.number + 1LL) % item->choices);
        item->value.number = next < 0 ? next + item->choices : next;
        Notify(item->id);
    } else if (item->editable && EditModeOf(*item) == EM_MODAL) {
        EditInDialog(item->id, answer);
    }
}

// ---- Editors

void CSimpleGrid::OpenEditor(Point point, unsigned answer) {
    const SimpleItem* const item = FindFocusedItem();
    if (item == nullptr || !item->editable) {
        return;
    }
    const Rect& button = editButton;
    const int mode = EditModeOf(*item);
    if (mode == EM_INPLACE) {
        OpenText(*item, {button.left + 1, button.top + 2, button.right, button.bottom});
    } else if (mode == EM_DROPDOWN) {
        DropDown(*item);
    } else if (mode == EM_MODAL) {
        EditInDialog(item->id, answer);
    } else if (mode == EM_CUSTOM) {
        NotifyCustomItem(WC_CUSTOM_UP, point);
    } else if (mode == EM_INPLACE_BUTTON) {
        const bool onText = point.x < button.right - m_rowHeight;
        if (onText || !m_textPart) {
            m_textPart = true;
            OpenText(*item, {button.left + 2, button.top + 2, button.right - m_rowHeight, button.bottom});
        } else {
            EditInDialog(item->id, answer);
        }
    }
}

void CSimpleGrid::OpenText(const SimpleItem& item, const Rect& rect) {
    window.editor = ED_TEXT;
    window.openedText = EditTextOf(item);
    window.text = window.openedText;
    window.typed = false;
    Record({.kind = WC_OPEN_TEXT, .item = item.id, .rect = rect, .text = window.text});
}

void CSimpleGrid::DropDown(const SimpleItem& item) {
    const Rect cell = {gutter, editButton.top, editButton.right, editButton.bottom};
    window.editor = ED_NONE;
    if (item.kind == IT_CUSTOM) {
        Record({.kind = WC_CUSTOM_DROP_DOWN, .item = item.id, .rect = cell});
        React();
    } else if (item.kind == IT_DATE) {
        window.editor = ED_CALENDAR;
        Record({.kind = WC_OPEN_CALENDAR, .item = item.id, .rect = cell});
    } else {
        window.editor = ED_LIST;
        Record({.kind = WC_OPEN_LIST, .item = item.id, .rect = cell});
    }
}

// While a dialog is open the client may remove the item or replace it.
void CSimpleGrid::EditInDialog(Id id, unsigned answer) {
    window.editor = ED_NONE;
    const SimpleItem* const item = FindItem(id);
    if (item->kind == IT_CUSTOM) {
        PressCustomButton(id);
        return;
    }
    const EItemType kind = item->kind;
    Record({.kind = WC_DIALOG, .item = id});
    React();
    SimpleItem* const edited = FindItem(id);
    const bool confirmed = answer % 2 == 1;
    if (confirmed && edited != nullptr && edited->kind == kind) {
        edited->value = MakeValue(answer / 2);
        edited->undefined = false;
        Notify(id);
    }
}

void CSimpleGrid::PressCustomButton(Id id) {
    const unsigned custom = FindItem(id)->value.custom;
    const bool changes = window.customs[custom].changes;
    Record({.kind = WC_CUSTOM_BUTTON, .item = id});
    React();
    if (changes) {
        ReportCustomChange(id, custom);
    }
}

// Unless it has lost its row meanwhile.
void CSimpleGrid::ReportCustomChange(Id id, unsigned custom) {
    const SimpleItem* const item = FindItem(id);
    if (item != nullptr && item->kind == IT_CUSTOM && item->value.custom == custom) {
        Notify(id);
    }
}

void CSimpleGrid::Notify(Id id) {
    Repaint();
    Record({.kind = WC_NOTIFY, .item = id});
    React();
    Repaint();
}

// As when it loses the keyboard: a text edit gives back its text, the others close.
void CSimpleGrid::EndEditor() {
    if (std::exchange(window.editor, ED_NONE) == ED_TEXT) {
        TakeText(window.text, window.typed);
    }
}

void CSimpleGrid::TypeText(const std::wstring& text) {
    if (window.editor == ED_TEXT) {
        window.text = text;
        window.typed = true;
    }
}

void CSimpleGrid::EndText(bool escape) {
    if (window.editor != ED_TEXT) {
        return;
    }
    if (escape) {
        window.text = window.openedText;
        window.typed = false;
    }
    EndEditor();
}

// A list or a calendar, without a result.
void CSimpleGrid::CloseEditor() {
    if (window.editor != ED_TEXT) {
        window.editor = ED_NONE;
    }
}

void CSimpleGrid::TakeText(const std::wstring& text, bool typed) {
    SimpleItem* const item = FindItem(focus.item);
    if (item == nullptr) {
        return;
    }
    const bool isNumber = item->kind == IT_INTEGER || item->kind == IT_DOUBLE;
    if (item->kind == IT_CUSTOM) {
        GiveCustomText(item->id, text);
    } else if (isNumber && text.empty()) {
        Repaint();
    } else if (isNumber || item->kind == IT_STRING) {
        // Text that was not typed keeps its value: a number the digits that its text does not have.
        if (typed) {
            item->value.text = text;
            item->value.number = ReadInteger(text);
            item->value.real = ReadReal(text);
        }
        item->undefined = false;
        Notify(item->id);
    }
}

void CSimpleGrid::GiveCustomText(Id id, const std::wstring& text) {
    const unsigned custom = FindItem(id)->value.custom;
    const bool changes = window.customs[custom].changes;
    Record({.kind = WC_CUSTOM_TEXT, .item = id, .text = text});
    React();
    if (changes) {
        ReportCustomChange(id, custom);
    }
    Repaint();
}

// A list that is left by an item of another kind stays open.
void CSimpleGrid::Choose(int index) {
    SimpleItem* const item = FindItem(focus.item);
    const bool takes = item != nullptr && (item->kind == IT_BOOLEAN || item->kind == IT_COMBO);
    if (window.editor != ED_LIST || !takes) {
        return;
    }
    window.editor = ED_NONE;
    item->value.flag = index == 0;
    item->value.number = index;
    item->undefined = false;
    Notify(item->id);
}

// The calendar knows days.
void CSimpleGrid::ChooseDate(double days) {
    SimpleItem* const item = FindItem(focus.item);
    if (window.editor != ED_CALENDAR || item == nullptr || item->kind != IT_DATE) {
        return;
    }
    window.editor = ED_NONE;
    item->value.days = std::trunc(days);
    item->value.status = 0;
    item->undefined = false;
    Notify(item->id);
}

}  // namespace tests
