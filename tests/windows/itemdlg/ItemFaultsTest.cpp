// The messages of the item dialog, and the files it leaves, when files, folders or paths fail.
#include <filesystem>
#include <memory>

#include "tests/windows/itemdlg/FileLock.h"
#include "tests/windows/itemdlg/FullVolume.h"
#include "tests/windows/itemdlg/ItemDialogFixture.h"
#include "tests/windows/support/Bitmap.h"
#include "tests/windows/support/ImportHook.h"
#include "tests/windows/support/NoGdiPlus.h"

extern "C" HANDLE(WINAPI* __imp_CreateFileW)(LPCWSTR path, DWORD access, DWORD sharing,
                                             LPSECURITY_ATTRIBUTES security, DWORD creation, DWORD attributes,
                                             HANDLE model) IMPORT_ENTRY(CreateFileW, 28);

namespace {

constexpr const wchar_t* working = L"item_TMP.TXT";
constexpr const wchar_t* defaults = L"item.TXT";
constexpr const char* parameter = "$1 = \"<<1501>>\"R 1\n";
constexpr const char* asWritten = "first line\nItem title\nVAR\n$1 = \"<<1501>>\"R 1\nEND_VAR\n";
constexpr const char* withAssignment = "first line\r\nItem title\r\nVAR\r\n#1 = 1\r\nEND_VAR\r\n";
constexpr const char* withNewDefault =
    "first line\r\nItem title\r\nVAR\r\n$1 = \"<<1501>>\"R1\r\nEND_VAR\r\n";

// While an object lives, the first allocation after a file was opened for `access` fails.
class CMemoryFault {
public:
    explicit CMemoryFault(DWORD access) : m_hook(__imp_CreateFileW, Open) {
        s_access = access;
        s_open = m_hook.System();
        s_failAfter = reinterpret_cast<FFailAfter>(
            reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(L"TD_Alloc.dll"), "td_fail_after")));
    }
    ~CMemoryFault() { s_failAfter(0); }

private:
    using FFailAfter = void (*)(size_t);
    using FOpen = decltype(__imp_CreateFileW);

    static HANDLE WINAPI Open(LPCWSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                              DWORD creation, DWORD attributes, HANDLE model) {
        const HANDLE file = s_open(path, access, sharing, security, creation, attributes, model);
        if (access == s_access) {
            s_failAfter(1);
        }
        return file;
    }

    static inline DWORD s_access;
    static inline FFailAfter s_failAfter;
    static inline FOpen s_open;
    CImportHook<FOpen> m_hook;
};

class ItemFaults : public ItemDialogFixture {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
    }

    // Opens the dialog on an item with one parameter, lets the fault happen while it is open, and presses OK,
    // which closes it whatever the fault is. Gives the messages as "text / caption" lines.
    std::wstring ConfirmDespite(const std::function<void()>& fault, size_t messages) {
        WriteItem(parameter);
        InDialog([&](HWND, CPropertyGrid&) { fault(); });
        for (size_t message = 0; message < messages; ++message) {
            driver.ThenPressOk();
        }
        EXPECT_EQ(Run(), IDOK);
        std::wstring seen;
        for (const MessageBoxSeen& message : driver.messages) {
            EXPECT_EQ(message.buttons, 1);
            seen += message.text + L" / " + message.caption + L"\n";
        }
        return seen;
    }

    void MakeReadOnly(const wchar_t* name) {
        ASSERT_TRUE(::SetFileAttributesW(folder.Path(name).c_str(), FILE_ATTRIBUTE_READONLY));
    }

    // Under Wine a file server that root started may write whatever it likes.
    bool ReadOnlyCounts() {
        folder.Write(L"probe", "");
        MakeReadOnly(L"probe");
        const HANDLE file = ::CreateFileW(folder.Path(L"probe").c_str(), GENERIC_WRITE, 0, nullptr,
                                          OPEN_EXISTING, 0, nullptr);
        ::CloseHandle(file);
        MakeWritable(L"probe");
        return file == INVALID_HANDLE_VALUE;
    }

    // Back to what can be removed.
    void MakeWritable(const wchar_t* name) {
        ::SetFileAttributesW(folder.Path(name).c_str(), FILE_ATTRIBUTE_NORMAL);
    }
};

TEST_F(ItemFaults, AReadOnlyWorkingFileIsReportedAndKept) {
    if (!ReadOnlyCounts()) {
        GTEST_SKIP() << "no file is read-only to this user";
    }
    EXPECT_EQ(ConfirmDespite([&] { MakeReadOnly(working); }, 1), L"Error - unable to write file / Error\n");
    EXPECT_EQ(folder.Read(working), asWritten);
    EXPECT_EQ(folder.Read(defaults), withNewDefault);
    MakeWritable(working);
}

TEST_F(ItemFaults, AReadOnlyTemplateIsReportedAndKept) {
    if (!ReadOnlyCounts()) {
        GTEST_SKIP() << "no file is read-only to this user";
    }
    EXPECT_EQ(ConfirmDespite([&] { MakeReadOnly(defaults); }, 1), L"Error - unable to write file / Error\n");
    EXPECT_EQ(folder.Read(working), withAssignment);
    EXPECT_EQ(folder.Read(defaults), asWritten);
    MakeWritable(defaults);
}

TEST_F(ItemFaults, ATemplateThatAnotherProgramHoldsIsReportedTwiceAndKept) {
    std::unique_ptr<CFileLock> lock;
    EXPECT_EQ(ConfirmDespite([&] { lock = std::make_unique<CFileLock>(folder.Path(defaults)); }, 2),
              L"Error - unable to open file / Error\nError - unable to write file / Error\n");
    lock.reset();
    EXPECT_EQ(folder.Read(working), withAssignment);
    EXPECT_EQ(folder.Read(defaults), asWritten);
}

// Gone behind the back of the host, which still finds them: nothing was read, so nothing is written.
TEST_F(ItemFaults, FilesThatAreGoneWhenTheyAreReadComeBackEmpty) {
    const auto loseBoth = [&] {
        ::DeleteFileW(folder.Path(working).c_str());
        ::DeleteFileW(folder.Path(defaults).c_str());
        fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t) {
            std::wcscpy(result, folder.Path(name).c_str());
            return FakeHost::RtNorm;
        };
    };
    EXPECT_EQ(ConfirmDespite(loseBoth, 2),
              L"Error - unable to open file / Error\nError - unable to open file / Error\n");
    EXPECT_EQ(folder.Read(working), "");
    EXPECT_EQ(folder.Read(defaults), "");
}

TEST_F(ItemFaults, FilesThatAreGoneWhenTheyAreWrittenAreMadeAnew) {
    const auto loseEachAfterReading = [&] {
        fakeHost.findFile = [&, searches = 0](const wchar_t* name, wchar_t* result, size_t) mutable {
            if (++searches % 2 == 0) {
                ::DeleteFileW(folder.Path(name).c_str());
            }
            std::wcscpy(result, folder.Path(name).c_str());
            return FakeHost::RtNorm;
        };
    };
    EXPECT_EQ(ConfirmDespite(loseEachAfterReading, 0), L"");
    EXPECT_EQ(folder.Read(working), withAssignment);
    EXPECT_EQ(folder.Read(defaults), withNewDefault);
}

TEST_F(ItemFaults, AFullVolumeIsReportedForEachFileWhichHoldsWhatWasWrittenBefore) {
    std::unique_ptr<CFullVolume> volume;
    EXPECT_EQ(ConfirmDespite([&] { volume = std::make_unique<CFullVolume>(20); }, 2),
              L"Error - unable to write file / Error\nError - unable to write file / Error\n");
    volume.reset();
    EXPECT_EQ(folder.Read(working), std::string(withAssignment).substr(0, 20));
    EXPECT_EQ(folder.Read(defaults), "");
}

TEST_F(ItemFaults, AVolumeThatHasRoomForOneFileLeavesTheOtherEmpty) {
    std::unique_ptr<CFullVolume> volume;
    const size_t capacity = std::string(withAssignment).size();
    EXPECT_EQ(ConfirmDespite([&] { volume = std::make_unique<CFullVolume>(capacity); }, 1),
              L"Error - unable to write file / Error\n");
    volume.reset();
    EXPECT_EQ(folder.Read(working), withAssignment);
    EXPECT_EQ(folder.Read(defaults), "");
}

TEST_F(ItemFaults, NoMemoryToReadIsReportedForEachFileWhichIsKept) {
    std::unique_ptr<CMemoryFault> fault;
    EXPECT_EQ(ConfirmDespite([&] { fault = std::make_unique<CMemoryFault>(GENERIC_READ); }, 2),
              L"Error - unable to open file / Error\nError - unable to open file / Error\n");
    fault.reset();
    EXPECT_EQ(folder.Read(working), asWritten);
    EXPECT_EQ(folder.Read(defaults), asWritten);
}

TEST_F(ItemFaults, NoMemoryToWriteIsReportedForEachFileWhichIsEmptyThen) {
    std::unique_ptr<CMemoryFault> fault;
    const auto writeLongLinesAndFail = [&] {
        for (const wchar_t* name : {working, defaults}) {
            folder.Write(name, std::string(asWritten) + "a line that needs memory of its own\n");
        }
        fault = std::make_unique<CMemoryFault>(GENERIC_WRITE);
    };
    EXPECT_EQ(ConfirmDespite(writeLongLinesAndFail, 2),
              L"Error - unable to write file / Error\nError - unable to write file / Error\n");
    fault.reset();
    EXPECT_EQ(folder.Read(working), "");
    EXPECT_EQ(folder.Read(defaults), "");
}

TEST_F(ItemFaults, AFolderThatVanishedIsReportedForEachFile) {
    EXPECT_EQ(ConfirmDespite([&] { std::filesystem::remove_all(folder.Path(L"")); }, 2),
              L"File not found! / Error!\nFile not found! / Error!\n");
    EXPECT_EQ(folder.Read(working), "(no file)");
}

// The host cannot know the folder gone while it searches: it answers with a path into it.
TEST_F(ItemFaults, AFolderThatVanishedBehindTheHostsBackIsReportedForReadingAndWriting) {
    const auto loseFolder = [&] {
        std::filesystem::remove_all(folder.Path(L""));
        fakeHost.findFile = [&](const wchar_t* name, wchar_t* result, size_t) {
            std::wcscpy(result, folder.Path(name).c_str());
            return FakeHost::RtNorm;
        };
    };
    const std::wstring both = L"Error - unable to open file / Error\nError - unable to write file / Error\n";
    EXPECT_EQ(ConfirmDespite(loseFolder, 4), both + both);
    EXPECT_EQ(folder.Read(working), "(no file)");
}

TEST_F(ItemFaults, WithoutGdiPlusTheDialogHasNoPictureAndWritesItsFiles) {
    folder.Write(L"item.png", BitmapFile(2, 2, std::vector<unsigned>(4, 0x3060C0)));
    const CNoGdiPlus system;
    COLORREF middle = 0;
    WriteItem(parameter);
    InDialog([&](HWND dialog, CPropertyGrid&) {
        PumpMessages();
        const CClientPixels picture(::GetDlgItem(dialog, 101));
        middle = picture.At(picture.Width() / 2, picture.Height() / 2);
    });
    EXPECT_EQ(Run(), IDOK);
    EXPECT_TRUE(driver.messages.empty());
    EXPECT_EQ(middle, 0xE1E1E1U);
    EXPECT_EQ(folder.Read(working), withAssignment);
    EXPECT_EQ(folder.Read(defaults), withNewDefault);
}

// The base name that makes the working file's full path that long.
std::wstring BaseNameFor(size_t pathLength, const CTempFolder& folder) {
    return std::wstring(pathLength - folder.Path(L"_TMP.TXT").size(), L'n');
}

TEST_F(ItemFaults, APathOf253CharactersIsTheLongestThatIsFound) {
    const std::wstring name = BaseNameFor(253, folder);
    ASSERT_EQ(folder.Path(name + L"_TMP.TXT").size(), 253U);
    folder.Write(name + L"_TMP.TXT", asWritten);
    folder.Write(name + L".TXT", asWritten);
    PressInDialog(IDOK);
    EXPECT_EQ(Run(1, 0, name.c_str()), IDOK);
    EXPECT_TRUE(driver.messages.empty());
    EXPECT_EQ(folder.Read(name + L"_TMP.TXT"), withAssignment);
    EXPECT_EQ(folder.Read(name + L".TXT"), withNewDefault);
}

TEST_F(ItemFaults, LongerPathsCountAsNotFoundAndTheFilesAreKept) {
    for (const size_t length : {254U, 255U}) {
        const std::wstring name = BaseNameFor(length, folder);
        folder.Write(name + L"_TMP.TXT", asWritten);
        folder.Write(name + L".TXT", asWritten);
        driver.Forget();
        driver.ThenPressOk();
        EXPECT_EQ(Run(1, 0, name.c_str()), IDCANCEL) << length;
        ASSERT_EQ(driver.messages.size(), 1U) << length;
        EXPECT_EQ(driver.messages[0].text, L"File not found '" + name + L"_TMP.TXT'!");
        EXPECT_EQ(driver.messages[0].caption, L"Error!");
        EXPECT_EQ(folder.Read(name + L"_TMP.TXT"), asWritten);
        EXPECT_EQ(folder.Read(name + L".TXT"), asWritten);
    }
}

// A host may return a path longer than the capacity it was given.
TEST_F(ItemFaults, ALongerPathThatTheHostFindsAllTheSameIsOpened) {
    for (const size_t length : {254U, 255U}) {
        const std::wstring name = BaseNameFor(length, folder);
        folder.Write(name + L"_TMP.TXT", asWritten);
        folder.Write(name + L".TXT", asWritten);
        fakeHost.findFile = [&](const wchar_t* file, wchar_t* result, size_t) {
            const std::wstring path = folder.Path(file);
            std::wcscpy(result, path.c_str());
            return std::filesystem::exists(path) ? FakeHost::RtNorm : 0;
        };
        driver.Forget();
        PressInDialog(IDOK);
        EXPECT_EQ(Run(1, 0, name.c_str()), IDOK) << length;
        EXPECT_EQ(folder.Read(name + L"_TMP.TXT"), withAssignment) << length;
    }
}

}  // namespace
