// A custom item for tests without windows. The framework's classes that the interface names have stand-ins
// here, since nothing draws.
#pragma once

#include <functional>
#include <string>

#include "propgrid/model/ICustomItem.h"

class CDC {};
class CPoint {};
class CRect {};

namespace tests {

class CTestCustomItem final : public tavrin::propgrid::ICustomItem {
public:
    int mode = tavrin::propgrid::EM_CUSTOM;
    int accepted = 0;
    std::wstring text = L"custom";
    std::function<void()> whileAccepting;

    int GetEditMode() override { return mode; }
    void DrawItem(CDC& /*dc*/, CRect /*rect*/, bool /*focused*/) override {}
    void AcceptValue() override {
        ++accepted;
        if (whileAccepting) {
            whileAccepting();
        }
    }
    bool OnLButtonDown(CRect /*rect*/, CPoint /*point*/) override { return false; }
    void OnMouseMove(CRect /*rect*/, CPoint /*point*/) override {}
    void OnLButtonUp(CRect /*rect*/, CPoint /*point*/) override {}
    std::wstring GetStringValue() override { return text; }
    bool SetStringValue(std::wstring /*text*/) override { return false; }
    void ShowDropDown(CRect /*rect*/) override {}
    bool OnButtonClicked() override { return false; }
};

}  // namespace tests
