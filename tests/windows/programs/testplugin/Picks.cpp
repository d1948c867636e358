// Commands that ask the user for points.
#include "tests/windows/programs/testplugin/TestPlugin.h"

namespace tests {

namespace {

int secondStatus;

void AnswerPoint(int status, const double* point) {
    HOST(sds_retlist)
    (HOST(sds_buildlist)(RTSHORT, status, RTREAL, point[0], RTREAL, point[1], RTREAL, point[2], RTNONE));
}

void CALLBACK PickOnceMore(HWND, UINT, UINT_PTR timer, DWORD) {
    KillTimer(nullptr, timer);
    double point[3];
    secondStatus = HOST(sds_getpoint)(nullptr, L"again", point);
    PostMessageW(HOST(sds_getmainhwnd)(), WM_KEYDOWN, VK_ESCAPE, 0);
}

}  // namespace

void PickPoint() {
    double point[3] = {-1, -1, -1};
    AnswerPoint(HOST(sds_getpoint)(nullptr, TextArgument(0), point), point);
}

// (pick-distance PROMPT [X Y]): from the point, or from one that the user shows first.
void PickDistance() {
    const double base[3] = {RealArgument(1), RealArgument(2), 0};
    double distance = -1;
    const int status =
        HOST(sds_getdist)(RealArgument(1, -1) < 0 ? nullptr : base, TextArgument(0), &distance);
    HOST(sds_retlist)(HOST(sds_buildlist)(RTSHORT, status, RTREAL, distance, RTNONE));
}

// The status of a pick while another one waits, then that one's, which Escape ends.
void PickTwiceAtOnce() {
    secondStatus = 0;
    SetTimer(nullptr, 0, 1, PickOnceMore);
    double point[3] = {};
    const int status = HOST(sds_getpoint)(nullptr, L"first", point);
    HOST(sds_retlist)(HOST(sds_buildlist)(RTSHORT, secondStatus, RTSHORT, status, RTNONE));
}

void PickWhileDisabled() {
    double point[3] = {-1, -1, -1};
    EnableWindow(HOST(sds_getmainhwnd)(), FALSE);
    AnswerPoint(HOST(sds_getpoint)(nullptr, L"never", point), point);
    EnableWindow(HOST(sds_getmainhwnd)(), TRUE);
}

// As a modal dialog does it that measures in the drawing: the main window is enabled and the dialog hidden
// for as long as the pick takes.
void PickBehindDialog() {
    const HWND host = HOST(sds_getmainhwnd)();
    const HWND dialog = CreateWindowExW(WS_EX_DLGMODALFRAME, L"STATIC", L"TestPlugin dialog",
                                        WS_POPUP | WS_CAPTION | WS_VISIBLE, 50, 50, 600, 400, host, nullptr,
                                        nullptr, nullptr);
    EnableWindow(host, FALSE);
    EnableWindow(host, TRUE);
    SetActiveWindow(host);
    ShowWindow(dialog, SW_HIDE);
    double point[3] = {-1, -1, -1};
    const int status = HOST(sds_getpoint)(nullptr, L"\nBehind the dialog: ", point);
    ShowWindow(dialog, SW_SHOW);
    SetActiveWindow(dialog);
    DestroyWindow(dialog);
    AnswerPoint(status, point);
}

}  // namespace tests
