// Editing in the item dialog: what becomes of typed and picked values however the dialog ends, and the
// keyboard's way through it.
#include "tests/windows/itemdlg/ItemDialogFixture.h"
#include "tests/windows/support/DialogInput.h"

namespace {

constexpr const char* block =
    "$1 = \"Count\"I 5\n$2 = \"Ratio\"R 0.5\n$3 = \"Width\"D 900\n$4 = \"Fixed%\"I 7\n";
constexpr UINT count = 0, ratio = 1, width = 2;

class ItemEditing : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
        WriteItem(block);
        m_before = folder.Read(L"item.TXT");
    }

    // Runs the dialog; `act` works in it and must lead to its end.
    INT_PTR Edit(CModalDriver::Step act) {
        driver.Then([this, act](HWND dialog) {
            PumpMessages();
            act(dialog);
        });
        return Run();
    }
    static CPoint ValueOf(CPropertyGrid& grid, UINT item) {
        grid.UpdateWindow();
        CRect name, value;
        EXPECT_TRUE(grid.GetItemRects(item, name, value));
        return value.CenterPoint();
    }
    static CPoint ButtonOf(CPropertyGrid& grid, UINT item) {
        CRect client;
        grid.GetClientRect(&client);
        return {client.right - grid.GetRowHeight() / 2, ValueOf(grid, item).y};
    }
    // The in-place edit of a row, opened by a click, with a text typed into it.
    static HWND Type(HWND dialog, UINT item, const wchar_t* typed) {
        CPropertyGrid& grid = GridOf(dialog);
        Click(grid.m_hWnd, ValueOf(grid, item));
        const auto edit = [&] { return ::FindWindowEx(grid.m_hWnd, nullptr, L"Edit", nullptr); };
        EXPECT_TRUE(PumpUntil([&] { return edit() != nullptr; }));
        ::SendMessage(edit(), EM_SETSEL, 0, -1);
        for (const wchar_t* character = typed; *character != L'\0'; ++character) {
            ::SendMessage(edit(), WM_CHAR, static_cast<WPARAM>(*character), 1);
        }
        return edit();
    }
    std::string WorkingFile() { return folder.Read(L"item_TMP.TXT"); }
    void ExpectFilesUntouched() {
        EXPECT_EQ(WorkingFile(), m_before);
        EXPECT_EQ(folder.Read(L"item.TXT"), m_before);
    }
    // Handles messages as the dialog's own loop does, keyboard included, until `condition` holds.
    template <class TCondition>
    static bool PumpDialogUntil(HWND dialog, TCondition condition) {
        const ULONGLONG deadline = ::GetTickCount64() + 5000;
        while (!condition()) {
            MSG message;
            if (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
                if (!::IsDialogMessage(dialog, &message)) {
                    ::TranslateMessage(&message);
                    ::DispatchMessage(&message);
                }
            } else if (::GetTickCount64() > deadline) {
                return false;
            } else {
                ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
            }
        }
        return true;
    }
    static void PostKey(WPARAM key) { ::PostMessage(::GetFocus(), WM_KEYDOWN, key, 1); }

    std::string m_before;
};

// ---- OK with an edit open

TEST_F(ItemEditing, AClickOnOkWritesWhatIsStillBeingTyped) {
    EXPECT_EQ(Edit([](HWND dialog) {
                  Type(dialog, count, L"42");
                  Click(::GetDlgItem(dialog, IDOK));
              }),
              IDOK);
    EXPECT_NE(WorkingFile().find("$1 = 42"), std::string::npos) << WorkingFile();
}

TEST_F(ItemEditing, TheCommandOfOkWritesWhatIsStillBeingTyped) {
    EXPECT_EQ(Edit([](HWND dialog) {
                  Type(dialog, ratio, L"0.25");
                  ::PostMessage(dialog, WM_COMMAND, IDOK, 0);
              }),
              IDOK);
    EXPECT_NE(WorkingFile().find("#2 = 0.25"), std::string::npos) << WorkingFile();
}

TEST_F(ItemEditing, ATypedDistanceIsWrittenByOk) {
    EXPECT_EQ(Edit([](HWND dialog) {
                  Type(dialog, width, L"1234.5");
                  Click(::GetDlgItem(dialog, IDOK));
              }),
              IDOK);
    EXPECT_NE(WorkingFile().find("#3 = 1234.5"), std::string::npos) << WorkingFile();
}

TEST_F(ItemEditing, EnterEndsTheEditAndTheNextEnterTheDialog) {
    EXPECT_EQ(Edit([](HWND dialog) {
                  const HWND edit = Type(dialog, count, L"42");
                  ::PostMessage(edit, WM_KEYDOWN, VK_RETURN, 0x1C0001);
                  ASSERT_TRUE(PumpDialogUntil(dialog, [&] { return !::IsWindow(edit); }));
                  EXPECT_TRUE(::IsWindow(dialog));
                  EXPECT_EQ(::GetFocus(), GridOf(dialog).m_hWnd);
                  PostKey(VK_RETURN);
              }),
              IDOK);
    EXPECT_NE(WorkingFile().find("$1 = 42"), std::string::npos) << WorkingFile();
}

// ---- The other ends

TEST_F(ItemEditing, CancellingWithAnEditOpenLeavesTheFiles) {
    const std::vector<std::function<void(HWND)>> ends = {
        [](HWND dialog) { Click(::GetDlgItem(dialog, IDCANCEL)); },
        [](HWND dialog) { ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0); },
        [](HWND dialog) { PressCloseBox(dialog); },
        [](HWND dialog) { ::PostMessage(dialog, WM_CLOSE, 0, 0); },
    };
    for (const auto& end : ends) {
        for (const UINT item : {count, ratio, width}) {
            EXPECT_EQ(Edit([&](HWND dialog) {
                          Type(dialog, item, L"42");
                          end(dialog);
                      }),
                      IDCANCEL);
            ExpectFilesUntouched();
        }
    }
}

TEST_F(ItemEditing, EscapeEndsTheEditWithTheOldValueAndTheNextEscapeTheDialog) {
    EXPECT_EQ(Edit([](HWND dialog) {
                  const HWND edit = Type(dialog, count, L"42");
                  ::PostMessage(edit, WM_KEYDOWN, VK_ESCAPE, 0x10001);
                  ASSERT_TRUE(PumpDialogUntil(dialog, [&] { return !::IsWindow(edit); }));
                  EXPECT_TRUE(::IsWindow(dialog));
                  int value = 0;
                  EXPECT_TRUE(GridOf(dialog).GetItemValue(count, value));
                  EXPECT_EQ(value, 5);
                  PostKey(VK_ESCAPE);
              }),
              IDCANCEL);
    ExpectFilesUntouched();
}

TEST_F(ItemEditing, TheHostMayDestroyTheDialogWhileAnEditIsOpen) {
    Edit([](HWND dialog) {
        Type(dialog, width, L"42");
        ::DestroyWindow(dialog);
    });
    ExpectFilesUntouched();
}

// ---- Distances

TEST_F(ItemEditing, ATextThatIsNoDistanceIsReportedOnceAndTheValueKept) {
    driver.Then([](HWND dialog) {
        PumpMessages();
        const HWND edit = Type(dialog, width, L"wide");
        ::PostMessage(edit, WM_KEYDOWN, VK_RETURN, 0x1C0001);
    });
    driver.Then([this](HWND box) {
        driver.messages.push_back(ReadMessageBox(box));
        PressButton(box, IDOK);
        // The dialog has been seen already, so it is ended from here.
        ::PostMessage(::FindWindow(nullptr, L"Item title"), WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].caption, L"Invalid value");
    EXPECT_NE(WorkingFile().find("#3 = 900"), std::string::npos) << WorkingFile();
}

// The box takes the release of the press that ended the edit.
TEST_F(ItemEditing, AfterTheBoxAboutAWrongDistanceTheNextClickCounts) {
    driver.Then([this](HWND dialog) {
        PumpMessages();
        CPropertyGrid& grid = GridOf(dialog);
        Type(dialog, width, L"zzz");
        Click(grid.m_hWnd, ButtonOf(grid, width));
        EXPECT_TRUE(PumpUntil([&] { return driver.messages.size() == 1; }));
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_FALSE(grid.IsEditing());
        Click(::GetDlgItem(dialog, IDOK));
        // OK writes; the dialog itself ends in its own loop.
        EXPECT_TRUE(PumpUntil([&] { return WorkingFile() != m_before; })) << "the click did nothing";
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    driver.ThenPressOk();
    EXPECT_EQ(Run(), IDOK);
    ASSERT_EQ(driver.messages.size(), 1U);
    EXPECT_EQ(driver.messages[0].caption, L"Invalid value");
    EXPECT_TRUE(fakeHost.prompts.empty()) << "nothing is picked";
}

TEST_F(ItemEditing, TheButtonOfADistancePicksItInTheDrawing) {
    fakeHost.distance = 777;
    bool wasHidden = false;
    HWND shown = nullptr;
    fakeHost.duringPick = [&] { wasHidden = !::IsWindowVisible(shown); };
    EXPECT_EQ(Edit([&](HWND dialog) {
                  shown = dialog;
                  CPropertyGrid& grid = GridOf(dialog);
                  // The first release opens the edit, wherever it lands.
                  Click(grid.m_hWnd, ButtonOf(grid, width));
                  EXPECT_TRUE(PumpUntil([&] { return grid.IsEditing(); }));
                  // A little beside it: at the same point it would be a double click.
                  Click(grid.m_hWnd, ButtonOf(grid, width) + CSize(6, 0));
                  EXPECT_TRUE(PumpUntil([&] { return fakeHost.prompts.size() == 2; }));
                  EXPECT_TRUE(::IsWindowVisible(dialog));
                  Click(::GetDlgItem(dialog, IDOK));
              }),
              IDOK);
    EXPECT_TRUE(wasHidden);
    EXPECT_NE(WorkingFile().find("#3 = 777"), std::string::npos) << WorkingFile();
}

// ---- The keyboard

TEST_F(ItemEditing, TabLeadsToTheGridAndOutOfIt) {
    Edit([](HWND dialog) {
        const HWND ok = ::GetDlgItem(dialog, IDOK), cancel = ::GetDlgItem(dialog, IDCANCEL);
        const HWND grid = GridOf(dialog).m_hWnd;
        EXPECT_EQ(::GetFocus(), ok);
        for (const HWND next : {cancel, grid, ok}) {
            PostKey(VK_TAB);
            EXPECT_TRUE(PumpDialogUntil(dialog, [&] { return ::GetFocus() == next; }));
        }
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(ItemEditing, TabLeavesAnEditForTheGrid) {
    Edit([](HWND dialog) {
        const HWND edit = Type(dialog, count, L"42");
        ::PostMessage(edit, WM_KEYDOWN, VK_TAB, 0xF0001);
        EXPECT_TRUE(PumpDialogUntil(dialog, [&] { return !::IsWindow(edit); }));
        EXPECT_EQ(::GetFocus(), GridOf(dialog).m_hWnd);
        int value = 0;
        EXPECT_TRUE(GridOf(dialog).GetItemValue(count, value));
        EXPECT_EQ(value, 42);
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(ItemEditing, TheArrowKeysReachTheGrid) {
    Edit([](HWND dialog) {
        CPropertyGrid& grid = GridOf(dialog);
        grid.SetFocus();
        for (UINT item = 0; item < 3; ++item) {
            PostKey(VK_DOWN);
            EXPECT_TRUE(PumpDialogUntil(dialog, [&] { return grid.GetFocusedItem() == item; }));
        }
        PostKey(VK_UP);
        EXPECT_TRUE(PumpDialogUntil(dialog, [&] { return grid.GetFocusedItem() == 1; }));
        EXPECT_EQ(::GetFocus(), grid.m_hWnd);
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(ItemEditing, TheTabKeyPassesByTheGridsInside) {
    Edit([](HWND dialog) {
        CPropertyGrid& grid = GridOf(dialog);
        EXPECT_NE(grid.GetStyle() & WS_TABSTOP, 0U);
        EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE) & DLGC_WANTTAB, 0);
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
}

TEST_F(ItemEditing, ARowThatIsNotEditableOpensNothing) {
    driver.Then([](HWND dialog) {
        PumpMessages();
        CPropertyGrid& grid = GridOf(dialog);
        Click(grid.m_hWnd, ValueOf(grid, 3));
        EXPECT_TRUE(PumpUntil([&] { return grid.GetFocusedItem() == 3; }));
        PumpMessages();
        EXPECT_FALSE(grid.IsEditing());
        ::PostMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    Run(1.0, 1);
}

TEST_F(ItemEditing, LeavesNothingBehind) {
    const auto cycle = [&](int button) {
        WriteItem(block);
        Edit([&](HWND dialog) {
            Type(dialog, count, L"42");
            Type(dialog, width, L"43");
            ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        driver.Forget();
        fakeHost.searched.clear();
    };
    for (int warmUp = 0; warmUp < 2; ++warmUp) {
        cycle(IDOK);
    }
    const ProcessHoldings before = CountHoldings();
    for (int round = 0; round < 20; ++round) {
        cycle(round % 2 == 0 ? IDOK : IDCANCEL);
    }
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
