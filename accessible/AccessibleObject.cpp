#include "accessible/AccessibleObject.h"

#include <new>

namespace tavrin::accessible {

static_assert(kSelf == CHILDID_SELF);
static_assert(ROLE_LIST == ROLE_SYSTEM_LIST && ROLE_LIST_ITEM == ROLE_SYSTEM_LISTITEM &&
              ROLE_OUTLINE == ROLE_SYSTEM_OUTLINE && ROLE_OUTLINE_ITEM == ROLE_SYSTEM_OUTLINEITEM &&
              ROLE_GRAPHIC == ROLE_SYSTEM_GRAPHIC);
static_assert(STATE_UNAVAILABLE == STATE_SYSTEM_UNAVAILABLE && STATE_SELECTED == STATE_SYSTEM_SELECTED &&
              STATE_FOCUSED == STATE_SYSTEM_FOCUSED && STATE_READ_ONLY == STATE_SYSTEM_READONLY &&
              STATE_EXPANDED == STATE_SYSTEM_EXPANDED && STATE_COLLAPSED == STATE_SYSTEM_COLLAPSED &&
              STATE_INVISIBLE == STATE_SYSTEM_INVISIBLE && STATE_OFF_SCREEN == STATE_SYSTEM_OFFSCREEN &&
              STATE_FOCUSABLE == STATE_SYSTEM_FOCUSABLE && STATE_SELECTABLE == STATE_SYSTEM_SELECTABLE);
static_assert(DIRECTION_UP == NAVDIR_UP && DIRECTION_DOWN == NAVDIR_DOWN && DIRECTION_LEFT == NAVDIR_LEFT &&
              DIRECTION_RIGHT == NAVDIR_RIGHT && DIRECTION_NEXT == NAVDIR_NEXT &&
              DIRECTION_PREVIOUS == NAVDIR_PREVIOUS && DIRECTION_FIRST_CHILD == NAVDIR_FIRSTCHILD &&
              DIRECTION_LAST_CHILD == NAVDIR_LASTCHILD);
static_assert(EVENT_REORDER == EVENT_OBJECT_REORDER && EVENT_FOCUS == EVENT_OBJECT_FOCUS &&
              EVENT_SELECTION == EVENT_OBJECT_SELECTION && EVENT_STATE_CHANGE == EVENT_OBJECT_STATECHANGE &&
              EVENT_VALUE_CHANGE == EVENT_OBJECT_VALUECHANGE);

namespace {

HRESULT GiveNumber(int number, VARIANT& result) {
    result.vt = VT_I4;
    result.lVal = number;
    return S_OK;
}

// S_FALSE and no text for none.
HRESULT GiveText(const std::optional<std::wstring>& text, BSTR& result) {
    if (!text) {
        return S_FALSE;
    }
    result = ::SysAllocStringLen(text->data(), static_cast<UINT>(text->size()));
    return result != nullptr ? S_OK : E_OUTOFMEMORY;
}

}  // namespace

// What client code throws, such as a custom item's, must not reach the system.
template <class TWork>
HRESULT CAccessibleObject::Ask(TWork work) const {
    if (m_contents == nullptr) {
        return CO_E_OBJNOTCONNECTED;
    }
    try {
        return work(*m_contents);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (...) {
        return E_FAIL;
    }
}

template <class TWork>
HRESULT CAccessibleObject::AskOf(const VARIANT& child, TWork work) const {
    return Ask([&](IAccessibleContents& contents) -> HRESULT {
        const bool exists =
            child.vt == VT_I4 && child.lVal >= kSelf && child.lVal <= contents.GetChildCount();
        return exists ? work(contents, static_cast<int>(child.lVal)) : E_INVALIDARG;
    });
}

HRESULT CAccessibleObject::AskText(const VARIANT& child, BSTR* text,
                                   std::wstring (IAccessibleContents::*get)(int)) const {
    if (text == nullptr) {
        return E_POINTER;
    }
    *text = nullptr;
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        const std::wstring answer = (contents.*get)(id);
        return answer.empty() ? S_FALSE : GiveText(answer, *text);
    });
}

// The answer to a question that no window has an answer to.
HRESULT CAccessibleObject::Refuse(const VARIANT& child) const {
    return AskOf(child, [](IAccessibleContents&, int) { return DISP_E_MEMBERNOTFOUND; });
}

// ---- Identity

STDMETHODIMP CAccessibleObject::QueryInterface(REFIID id, void** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    const bool isKnown = id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
    *object = isKnown ? static_cast<IAccessible*>(this) : nullptr;
    if (!isKnown) {
        return E_NOINTERFACE;
    }
    AddRef();
    return S_OK;
}

STDMETHODIMP_(ULONG) CAccessibleObject::Release() {
    const ULONG left = --m_references;
    if (left == 0) {
        delete this;
    }
    return left;
}

STDMETHODIMP CAccessibleObject::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return S_OK;
}

STDMETHODIMP CAccessibleObject::GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) {
    if (info == nullptr) {
        return E_POINTER;
    }
    *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP CAccessibleObject::GetIDsOfNames(REFIID /*none*/, LPOLESTR* /*names*/, UINT /*count*/,
                                              LCID /*locale*/, DISPID* /*ids*/) {
    return E_NOTIMPL;
}

STDMETHODIMP CAccessibleObject::Invoke(DISPID /*id*/, REFIID /*none*/, LCID /*locale*/, WORD /*flags*/,
                                       DISPPARAMS* /*parameters*/, VARIANT* /*result*/,
                                       EXCEPINFO* /*exception*/, UINT* /*argument*/) {
    return E_NOTIMPL;
}

// ---- The tree

STDMETHODIMP CAccessibleObject::get_accParent(IDispatch** parent) {
    if (parent == nullptr) {
        return E_POINTER;
    }
    *parent = nullptr;
    return Ask([&](IAccessibleContents&) {
        return ::AccessibleObjectFromWindow(m_window, static_cast<DWORD>(OBJID_WINDOW), __uuidof(IDispatch),
                                            reinterpret_cast<void**>(parent));
    });
}

STDMETHODIMP CAccessibleObject::get_accChildCount(LONG* count) {
    if (count == nullptr) {
        return E_POINTER;
    }
    *count = 0;
    return Ask([&](IAccessibleContents& contents) {
        *count = contents.GetChildCount();
        return S_OK;
    });
}

// A child has no object: S_FALSE.
STDMETHODIMP CAccessibleObject::get_accChild(VARIANT child, IDispatch** object) {
    if (object == nullptr) {
        return E_POINTER;
    }
    *object = nullptr;
    return AskOf(child, [&](IAccessibleContents&, int id) {
        if (id != kSelf) {
            return S_FALSE;
        }
        AddRef();
        *object = this;
        return S_OK;
    });
}

STDMETHODIMP CAccessibleObject::accNavigate(LONG direction, VARIANT start, VARIANT* end) {
    if (end == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(end);
    return AskOf(start, [&](IAccessibleContents& contents, int id) -> HRESULT {
        if (direction < DIRECTION_UP || direction > DIRECTION_LAST_CHILD) {
            return E_INVALIDARG;
        }
        const int found = FindNeighbor(static_cast<EDirection>(direction), id, contents.GetChildCount());
        return found != kSelf ? GiveNumber(found, *end) : S_FALSE;
    });
}

// ---- What an element is like

STDMETHODIMP CAccessibleObject::get_accName(VARIANT child, BSTR* name) {
    return AskText(child, name, &IAccessibleContents::GetName);
}

STDMETHODIMP CAccessibleObject::get_accValue(VARIANT child, BSTR* value) {
    if (value == nullptr) {
        return E_POINTER;
    }
    *value = nullptr;
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        return GiveText(contents.GetValue(id), *value);
    });
}

STDMETHODIMP CAccessibleObject::get_accDescription(VARIANT child, BSTR* description) {
    if (description == nullptr) {
        return E_POINTER;
    }
    *description = nullptr;
    return Refuse(child);
}

STDMETHODIMP CAccessibleObject::get_accRole(VARIANT child, VARIANT* role) {
    if (role == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(role);
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        return GiveNumber(contents.GetRole(id), *role);
    });
}

STDMETHODIMP CAccessibleObject::get_accState(VARIANT child, VARIANT* state) {
    if (state == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(state);
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        return GiveNumber(static_cast<int>(contents.GetState(id)), *state);
    });
}

STDMETHODIMP CAccessibleObject::get_accHelp(VARIANT child, BSTR* help) {
    if (help == nullptr) {
        return E_POINTER;
    }
    *help = nullptr;
    return Refuse(child);
}

STDMETHODIMP CAccessibleObject::get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) {
    if (file == nullptr || topic == nullptr) {
        return E_POINTER;
    }
    *file = nullptr;
    *topic = 0;
    return Refuse(child);
}

STDMETHODIMP CAccessibleObject::get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) {
    return AskText(child, shortcut, &IAccessibleContents::GetShortcut);
}

STDMETHODIMP CAccessibleObject::get_accDefaultAction(VARIANT child, BSTR* action) {
    return AskText(child, action, &IAccessibleContents::GetDefaultAction);
}

// ---- Focus and selection

STDMETHODIMP CAccessibleObject::get_accFocus(VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(child);
    return Ask([&](IAccessibleContents& contents) {
        return ::GetFocus() == m_window ? GiveNumber(contents.GetFocusedChild(), *child) : S_FALSE;
    });
}

STDMETHODIMP CAccessibleObject::get_accSelection(VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(child);
    return Ask([&](IAccessibleContents& contents) {
        const int selected = contents.GetFocusedChild();
        return selected != kSelf ? GiveNumber(selected, *child) : S_FALSE;
    });
}

// One child at a time has both.
STDMETHODIMP CAccessibleObject::accSelect(LONG flags, VARIANT child) {
    return AskOf(child, [&](IAccessibleContents& contents, int id) -> HRESULT {
        constexpr LONG kBoth = SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION;
        if (flags == SELFLAG_NONE || (flags & ~kBoth) != 0) {
            return E_INVALIDARG;
        }
        return contents.Select(id) ? S_OK : S_FALSE;
    });
}

STDMETHODIMP CAccessibleObject::accDoDefaultAction(VARIANT child) {
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        if (contents.GetDefaultAction(id).empty()) {
            return DISP_E_MEMBERNOTFOUND;
        }
        contents.DoDefaultAction(id);
        return S_OK;
    });
}

// ---- On the screen

STDMETHODIMP CAccessibleObject::accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) {
    if (left == nullptr || top == nullptr || width == nullptr || height == nullptr) {
        return E_POINTER;
    }
    *left = *top = *width = *height = 0;
    return AskOf(child, [&](IAccessibleContents& contents, int id) {
        RECT rect;
        ::GetClientRect(m_window, &rect);
        if (id != kSelf) {
            rect = contents.GetRect(id);
        }
        ::MapWindowPoints(m_window, nullptr, reinterpret_cast<POINT*>(&rect), 2);
        *left = rect.left;
        *top = rect.top;
        *width = rect.right - rect.left;
        *height = rect.bottom - rect.top;
        return S_OK;
    });
}

STDMETHODIMP CAccessibleObject::accHitTest(LONG left, LONG top, VARIANT* child) {
    if (child == nullptr) {
        return E_POINTER;
    }
    ::VariantInit(child);
    return Ask([&](IAccessibleContents& contents) {
        POINT point = {left, top};
        ::MapWindowPoints(nullptr, m_window, &point, 1);
        RECT client;
        ::GetClientRect(m_window, &client);
        return ::PtInRect(&client, point) ? GiveNumber(contents.HitTest(point), *child) : S_FALSE;
    });
}

// ---- What cannot be changed

STDMETHODIMP CAccessibleObject::put_accName(VARIANT child, BSTR /*name*/) {
    return Refuse(child);
}

STDMETHODIMP CAccessibleObject::put_accValue(VARIANT child, BSTR /*value*/) {
    return Refuse(child);
}

}  // namespace tavrin::accessible
