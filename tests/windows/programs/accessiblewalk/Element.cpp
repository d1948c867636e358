#include "tests/windows/programs/accessiblewalk/Element.h"

namespace {

struct StateName {
    unsigned state;
    const wchar_t* name;
};
constexpr StateName kStateNames[] = {
    {STATE_SYSTEM_UNAVAILABLE, L"unavailable"}, {STATE_SYSTEM_INVISIBLE, L"invisible"},
    {STATE_SYSTEM_OFFSCREEN, L"off-screen"},    {STATE_SYSTEM_READONLY, L"read-only"},
    {STATE_SYSTEM_EXPANDED, L"expanded"},       {STATE_SYSTEM_COLLAPSED, L"collapsed"},
    {STATE_SYSTEM_SELECTED, L"selected"},       {STATE_SYSTEM_FOCUSED, L"focused"},
};
// Told as one word each where they are missing, since nearly every element has them.
constexpr StateName kUsualStateNames[] = {
    {STATE_SYSTEM_FOCUSABLE, L"not focusable"},
    {STATE_SYSTEM_SELECTABLE, L"not selectable"},
};

std::wstring DescribeState(unsigned state, bool isChild) {
    std::wstring words;
    const auto add = [&](const wchar_t* word) {
        words += (words.empty() ? L"" : L", ") + std::wstring(word);
    };
    for (const StateName& known : kStateNames) {
        if ((state & known.state) != 0) {
            add(known.name);
        }
        state &= ~known.state;
    }
    for (const StateName& usual : kUsualStateNames) {
        const bool isExpected = isChild || usual.state == STATE_SYSTEM_FOCUSABLE;
        if (isExpected && (state & usual.state) == 0) {
            add(usual.name);
        }
        state &= isExpected ? ~usual.state : ~0U;
    }
    if (state != 0) {
        add((L"state " + std::to_wstring(state)).c_str());
    }
    return words.empty() ? L"" : L" [" + words + L"]";
}

}  // namespace

AccessiblePointer ObjectOf(HWND window) {
    void* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
    return AccessiblePointer(static_cast<IAccessible*>(object));
}

VARIANT ToVariant(long child) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_I4;
    variant.lVal = child;
    return variant;
}

long ToChild(const VARIANT& variant) {
    return variant.vt == VT_I4 ? variant.lVal : -1;
}

std::optional<std::wstring> CElement::GetText(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT,
                                                                                            BSTR*)) const {
    BSTR text = nullptr;
    if ((m_object.*get)(ToVariant(m_child), &text) != S_OK || text == nullptr) {
        return std::nullopt;
    }
    const std::wstring copy(text, SysStringLen(text));
    SysFreeString(text);
    return copy;
}

std::wstring CElement::GetRole() const {
    VARIANT role;
    VariantInit(&role);
    m_object.get_accRole(ToVariant(m_child), &role);
    switch (ToChild(role)) {
        case ROLE_SYSTEM_LIST:
            return L"list";
        case ROLE_SYSTEM_LISTITEM:
            return L"list item";
        case ROLE_SYSTEM_OUTLINE:
            return L"outline";
        case ROLE_SYSTEM_OUTLINEITEM:
            return L"outline item";
        case ROLE_SYSTEM_GRAPHIC:
            return L"graphic";
        case ROLE_SYSTEM_TEXT:
            return L"text";
        default:
            return L"role " + std::to_wstring(ToChild(role));
    }
}

unsigned CElement::GetState() const {
    VARIANT state;
    VariantInit(&state);
    m_object.get_accState(ToVariant(m_child), &state);
    return static_cast<unsigned>(state.lVal);
}

// Such as: list item "Width" = "80" [selected] -> Edit (F2)
std::wstring CElement::Describe() const {
    std::wstring line = GetRole() + L" \"" + GetName() + L'"';
    if (const auto value = GetText(&IAccessible::get_accValue)) {
        line += L" = \"" + *value + L'"';
    }
    line += DescribeState(GetState(), m_child != CHILDID_SELF);
    if (const auto action = GetText(&IAccessible::get_accDefaultAction)) {
        line += L" -> " + *action;
    }
    if (const auto shortcut = GetText(&IAccessible::get_accKeyboardShortcut)) {
        line += L" (" + *shortcut + L')';
    }
    return line;
}

RECT CElement::GetLocation() const {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    m_object.accLocation(&left, &top, &width, &height, ToVariant(m_child));
    return {left, top, left + width, top + height};
}

HRESULT CElement::DoDefaultAction() const {
    return m_object.accDoDefaultAction(ToVariant(m_child));
}

HRESULT CElement::Select() const {
    return m_object.accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, ToVariant(m_child));
}
