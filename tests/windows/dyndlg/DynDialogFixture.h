// What the tests of the run-time dialogs share: a parent window that records its commands, and a dialog that
// exposes its internals.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dyndlg/DynDialogEx.h"
#include "tests/windows/support/ModalDriver.h"
#include "tests/windows/support/Pixels.h"

using namespace tavrin::dyndlg;

constexpr DWORD plain = WS_CHILD | WS_VISIBLE;
constexpr DWORD tabbed = plain | WS_TABSTOP;

struct Command {
    HWND window;  // the one that got the message
    WPARAM wParam;
    LPARAM lParam;
};

// An overlapped window that answers WM_GETFONT with `font` and records its commands.
class CParentWindow : public CWnd {
public:
    explicit CParentWindow(HFONT ownFont = nullptr) : font(ownFont) {
        const LPCTSTR name = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW),
                                                 static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
        CreateEx(0, name, L"parent", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(100, 100, 900, 700), nullptr, 0);
        PumpMessages();
    }
    ~CParentWindow() override { DestroyWindow(); }

    HFONT font;
    std::vector<Command> commands;
    std::vector<Command>* log = nullptr;  // shared with a dialog, to see which gets a command first

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) {
            return reinterpret_cast<LRESULT>(font);
        }
        if (message == WM_COMMAND) {
            commands.push_back({m_hWnd, wParam, lParam});
            if (log != nullptr) {
                log->push_back(commands.back());
            }
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

// The dialog under test. `beforeInit` runs when its controls exist but have not been placed, `afterInit` at
// the end of OnInitDialog. Its template is kept.
class CTestDialog : public CDynDialogEx {
public:
    using CDynDialogEx::CDynDialogEx;
    using CDynDialogEx::m_fontSize;
    using CDynDialogEx::m_modeless;

    std::function<void()> beforeInit;
    std::function<void()> afterInit;
    std::function<void(CDataExchange*)> exchange;
    std::vector<std::byte> modelessTemplate;  // of the last modeless dialog

    BOOL OnInitDialog() override {
        if (beforeInit) {
            beforeInit();
        }
        const BOOL result = CDynDialogEx::OnInitDialog();
        if (afterInit) {
            afterInit();
        }
        return result;
    }
    void DoDataExchange(CDataExchange* pDX) override {
        if (exchange) {
            exchange(pDX);
        }
        CDynDialogEx::DoDataExchange(pDX);
    }
    BOOL CreateIndirect(LPCDLGTEMPLATE dialogTemplate, CWnd* parent, void* initData) override {
        const auto* const bytes = reinterpret_cast<const std::byte*>(dialogTemplate);
        const HLOCAL memory = ::LocalHandle(dialogTemplate);
        modelessTemplate.assign(bytes, bytes + ::LocalSize(memory));
        return CDynDialogEx::CreateIndirect(dialogTemplate, parent, initData);
    }
};

class DynDialog : public testing::Test {
protected:
    // Runs the dialog, gives it to `look` when it is up, then ends it with OK.
    INT_PTR RunWithOk(CDynDialogEx& dialog, CModalDriver::Step look = {}) {
        return RunAndPress(dialog, IDOK, std::move(look));
    }
    INT_PTR RunAndPress(CDynDialogEx& dialog, int button, CModalDriver::Step look) {
        m_driver->Then([look = std::move(look), button](HWND window) {
            if (look) {
                look(window);
            }
            ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        const INT_PTR result = dialog.DoModal();
        EXPECT_EQ(m_driver->StepsLeft(), 0U) << "an expected window did not open";
        return result;
    }

    // Frees the steps that were run: they count as blocks of the heap.
    void ForgetSteps() { m_driver.emplace(); }

    std::optional<CModalDriver> m_driver{std::in_place};
    CParentWindow m_parent;
};

inline std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

inline std::wstring ClassOf(HWND window) {
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return name;
}

// The child's rectangle in client coordinates of its parent.
inline CRect ClientRectOf(HWND child) {
    CRect rect;
    ::GetWindowRect(child, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

inline CRect ToPixels(HWND dialog, CRect units) {
    ::MapDialogRect(dialog, &units);
    return units;
}

inline LOGFONT FontOf(HWND window) {
    LOGFONT font = {};
    ::GetObject(reinterpret_cast<HGDIOBJ>(::SendMessage(window, WM_GETFONT, 0, 0)), sizeof(font), &font);
    return font;
}

// A GDI font of the test's own.
inline LOGFONT MakeLogFont(const wchar_t* face, LONG height) {
    LOGFONT font = {};
    font.lfHeight = height;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, face, LF_FACESIZE);
    return font;
}
