// A custom item of the client's in the host of the grid under test.
#pragma once

#include <string>

#include "propgrid/model/ICustomItem.h"
#include "tests/fuzz/GridHost.h"

// The framework's classes, which the interface of custom items names.
class CDC {};
class CPoint {};
class CRect {};

namespace tests {

// What happens to it is recorded by the host, which knows the item's id; it lets the client react.
class CHostedCustomItem final : public ICustomItem {
public:
    CHostedCustomItem(CGridHost& host, unsigned index) : m_host(host), m_index(index) {}
    virtual ~CHostedCustomItem() = default;
    CHostedCustomItem(const CHostedCustomItem&) = delete;
    CHostedCustomItem& operator=(const CHostedCustomItem&) = delete;

    unsigned GetIndex() const { return m_index; }
    CustomState GetState() const { return m_host.window.customs[m_index]; }

    int GetEditMode() override { return GetState().mode; }
    void DrawItem(CDC& /*dc*/, CRect /*rect*/, bool /*focused*/) override {}
    void AcceptValue() override {
        m_host.Record({.kind = WC_CUSTOM_ACCEPT, .item = m_index});
        m_host.React();
    }
    bool OnLButtonDown(CRect /*rect*/, CPoint /*point*/) override {
        const bool takes = GetState().takesPress;
        m_host.React();
        return takes;
    }
    void OnMouseMove(CRect /*rect*/, CPoint /*point*/) override { m_host.React(); }
    void OnLButtonUp(CRect /*rect*/, CPoint /*point*/) override { m_host.React(); }
    std::wstring GetStringValue() override { return GetState().text; }
    bool SetStringValue(std::wstring /*text*/) override { return Change(); }
    void ShowDropDown(CRect /*rect*/) override { m_host.React(); }
    bool OnButtonClicked() override { return Change(); }

private:
    bool Change() {
        const bool changes = GetState().changes;
        m_host.React();
        return changes;
    }

    CGridHost& m_host;
    unsigned m_index;
};

}  // namespace tests
