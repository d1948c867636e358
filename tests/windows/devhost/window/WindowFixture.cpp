#include "tests/windows/devhost/window/WindowFixture.h"

namespace tests {

CWindowFixture::CWindowFixture() : m_window(m_drawing) {
    ForgetQuit();
    m_window.Show();
    Handle();
}

int CWindowFixture::AreaHeight() const {
    RECT client;
    GetClientRect(Area(), &client);
    return client.bottom;
}

std::wstring CWindowFixture::TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void CWindowFixture::PostClick(int x, int y) const {
    PostMessageW(Area(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(Area(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

void CWindowFixture::PostKey(WPARAM key, EControl part) const {
    PostMessageW(Part(part), WM_KEYDOWN, key, 0);
}

void CWindowFixture::PostLine(const std::wstring& text) const {
    for (const wchar_t letter : text) {
        PostMessageW(Part(IDC_PROMPT), WM_CHAR, letter, 0);
    }
    PostKey(VK_RETURN);
}

void CWindowFixture::Wheel(int x, int y, int notches) const {
    POINT position = {x, y};
    ClientToScreen(Area(), &position);
    SendMessageW(Area(), WM_MOUSEWHEEL, MAKEWPARAM(0, notches * WHEEL_DELTA),
                 MAKELPARAM(position.x, position.y));
}

void CWindowFixture::Pan(int fromX, int fromY, int toX, int toY) const {
    SendMessageW(Area(), WM_MBUTTONDOWN, MK_MBUTTON, MAKELPARAM(fromX, fromY));
    SendMessageW(Area(), WM_MOUSEMOVE, MK_MBUTTON, MAKELPARAM(toX, toY));
    SendMessageW(Area(), WM_MBUTTONUP, 0, MAKELPARAM(toX, toY));
}

Point CWindowFixture::PickAt(int x, int y) {
    PostClick(x, y);
    const Answer answer = m_window.Ask(L"Where? ", std::nullopt, ASK_POINT);
    EXPECT_TRUE(std::holds_alternative<Point>(answer));
    const auto* point = std::get_if<Point>(&answer);
    return point != nullptr ? *point : Point();
}

void ForgetQuit() {
    MSG quit;
    PeekMessageW(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void ExpectNear(Point point, double x, double y) {
    EXPECT_NEAR(point.x, x, 1e-9);
    EXPECT_NEAR(point.y, y, 1e-9);
}

}  // namespace tests
