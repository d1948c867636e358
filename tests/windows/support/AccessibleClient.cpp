#include "tests/windows/support/AccessibleClient.h"

#include <utility>

#include "tests/windows/support/Pixels.h"

namespace {

CAccessibleEvents* collector = nullptr;

// Closes a call of Take: events come in their order.
constexpr DWORD endEvent = EVENT_OBJECT_HELPCHANGE;

VARIANT ToVariant(long child) {
    VARIANT variant;
    VariantInit(&variant);
    variant.vt = VT_I4;
    variant.lVal = child;
    return variant;
}

int ToNumber(const VARIANT& variant) {
    return variant.vt == VT_I4 ? static_cast<int>(variant.lVal) : -1;
}

std::string NameOfEvent(DWORD event) {
    switch (event) {
        case EVENT_OBJECT_REORDER:
            return "reorder";
        case EVENT_OBJECT_FOCUS:
            return "focus";
        case EVENT_OBJECT_SELECTION:
            return "selection";
        case EVENT_OBJECT_STATECHANGE:
            return "state";
        case EVENT_OBJECT_VALUECHANGE:
            return "value";
        default:
            return {};
    }
}

}  // namespace

CAccessibleClient::CAccessibleClient(HWND window) {
    void* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
    m_object.reset(static_cast<IAccessible*>(object));
}

int CAccessibleClient::CountChildren() const {
    LONG count = -1;
    m_object->get_accChildCount(&count);
    return static_cast<int>(count);
}

std::wstring CAccessibleClient::TextOf(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*),
                                       long child) const {
    BSTR text = nullptr;
    const HRESULT result = (m_object.get()->*get)(ToVariant(child), &text);
    const std::wstring copy = result == S_OK ? std::wstring(text, SysStringLen(text)) : L"(none)";
    SysFreeString(text);
    return copy;
}

int CAccessibleClient::RoleOf(long child) const {
    VARIANT role;
    m_object->get_accRole(ToVariant(child), &role);
    return ToNumber(role);
}

unsigned CAccessibleClient::StateOf(long child) const {
    VARIANT state;
    m_object->get_accState(ToVariant(child), &state);
    return static_cast<unsigned>(ToNumber(state));
}

RECT CAccessibleClient::LocationOf(long child) const {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    m_object->accLocation(&left, &top, &width, &height, ToVariant(child));
    return {left, top, left + width, top + height};
}

int CAccessibleClient::HitTest(POINT point) const {
    VARIANT child;
    m_object->accHitTest(point.x, point.y, &child);
    return ToNumber(child);
}

int CAccessibleClient::FocusedChild() const {
    VARIANT child;
    m_object->get_accFocus(&child);
    return ToNumber(child);
}

int CAccessibleClient::SelectedChild() const {
    VARIANT child;
    m_object->get_accSelection(&child);
    return ToNumber(child);
}

HRESULT CAccessibleClient::DoDefaultAction(long child) const {
    return m_object->accDoDefaultAction(ToVariant(child));
}

HRESULT CAccessibleClient::Select(long child) const {
    return m_object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, ToVariant(child));
}

std::wstring CAccessibleClient::Names() const {
    std::wstring names;
    for (int child = 1; child <= CountChildren(); ++child) {
        names += NameOf(child) + L' ';
    }
    return names;
}

CAccessibleEvents::CAccessibleEvents(HWND window)
    : m_window(window),
      m_hook(SetWinEventHook(EVENT_OBJECT_REORDER, endEvent, nullptr, OnEvent, GetCurrentProcessId(),
                             GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT)) {
    collector = this;
}

CAccessibleEvents::~CAccessibleEvents() {
    UnhookWinEvent(m_hook);
    collector = nullptr;
}

std::vector<std::string> CAccessibleEvents::Take() {
    NotifyWinEvent(endEvent, m_window, OBJID_CLIENT, 0);
    PumpUntil([this] { return !m_events.empty() && m_events.back() == "end"; });
    std::vector<std::string> events = std::exchange(m_events, {});
    if (!events.empty()) {
        events.pop_back();
    }
    return events;
}

void CALLBACK CAccessibleEvents::OnEvent(HWINEVENTHOOK /*hook*/, DWORD event, HWND window, LONG object,
                                         LONG child, DWORD /*thread*/, DWORD /*time*/) {
    if (collector == nullptr || window != collector->m_window || object != OBJID_CLIENT) {
        return;
    }
    const std::string name = NameOfEvent(event);
    if (event == endEvent) {
        collector->m_events.emplace_back("end");
    } else if (!name.empty()) {
        collector->m_events.push_back(name + ' ' + std::to_string(child));
    }
}
