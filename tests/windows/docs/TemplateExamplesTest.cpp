// The worked examples of the template's format: each folder of docs/examples/template is an item "shelf",
// whose files, dialog and files after OK are exactly what the documentation shows.
//
//   call.lsp              the call that opens the dialog
//   before.TXT            the working file; the template too, unless there is a template-before.TXT
//   dialog.txt            what the dialog shows: messages, title, header, a line for each row
//   working.TXT           the working file after OK  } either may be missing when it
//   template.TXT          the template after OK      } has nothing to show
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/windows/itemdlg/ItemDialogFixture.h"

namespace {

namespace fs = std::filesystem;

const fs::path examples = fs::path(EXAMPLES_DIR) / "template";

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string Utf8(const std::wstring& text) {
    std::string narrow(text.size() * 3, '\0');
    narrow.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.c_str(), static_cast<int>(text.size()), narrow.data(),
                            static_cast<int>(narrow.size()), nullptr, nullptr)));
    return narrow;
}

std::vector<std::string> ExampleNames() {
    std::vector<std::string> names;
    for (const fs::directory_entry& folder : fs::directory_iterator(examples)) {
        names.push_back(folder.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class TemplateExample : public ItemDialogFixture, public testing::WithParamInterface<std::string> {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        fakeHost.precision = 2;
        SetDllDirectoryW(fs::absolute(EXAMPLE_TEXTS_DIR).make_preferred().c_str());
        const fs::path own = Example() / "template-before.TXT";
        folder.Write(L"shelf_TMP.TXT", BytesOf(Example() / "before.TXT"));
        folder.Write(L"shelf.TXT", BytesOf(fs::exists(own) ? own : Example() / "before.TXT"));
    }

    fs::path Example() const { return examples / GetParam(); }

    // Handles each window that opens, up to the dialog itself: records what it shows and presses OK.
    void ExpectWindow() {
        driver.Then([this](HWND window) {
            if (::GetDlgItem(window, IDC_ITEM_GRID) == nullptr) {
                const MessageBoxSeen box = ReadMessageBox(window);
                shown += L"Message \"" + box.caption + L"\": " + box.text + L"\n";
                ExpectWindow();
                PostMessageW(FindWindowExW(window, nullptr, L"Button", nullptr), BM_CLICK, 0, 0);
                return;
            }
            shown += L"Title: " + TextOf(window) + L"\nHeader: \"" +
                     TextOf(::GetDlgItem(window, IDC_ITEM_HEADER)) + L"\"\n" + RowsOf(GridOf(window));
            PressButton(window, IDOK);
        });
    }

    static std::wstring RowsOf(const CPropertyGrid& grid) {
        std::wstring rows;
        for (UINT item = 0; item < grid.GetItemCount(); ++item) {
            ICustomItem* custom = nullptr;
            // The stand-in for the host's formats marks its texts with the units.
            const std::wstring value =
                grid.GetItemValue(item, custom) ? custom->GetStringValue().substr(3) : grid.GetItemText(item);
            rows += grid.GetItemName(item) + L" = " + value +
                    (grid.IsItemEditable(item) ? L"\n" : L" (read-only)\n");
        }
        return rows;
    }

    void RunCall() {
        double scale = 0;
        int mode = -1;
        const std::string call = BytesOf(Example() / "call.lsp");
        ASSERT_EQ(std::sscanf(call.c_str(), "(tavrinwnd \"shelf\" %lf %d)", &scale, &mode), 2) << call;
        EXPECT_EQ(Run(scale, mode, L"shelf"), IDOK);
    }

    void ExpectAfter(const char* name, const wchar_t* file) const {
        if (fs::exists(Example() / name)) {
            EXPECT_EQ(folder.Read(file), BytesOf(Example() / name));
        }
    }

    std::wstring shown;
};

TEST_P(TemplateExample, ShowsAndWritesWhatThePageSays) {
    ExpectWindow();
    RunCall();
    EXPECT_EQ(Utf8(shown), BytesOf(Example() / "dialog.txt"));
    ExpectAfter("working.TXT", L"shelf_TMP.TXT");
    ExpectAfter("template.TXT", L"shelf.TXT");
}

INSTANTIATE_TEST_SUITE_P(Documentation, TemplateExample, testing::ValuesIn(ExampleNames()),
                         [](const auto& info) {
                             std::string name = info.param;
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

}  // namespace
