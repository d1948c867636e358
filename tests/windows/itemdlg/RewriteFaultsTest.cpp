// Each ReadFile and WriteFile of OK fails in turn, once and for good, in files below and above 64 KiB, the
// size of the framework's buffers.
#include <algorithm>
#include <filesystem>
#include <memory>

#include "tests/windows/itemdlg/FileFault.h"
#include "tests/windows/itemdlg/ItemDialogFixture.h"

namespace {

constexpr const wchar_t* kWorking = L"item_TMP.TXT";
constexpr const wchar_t* kDefaults = L"item.TXT";
constexpr const wchar_t* kReadFailed = L"Error - unable to open file";
constexpr const wchar_t* kWriteFailed = L"Error - unable to write file";

// The first lines of the text.
std::string FirstLines(const std::string& text, std::ptrdiff_t count) {
    size_t length = 0;
    for (; count > 0; --count) {
        length = text.find('\n', length) + 1;
    }
    return text.substr(0, length);
}

class RewriteFaults : public ItemDialogFixture, public testing::WithParamInterface<size_t> {
protected:
    void SetUp() override {
        ItemDialogFixture::SetUp();
        OfferTextModule();
        std::string rest = "END_VAR\r\n";
        for (int line = 0; rest.size() < GetParam(); ++line) {
            rest += "free line " + std::to_string(line) + "\r\n";
        }
        const std::string head = "first line\r\nItem title\r\nVAR\r\n";
        m_before = head + "$1 = \"<<1501>>\"R 1\r\n" + rest;
        m_assigned = head + "#1 = 1\r\n" + rest;
        m_updated = head + "$1 = \"<<1501>>\"R1\r\n" + rest;
    }

    // The calls that OK makes when none fails.
    std::vector<FileCall> CallsOfOk(EFileOperation operation) {
        std::vector<FileCall> calls = Confirm(operation, CFileFault::kNever, false, 0);
        ExpectFile(kWorking, m_assigned);
        ExpectFile(kDefaults, m_updated);
        return calls;
    }

    // Opens the dialog and presses OK; during that a call fails and `messages` boxes open.
    std::vector<FileCall> Confirm(EFileOperation operation, size_t failing, bool forGood, size_t messages) {
        folder.Write(kWorking, m_before);
        folder.Write(kDefaults, m_before);
        driver.Forget();
        std::unique_ptr<CFileFault> fault;
        InDialog(
            [&](HWND, CPropertyGrid&) { fault = std::make_unique<CFileFault>(operation, failing, forGood); });
        for (size_t message = 0; message < messages; ++message) {
            driver.ThenPressOk();
        }
        EXPECT_EQ(Run(), IDOK);
        return fault->Calls();
    }

    // The file in which the call failed holds what was kept of it; the other one is whole, unless later calls
    // failed as well.
    void ExpectFiles(const FileCall& failed, bool forGood, const std::string& workingKept,
                     const std::string& defaultsKept) {
        const bool inWorking = failed.file == kWorking;
        ExpectFile(kWorking, inWorking ? workingKept : m_assigned);
        ExpectFile(kDefaults, !inWorking ? defaultsKept : forGood ? "" : m_updated);
    }

    // Without the listing of all differing lines, which takes minutes in files of this size.
    void ExpectFile(const wchar_t* name, const std::string& expected) {
        const std::string content = folder.Read(name);
        const auto difference =
            std::mismatch(content.begin(), content.end(), expected.begin(), expected.end());
        EXPECT_TRUE(content == expected)
            << std::filesystem::path(name) << " has " << content.size() << " bytes, not " << expected.size()
            << ", and differs from byte " << difference.first - content.begin() << " on";
    }

    void ExpectMessages(const wchar_t* text) const {
        for (const MessageBoxSeen& message : driver.messages) {
            EXPECT_EQ(message.text, text);
        }
    }

    // Runs `check` for each call, failing once and failing for good.
    void FailEach(EFileOperation operation, const wchar_t* message,
                  const std::function<void(const FileCall&, bool)>& check) {
        const std::vector<FileCall> calls = CallsOfOk(operation);
        EXPECT_GT(calls.size(), m_before.size() > 0x10000 ? 3U : 1U);
        for (size_t failing = 0; failing < calls.size(); ++failing) {
            for (const bool forGood : {false, true}) {
                SCOPED_TRACE(std::to_string(failing) + (forGood ? " for good" : " once"));
                const bool both = forGood && calls[failing].file == kWorking;
                Confirm(operation, failing, forGood, both ? 2 : 1);
                ExpectMessages(message);
                check(calls[failing], forGood);
            }
        }
    }

    std::string m_before;    // both files
    std::string m_assigned;  // the working file after OK
    std::string m_updated;   // the template after OK
};

TEST_P(RewriteFaults, AFailedWriteLeavesWhatWasWrittenBeforeIt) {
    FailEach(FO_WRITE, kWriteFailed, [&](const FileCall& failed, bool forGood) {
        ExpectFiles(failed, forGood, m_assigned.substr(0, failed.position),
                    m_updated.substr(0, failed.position));
    });
}

TEST_P(RewriteFaults, AFailedReadLeavesTheLinesThatWereReadBeforeIt) {
    FailEach(FO_READ, kReadFailed, [&](const FileCall& failed, bool forGood) {
        const auto end = m_before.begin() + static_cast<std::ptrdiff_t>(failed.position);
        const std::ptrdiff_t lines = std::count(m_before.begin(), end, '\n');
        ExpectFiles(failed, forGood, FirstLines(m_assigned, lines), FirstLines(m_updated, lines));
    });
}

INSTANTIATE_TEST_SUITE_P(Sizes, RewriteFaults, testing::Values(1000, 100'000));

}  // namespace
