// A window's contents for the tests of its accessible object: two children, and a record of what was asked to
// be done.
#pragma once

#include <string>
#include <vector>

#include "accessible/IAccessibleContents.h"

class CFakeContents final : public tavrin::accessible::IAccessibleContents {
public:
    int focusedChild = 2;
    std::vector<std::string> done;
    void (*whileAsked)() = nullptr;  // called when a name is asked for

    int GetChildCount() override { return 2; }
    tavrin::accessible::ERole GetRole(int child) override {
        return child == 0 ? tavrin::accessible::ROLE_LIST : tavrin::accessible::ROLE_LIST_ITEM;
    }
    unsigned GetState(int child) override { return 0x100000U + static_cast<unsigned>(child); }
    std::wstring GetName(int child) override {
        if (whileAsked != nullptr) {
            whileAsked();
        }
        return child == 2 ? L"" : L"name " + std::to_wstring(child);
    }
    std::optional<std::wstring> GetValue(int child) override {
        return child == 0 ? std::nullopt : std::optional<std::wstring>(child == 1 ? L"value" : L"");
    }
    std::wstring GetDefaultAction(int child) override { return child == 1 ? L"Edit" : L""; }
    std::wstring GetShortcut(int child) override { return child == 1 ? L"F2" : L""; }
    RECT GetRect(int child) override { return {0, 20 * child - 20, 50, 20 * child}; }
    int HitTest(POINT point) override { return point.y < 40 ? point.y / 20 + 1 : 0; }
    int GetFocusedChild() override { return focusedChild; }
    void DoDefaultAction(int child) override { done.push_back("do " + std::to_string(child)); }
    bool Select(int child) override {
        done.push_back("select " + std::to_string(child));
        return child != 2;
    }
};
