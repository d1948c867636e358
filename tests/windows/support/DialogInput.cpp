#include "tests/windows/support/DialogInput.h"

namespace {

POINT MiddleOf(HWND control) {
    RECT client;
    GetClientRect(control, &client);
    return {client.right / 2, client.bottom / 2};
}

void PressMouse(HWND window, POINT point, int times) {
    ClientToScreen(window, &point);
    SetCursorPos(point.x, point.y);
    for (int time = 0; time < times; ++time) {
        INPUT inputs[2] = {};
        inputs[0].type = inputs[1].type = INPUT_MOUSE;
        inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        SendInput(2, inputs, sizeof(INPUT));
    }
}

void PostToFocus(HWND dialog, UINT message, WPARAM wParam) {
    const HWND focus = GetFocus();
    PostMessageW(focus != nullptr ? focus : dialog, message, wParam, 0);
}

}  // namespace

void Click(HWND control) {
    PressMouse(control, MiddleOf(control), 1);
}

void Click(HWND window, POINT point) {
    PressMouse(window, point, 1);
}

void DoubleClick(HWND control) {
    PressMouse(control, MiddleOf(control), 2);
}

void PressKey(HWND dialog, WPARAM key) {
    PostToFocus(dialog, WM_KEYDOWN, key);
}

void TypeCharacter(HWND dialog, wchar_t character) {
    PostToFocus(dialog, WM_CHAR, character);
}

void PressCloseBox(HWND dialog) {
    PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
}
