// tavrincheck's preview of the item dialog equals what the dialog does: rows, title and messages, and both
// files byte for byte.
#include <filesystem>
#include <optional>
#include <set>

#include "itemdlg/ItemMessages.h"
#include "tests/items/ItemGenerator.h"
#include "tests/windows/itemdlg/ItemDialogFixture.h"
#include "tools/files/FileLines.h"
#include "tools/files/Files.h"
#include "tools/tavrincheck/ItemPreview.h"
#include "tools/texts/TextTable.h"
#include "units/LinearUnits.h"

using namespace tavrin::itemdlg;
using namespace tavrin::tools;
using namespace tavrin::units;

namespace {

constexpr int kPrecision = 4;

// Is filled as ever, but goes by OK before it would be shown, which makes a thousand of them quick.
class CUnseenDialog : public CTavrinWndDlg {
public:
    std::function<void(CUnseenDialog& dialog, CPropertyGrid& grid)> act;

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CTavrinWndDlg::OnInitDialog();
        act(*this, static_cast<CPropertyGrid&>(*GetDlgItem(IDC_ITEM_GRID)));
        OnClickedOk();
        return result;
    }
};

std::wstring RowText(const std::wstring& kind, const std::wstring& label, const std::wstring& value,
                     bool editable) {
    return kind + L" [" + label + L"] [" + value + L"]" + (editable ? L" *\n" : L"\n");
}

std::wstring KindOf(const CPropertyGrid& grid, UINT item) {
    EItemType kind = IT_STRING;
    grid.GetItemKind(item, kind);
    return kind == IT_CUSTOM ? L"D" : kind == IT_INTEGER ? L"I" : kind == IT_DOUBLE ? L"R" : L"?";
}

// A value that a user might give to a row of a kind, in the form of its row.
std::wstring NewValue(std::int32_t type) {
    return type == 'I' ? L"-42" : type == 'D' ? L"1'-3 1/2\"" : L"0.125";
}

class Preview : public ItemDialogFixture {
protected:
    static void SetUpTestSuite() {
        wchar_t program[MAX_PATH];
        ::GetModuleFileNameW(nullptr, program, MAX_PATH);
        texts.ReadFile(
            NameOf(std::filesystem::path(program).parent_path().parent_path() / "bin/TavrinRes.dll"));
    }

    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
        fakeHost.precision = kPrecision;
        fakeHost.distanceText = FormatLinear;
        fakeHost.distanceOf = [](const std::wstring& text) { return ParseLinear(text); };
    }

    void PutFiles(const GeneratedItem& item) {
        folder.Write(L"item_TMP.TXT", item.workingFile);
        if (item.templateFile) {
            folder.Write(L"item.TXT", *item.templateFile);
        } else {
            ::DeleteFileW(folder.Path(L"item.TXT").c_str());
        }
    }

    static CItemPreview PreviewOf(const GeneratedItem& item) {
        PreviewSettings settings;
        settings.scale = item.scale;
        settings.mode = item.mode;
        settings.texts = [](unsigned number) { return texts.Load(number); };
        settings.distanceText = [](double value) {
            return FormatLinear(value, fakeHost.linearUnits, kPrecision).value_or(L"");
        };
        return CItemPreview(TextsOf(SplitLines(item.workingFile)), settings);
    }

    // What the dialog shows, from its windows.
    static std::wstring Shown(CWnd& dialog, const CPropertyGrid& grid) {
        std::wstring shown =
            WholeTextOf(dialog) + L"\n" + WholeTextOf(*dialog.GetDlgItem(IDC_ITEM_HEADER)) + L"\n";
        for (UINT item = 0; item < grid.GetItemCount(); ++item) {
            ICustomItem* custom = nullptr;
            const std::wstring value =
                grid.GetItemValue(item, custom) ? custom->GetStringValue() : grid.GetItemText(item);
            shown += RowText(KindOf(grid, item), grid.GetItemName(item), value, grid.IsItemEditable(item));
        }
        return shown;
    }

    static std::wstring Previewed(const CItemPreview& preview) {
        const ItemContents& contents = preview.Contents();
        std::wstring shown = contents.title.value_or(L"item") + L"\n" +
                             (contents.title ? contents.header : L"  Parametri") + L"\n";
        for (const ItemParameter& parameter : contents.parameters) {
            const ParamRecord& record = parameter.record;
            if (parameter.row == PR_SHOWN) {
                shown += RowText(std::wstring(1, static_cast<wchar_t>(record.type)), record.label,
                                 preview.ValueTextOf(parameter), parameter.editable);
            }
        }
        return shown;
    }

    // Gives every third row that can be meant by its number a new value, here and there.
    static void ChangeValues(CItemPreview& preview, CPropertyGrid& grid) {
        std::multiset<std::wstring> numbers;
        for (const ItemParameter& parameter : preview.Contents().parameters) {
            numbers.insert(parameter.record.number);
        }
        UINT row = 0;
        for (const ItemParameter& parameter : preview.Contents().parameters) {
            if (parameter.row != PR_SHOWN) {
                continue;
            }
            const UINT item = row++;
            const ParamRecord& record = parameter.record;
            if (item % 3 != 0 || !parameter.editable || numbers.count(record.number) > 1) {
                continue;
            }
            const std::wstring value = NewValue(record.type);
            preview.SetValue(record.number, value);
            ICustomItem* custom = nullptr;
            if (grid.GetItemValue(item, custom)) {
                custom->SetStringValue(value);
            } else if (record.type == 'I') {
                grid.SetItemValue(item, std::stoi(value));
            } else {
                grid.SetItemValue(item, std::stod(value));
            }
        }
    }

    void ExpectMessages(const CItemPreview& preview, bool templateIsMissing) {
        std::vector<std::wstring> expected;
        for (const ItemParameter& parameter : preview.Contents().parameters) {
            if (parameter.row == PR_INVALID_TYPE) {
                expected.push_back(kInvalidTypeMessage);
            }
        }
        if (templateIsMissing) {
            expected.push_back(kFileNotFoundMessage);
        }
        m_expectedMessages = expected;
        for (size_t i = 0; i < expected.size(); ++i) {
            driver.ThenPressOk();
        }
    }

    void Compare(const GeneratedItem& item, bool changeValues) {
        driver.Forget();
        fakeHost.searched.clear();
        PutFiles(item);
        CItemPreview preview = PreviewOf(item);
        ExpectMessages(preview, !item.templateFile);
        CUnseenDialog dialog;
        dialog.SetArguments(L"item", item.scale, item.mode);
        dialog.act = [&](CUnseenDialog& window, CPropertyGrid& grid) {
            EXPECT_EQ(Shown(window, grid), Previewed(preview));
            if (changeValues) {
                ChangeValues(preview, grid);
                EXPECT_EQ(Shown(window, grid), Previewed(preview)) << "with values changed";
            }
        };
        EXPECT_EQ(dialog.DoModal(), IDOK);
        std::vector<std::wstring> messages;
        for (const MessageBoxSeen& message : driver.messages) {
            messages.push_back(message.text);
        }
        EXPECT_EQ(messages, m_expectedMessages);
        EXPECT_EQ(folder.Read(L"item_TMP.TXT"),
                  WrittenFile(preview.WorkingFileAfter(TextsOf(SplitLines(item.workingFile)))));
        EXPECT_EQ(folder.Read(L"item.TXT"), TemplateAfter(item, preview));
    }

    // As the module writes them.
    static std::string WrittenFile(const TextLines& lines) {
        std::string bytes;
        for (const std::wstring& line : lines) {
            bytes += BytesOf(line) + "\r\n";
        }
        return bytes;
    }

    static std::string TemplateAfter(const GeneratedItem& item, const CItemPreview& preview) {
        return item.templateFile
                   ? WrittenFile(preview.TemplateFileAfter(TextsOf(SplitLines(*item.templateFile))))
                   : "(no file)";
    }

    static std::wstring WholeTextOf(const CWnd& window) {
        CString text;
        window.GetWindowText(text);
        return text.GetString();
    }

    static CTextTable texts;
    std::vector<std::wstring> m_expectedMessages;
};

CTextTable Preview::texts;

TEST_F(Preview, EqualsTheDialogOnEverySample) {
    int samples = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(SAMPLES_FOLDER)) {
        const std::string name = NameOf(entry.path());
        if (!name.ends_with(".TXT") || name.ends_with("_TMP.TXT")) {
            continue;
        }
        SCOPED_TRACE(name);
        ++samples;
        const std::string working = name.substr(0, name.size() - 4) + "_TMP.TXT";
        GeneratedItem item;
        item.templateFile = ReadBytes(name);
        // Item routines write a copy of the template.
        item.workingFile = std::filesystem::exists(working) ? ReadBytes(working) : *item.templateFile;
        for (const double scale : {1.0, 0.001, 25.4}) {
            for (const short units : {short{2}, short{4}}) {
                fakeHost.linearUnits = units;
                item.scale = scale;
                item.mode = units == 2 ? 1 : 0;
                Compare(item, false);
                Compare(item, true);
            }
        }
    }
    EXPECT_GT(samples, 0);
}

TEST_F(Preview, EqualsTheDialogOnAThousandGeneratedItems) {
    constexpr unsigned kFirstSeed = 20260101;
    for (unsigned seed = kFirstSeed; seed < kFirstSeed + 1000; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        CItemGenerator generator(seed);
        fakeHost.linearUnits = static_cast<short>(1 + seed % 5);
        Compare(generator.Item(), seed % 2 == 0);
        ASSERT_FALSE(HasFailure()) << "the items behind this one were left out";
    }
}

}  // namespace
