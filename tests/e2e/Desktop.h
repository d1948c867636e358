// UI automation on the X display: windows found by their title, clicks and keys by xdotool,
// pixels as they stand on the screen.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <thread>
#include <vector>

// What a shell command printed; its exit status is dropped.
std::string OutputOf(const std::string& command);

// Asks again and again until `condition` holds; false when it does not within `seconds`. The bound is there
// for what hangs: a busy machine needs long for what takes no time on an idle one.
bool WaitUntil(const std::function<bool()>& condition, int seconds = 60);

// Fails the test with a picture of the screen, which stays in the build folder.
void FailWithScreen(const std::string& message);

// Presses keys (names that xdotool knows) or types a text in the window that has the focus.
void PressKeys(const std::string& names);
void TypeText(const std::string& text);

struct Rgb {
    int red, green, blue;
    bool operator==(const Rgb&) const = default;
};

// A picture of a window, with the pixels of its client area.
class Screenshot {
public:
    explicit Screenshot(const std::string& ppm);
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    Rgb At(int x, int y) const;
    bool operator==(const Screenshot&) const = default;

private:
    int m_width = 0;
    int m_height = 0;
    std::string m_pixels;
};

// A top-level window. Coordinates are pixels from the upper left of its client area.
class Window {
public:
    // The visible window with exactly this title, once it exists. When it does not open the test fails
    // with a picture of the screen, and the window is an invalid one.
    static Window WithTitle(const std::string& title);

    // The visible window without a title of a program, by its window class; waited for in the same way.
    static Window WithoutTitle(const std::string& windowClass);

    // The visible window of a program, by its window class, that was not there before `action`: a menu, a
    // list, a calendar. Still by the time that it is given; waited for in the same way.
    static Window OpenedBy(const std::function<void()>& action, const std::string& windowClass);

    bool IsValid() const { return !m_id.empty(); }
    bool IsOpen() const;
    bool IsActive() const;
    // Gives it the focus and waits until it has it. False when it is closed; a window that stays without the
    // focus fails the test.
    bool Activate() const;
    void Click(int x, int y) const;
    void DoubleClick(int x, int y) const;
    // Moves the mouse with the button held.
    void Drag(int fromX, int fromY, int toX, int toY) const;
    // Moves the mouse with the middle button held.
    void DragMiddle(int fromX, int fromY, int toX, int toY) const;
    // Turns the wheel at a position: upwards, or downwards when below zero.
    void Wheel(int x, int y, int notches) const;
    // Presses a key (a name that xdotool knows) in the window.
    void Press(const std::string& key) const;
    // Presses a key that closes the window: again when the program did not yet know that it has the focus.
    // False when the window stays.
    bool PressUntilClosed(const std::string& key) const;
    Screenshot Look() const;
    // Looks once the window has stopped changing.
    Screenshot LookWhenStill() const;

private:
    void DragWith(int button, int fromX, int fromY, int toX, int toY) const;

    std::string m_id;
};
