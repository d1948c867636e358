// The COM object that assistive technology gets for a window: its client area and the children in it, which
// are simple elements without objects of their own.
//
// It counts its references and may outlive its window: after Disconnect every question is answered by
// CO_E_OBJNOTCONNECTED. A child id that is none gives E_INVALIDARG, a null pointer for a result E_POINTER,
// what the window does not offer DISP_E_MEMBERNOTFOUND. Nothing is thrown.
//
// Calls of other threads and processes come in through the system on the window's thread, provided that this
// thread has initialized COM as a single-threaded apartment.
#pragma once

#include <windows.h>
// These need the types of windows.h.
#include <ole2.h>

#include <oleacc.h>

#include <atomic>

#include "accessible/IAccessibleContents.h"

namespace tavrin::accessible {

class CAccessibleObject final : public IAccessible {
public:
    // With one reference, the creator's. Neither is owned.
    CAccessibleObject(HWND window, IAccessibleContents& contents) : m_window(window), m_contents(&contents) {}
    CAccessibleObject(const CAccessibleObject&) = delete;
    CAccessibleObject& operator=(const CAccessibleObject&) = delete;

    HWND GetWindow() const { return m_window; }
    // The window goes.
    void Disconnect() { m_contents = nullptr; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override;

    // The accessibility interface has no names to look up at run time.
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID none, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID none, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* argument) override;

    STDMETHODIMP get_accParent(IDispatch** parent) override;
    STDMETHODIMP get_accChildCount(LONG* count) override;
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override;
    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override;
    STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override;
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* description) override;
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override;
    STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override;
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override;
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override;
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override;
    STDMETHODIMP get_accFocus(VARIANT* child) override;
    STDMETHODIMP get_accSelection(VARIANT* child) override;
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override;
    STDMETHODIMP accSelect(LONG flags, VARIANT child) override;
    STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override;
    STDMETHODIMP accNavigate(LONG direction, VARIANT start, VARIANT* end) override;
    STDMETHODIMP accHitTest(LONG left, LONG top, VARIANT* child) override;
    STDMETHODIMP accDoDefaultAction(VARIANT child) override;
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override;
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override;

private:
    ~CAccessibleObject() = default;  // Release deletes

    template <class TWork>
    HRESULT Ask(TWork work) const;
    template <class TWork>
    HRESULT AskOf(const VARIANT& child, TWork work) const;
    HRESULT AskText(const VARIANT& child, BSTR* text, std::wstring (IAccessibleContents::*get)(int)) const;
    HRESULT Refuse(const VARIANT& child) const;

    std::atomic<ULONG> m_references = 1;
    HWND m_window;
    IAccessibleContents* m_contents;  // null once the window is gone
};

}  // namespace tavrin::accessible
