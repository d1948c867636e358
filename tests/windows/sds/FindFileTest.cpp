#include "sds/FindFile.h"

#include <gtest/gtest.h>

#include <cwchar>

#include "sds/sds.h"
#include "tests/windows/support/FakeHost.h"
#include "tests/windows/support/TempFolder.h"

namespace {

TEST(FindFile, GivesThePathThatTheHostFinds) {
    const CTempFolder folder;
    folder.Write(L"door.TXT", "");
    fakeHost = {};
    fakeHost.searchFolders = {folder.Path(L"")};
    EXPECT_EQ(FindFile(L"door.TXT"), folder.Path(L"door.TXT"));
    EXPECT_EQ(FindFile(L"window.TXT"), std::nullopt);
}

TEST(FindFile, AsksForAtMost254Characters) {
    fakeHost = {};
    size_t asked = 0;
    fakeHost.findFile = [&](const wchar_t*, wchar_t*, size_t capacity) {
        asked = capacity;
        return RTNORM - 1;
    };
    EXPECT_EQ(FindFile(L"a"), std::nullopt);
    EXPECT_EQ(asked, 254U);
}

TEST(FindFile, SurvivesAHostThatWritesBehindTheCapacity) {
    fakeHost = {};
    fakeHost.findFile = [](const wchar_t*, wchar_t* result, size_t capacity) {
        std::wmemset(result, L'x', capacity + 200);
        return RTNORM;
    };
    const std::optional<std::wstring> path = FindFile(L"a");
    ASSERT_TRUE(path.has_value());
    EXPECT_EQ(path->size(), 454U);
}

TEST(FindFile, TakesEveryStatusButSuccessAsNotFound) {
    for (const int status : {0, -1, 5101, -5001}) {
        fakeHost = {};
        fakeHost.findFile = [=](const wchar_t*, wchar_t* result, size_t) {
            std::wcscpy(result, L"C:\\there");
            return status;
        };
        EXPECT_EQ(FindFile(L"there"), std::nullopt) << status;
    }
}

}  // namespace
