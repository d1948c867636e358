// Random input for the gallery, with a check for leaks afterwards.
//
// The input is sent with SendInput, so it takes the same path as a person's; using the mouse meanwhile
// disturbs it. It stays inside the gallery's windows. A dialog that opens for a value is confirmed or
// cancelled; a gallery that was closed is opened again.
#pragma once

#include <afxwin.h>

#include <random>
#include <vector>

#include "gallery/GalleryDialog.h"

namespace tavrin::gallery {

class CMonkey {
public:
    // `events` counts presses, releases, moves and turns one by one. The same seed makes the same choices.
    CMonkey(int events, unsigned seed) : m_events(events), m_seed(seed), m_random(seed) {}

    // First opens the editor of each value once and makes some random events more, so that what the system
    // keeps for good is there; then come the events that count. Prints heap blocks, GDI objects and windows
    // before and after, both times with no gallery open. 0 when none became more, else 1.
    int Run();

private:
    struct Counts {
        long long heapBlocks;
        int gdiObjects;
        int windows;
    };
    static Counts Count();

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void ShowGallery(int events = 0);
    void Act();
    bool EndDialogs();
    void OpenNextEditor();
    void MakeGesture();
    void PressMouse();
    void DragMouse();
    void TurnWheel();
    void PressKey();
    void PressMnemonic();
    void Send();

    void MoveTo(POINT screen);
    void AddMouse(DWORD flags, int data = 0);
    void AddKey(WORD key, DWORD flags);
    POINT RandomPoint();
    HWND RandomWindow();
    int Random(int count);

    int m_events;
    int m_eventsToCome = 0;
    unsigned m_seed;
    std::mt19937 m_random;
    std::vector<INPUT> m_inputs;
    CGalleryDialog* m_gallery = nullptr;  // the open one
    bool m_warmingUp = false;
    UINT m_nextItem = 0;  // whose editor the warm-up opens
};

}  // namespace tavrin::gallery
