// Thousands of random events of mouse, keys and wheel on a grid with all kinds: no editor, no heap block and
// no handle is left. TAVRIN_SEED takes other events than the usual ones.
#include <cstdlib>
#include <random>

#include "tests/windows/propgrid/GridInputFixture.h"
#include "tests/windows/support/HandleCount.h"
#include "tests/windows/support/ModalDriver.h"

namespace {

constexpr int kEvents = 2000;

unsigned ChooseSeed() {
    const char* const given = std::getenv("TAVRIN_SEED");
    return given != nullptr ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 1;
}

// Closes every dialog that opens, by OK or Cancel, while the test's thread runs its loop; and every
// menu: a click on a calendar's month opens one, which else waits for ever.
class CDismisser {
public:
    CDismisser() {
        current = this;
        m_timer = ::SetTimer(nullptr, 0, 10, OnTimer);
    }
    ~CDismisser() {
        ::KillTimer(nullptr, m_timer);
        current = nullptr;
    }
    CDismisser(const CDismisser&) = delete;
    CDismisser& operator=(const CDismisser&) = delete;

    int dialogs = 0;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        ::EndMenu();
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM) CALLBACK -> BOOL {
                wchar_t name[16] = {};
                ::GetClassName(window, name, 16);
                if (::lstrcmp(name, L"#32770") != 0 || !::IsWindowVisible(window) ||
                    !::IsWindowEnabled(window)) {
                    return TRUE;
                }
                ++current->dialogs;
                PressButton(window, current->dialogs % 2 == 0 ? IDOK : IDCANCEL);
                return FALSE;
            },
            0);
    }

    static inline CDismisser* current = nullptr;
    UINT_PTR m_timer;
};

class GridRandomInput : public GridInputTest {
protected:
    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    // The window that has the keyboard, as the system would choose it for a key.
    HWND KeyTarget() const {
        const HWND focus = ::GetFocus();
        return focus != nullptr ? focus : grid.m_hWnd;
    }
    void ActAtRandom() {
        const CPoint point(Below(320) - 10, Below(220) - 10);
        static constexpr UINT keys[] = {VK_DOWN,   VK_UP,     VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT,
                                        VK_RETURN, VK_ESCAPE, VK_F4,   VK_HOME,  VK_TAB};
        static constexpr wchar_t characters[] = L"*/+-0123456789.e abc\r\t\x1b";
        switch (Below(12)) {
            case 0:
            case 1:
            case 2:
                ClickOn(point);
                break;
            case 3:
                Press(point);
                break;
            case 4:
                MoveTo(point);
                break;
            case 5:
                Release(point);
                break;
            case 6:
                DoubleClickOn(point);
                break;
            case 7:
                Turn((Below(7) - 3) * 120);
                break;
            case 8:
            case 9:
                ::SendMessage(KeyTarget(), WM_KEYDOWN, keys[Below(std::size(keys))], 1);
                break;
            case 10:
                ::SendMessage(KeyTarget(), WM_CHAR, characters[Below(std::size(characters) - 1)], 1);
                break;
            case 11:
                ActOnPopUp();
        }
        if (Below(4) == 0) {
            PumpMessages();
        }
    }
    void ActOnPopUp() {
        const HWND popUp = List() != nullptr ? List() : Calendar();
        if (popUp == nullptr) {
            return;
        }
        const LPARAM position = MAKELPARAM(Below(200), Below(160));
        ::PostMessage(popUp, WM_LBUTTONDOWN, 0, position);
        ::PostMessage(popUp, WM_LBUTTONUP, 0, position);
        PumpMessages();
    }
    // Back to what it was: no editor, no scrolling, no focus, nothing captured, the values of the start.
    void Settle() {
        ::ReleaseCapture();
        Press(CPoint(-5, -5));
        Release(CPoint(-5, -5));
        PumpMessages();
        ExpectNoEditorLeft();
    }
    void Fill() {
        grid.SetDisplayMode(CPropertyGrid::DM_CATEGORIZED);
        grid.ResetContents();
        custom.calls = {};
        custom.calls.shrink_to_fit();
        custom.text = L"custom";
        custom.text.shrink_to_fit();
        AddAllKinds(L"First");
        AddAllKinds(L"Second");
        grid.SetFocusedItem(CPropertyGrid::NO_ID);
        grid.SetGutterWidth(150);
        parent.ForgetChanges();
        PumpMessages();
    }

    std::mt19937 m_random;
};

TEST_F(GridRandomInput, LeavesNothingBehind) {
    const unsigned seed = ChooseSeed();
    SCOPED_TRACE("TAVRIN_SEED=" + std::to_string(seed));
    CDismisser dismisser;
    const auto run = [&] {
        m_random.seed(seed);
        for (int event = 0; event < kEvents; ++event) {
            if (Below(500) == 0) {
                grid.SetDisplayMode(static_cast<UINT>(Below(3)));
                custom.mode = Below(5);
                custom.capturesMouse = Below(2) == 0;
            }
            ActAtRandom();
        }
        Settle();
        Fill();
    };
    Fill();
    // What the system's dialogs need they load once, and keep: the same events again need nothing new.
    run();
    EXPECT_GT(dismisser.dialogs, 10);
    const ProcessHoldings before = CountHoldings();
    run();
    EXPECT_EQ(CountHoldings(), before);
}

}  // namespace
