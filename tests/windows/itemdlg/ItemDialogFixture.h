// Opens the item dialog on the test's own files and runs the test's steps in it.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "itemdlg/TavrinWndDlg.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"
#include "tests/windows/support/TempFolder.h"
#include "tests/windows/support/TextModule.h"

using namespace tavrin::itemdlg;
using namespace tavrin::propgrid;

class ItemDialogFixture : public testing::Test {
protected:
    void SetUp() override {
        fakeHost = {};
        fakeHost.searchFolders = {folder.Path(L"")};
    }

    // Both files of the item "item", from a parameter block's lines (each ended with "\n" here).
    void WriteItem(const std::string& block) {
        const std::string text = "first line\nItem title\nVAR\n" + block + "END_VAR\n";
        folder.Write(L"item_TMP.TXT", text);
        folder.Write(L"item.TXT", text);
    }

    // Adds a step that acts in the item dialog and then presses OK, or Cancel.
    void InDialog(std::function<void(HWND, CPropertyGrid&)> act, int button = IDOK) {
        driver.Then([this, act = std::move(act), button](HWND dialog) {
            m_dialogsSeen++;
            act(dialog, GridOf(dialog));
            PressButton(dialog, button);
        });
    }
    void PressInDialog(int button) {
        InDialog([](HWND, CPropertyGrid&) {}, button);
    }

    static CPropertyGrid& GridOf(HWND dialog) {
        return *static_cast<CPropertyGrid*>(CWnd::FromHandlePermanent(::GetDlgItem(dialog, 100)));
    }

    INT_PTR Run(double scale = 1.0, int mode = 0, const wchar_t* baseName = L"item") {
        CTavrinWndDlg dialog(nullptr);
        dialog.SetArguments(baseName, scale, mode);
        const INT_PTR result = dialog.DoModal();
        EXPECT_EQ(driver.StepsLeft(), 0U) << "an expected dialog or message box did not open";
        return result;
    }

    // The rows of the grid as they show: "name = text", one per line; "*" after an editable one.
    static std::wstring Rows(const CPropertyGrid& grid) {
        std::wstring rows;
        for (UINT item = 0; item < grid.GetItemCount(); ++item) {
            rows += grid.GetItemName(item) + L" = ";
            ICustomItem* custom = nullptr;
            rows += grid.GetItemValue(item, custom) ? custom->GetStringValue() : grid.GetItemText(item);
            rows += grid.IsItemEditable(item) ? L" *\n" : L"\n";
        }
        return rows;
    }

    static std::wstring TextOf(HWND window) {
        wchar_t text[500] = {};
        ::GetWindowTextW(window, text, 500);
        return text;
    }

    CTempFolder folder;
    CModalDriver driver;
    int m_dialogsSeen = 0;
};
