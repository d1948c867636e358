#include "tests/e2e/Desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace {

std::vector<std::string> VisibleWindows(const std::string& windowClass) {
    std::istringstream found(OutputOf("xdotool search --onlyvisible --class '" + windowClass + "'"));
    std::vector<std::string> windows;
    for (std::string id; std::getline(found, id);) {
        windows.push_back(id);
    }
    return windows;
}

}  // namespace

void FailWithScreen(const std::string& message) {
    static int count = 0;
    const std::string picture = std::string(WORK_DIR) + "/failure-" + std::to_string(++count) + ".png";
    OutputOf("mkdir -p " WORK_DIR "; import -window root " + picture);
    ADD_FAILURE() << message << "\nthe active window: " << OutputOf("xdotool getactivewindow getwindowname")
                  << "\nthe screen: " << picture;
}

std::string OutputOf(const std::string& command) {
    std::string output;
    FILE* pipe = popen((command + " 2>/dev/null").c_str(), "r");
    if (pipe == nullptr) {
        return output;
    }
    std::array<char, 65536> buffer;
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        output.append(buffer.data(), count);
    }
    pclose(pipe);
    return output;
}

bool WaitUntil(const std::function<bool()>& condition, int seconds) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return true;
}

void PressKeys(const std::string& names) {
    OutputOf("xdotool key " + names);
}

void TypeText(const std::string& text) {
    std::string quoted = "'";
    for (const char letter : text) {
        quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    }
    OutputOf("xdotool type --delay 5 " + quoted + "'");
}

Screenshot::Screenshot(const std::string& ppm) {
    std::istringstream stream(ppm);
    std::string magic;
    int depth = 0;
    stream >> magic >> m_width >> m_height >> depth;
    stream.get();
    if (magic == "P6" && depth == 255) {
        m_pixels = ppm.substr(static_cast<std::size_t>(stream.tellg()));
    }
}

Rgb Screenshot::At(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return {-1, -1, -1};
    }
    const auto at = static_cast<std::size_t>(3 * (y * m_width + x));
    const auto channel = [&](std::size_t offset) {
        return static_cast<unsigned char>(m_pixels.at(at + offset));
    };
    return {channel(0), channel(1), channel(2)};
}

Window Window::WithTitle(const std::string& title) {
    Window window;
    WaitUntil([&] {
        std::istringstream found(OutputOf("xdotool search --onlyvisible --name '^" + title + "$'"));
        return static_cast<bool>(std::getline(found, window.m_id));
    });
    if (!window.IsValid()) {
        FailWithScreen("no window has the title " + title);
    }
    return window;
}

Window Window::WithoutTitle(const std::string& windowClass) {
    Window window;
    WaitUntil([&] {
        for (const std::string& id : VisibleWindows(windowClass)) {
            if (OutputOf("xdotool getwindowname " + id) == "\n") {
                window.m_id = id;
            }
        }
        return window.IsValid();
    });
    if (!window.IsValid()) {
        FailWithScreen("no window without a title belongs to " + windowClass);
    }
    return window;
}

Window Window::OpenedBy(const std::function<void()>& action, const std::string& windowClass) {
    const std::vector<std::string> before = VisibleWindows(windowClass);
    action();
    Window opened;
    WaitUntil([&] {
        for (const std::string& id : VisibleWindows(windowClass)) {
            if (std::find(before.begin(), before.end(), id) == before.end()) {
                opened.m_id = id;
            }
        }
        return opened.IsValid();
    });
    if (opened.IsValid()) {
        opened.LookWhenStill();
    } else {
        FailWithScreen("no window of " + windowClass + " opened");
    }
    return opened;
}

bool Window::IsActive() const {
    return OutputOf("xdotool getactivewindow") == m_id + "\n";
}

bool Window::IsOpen() const {
    return OutputOf("xwininfo -id " + m_id).find("IsViewable") != std::string::npos;
}

bool Window::Activate() const {
    bool open = true;
    const bool done = WaitUntil([&] {
        open = IsOpen();
        if (!open || IsActive()) {
            return true;
        }
        // With a bound: a window that vanishes now never becomes active.
        OutputOf("timeout 2 xdotool windowactivate --sync " + m_id);
        return IsActive();
    });
    if (!done) {
        FailWithScreen("the window " + m_id + " does not become active");
    }
    return done && open;
}

void Window::Click(int x, int y) const {
    std::ostringstream command;
    command << "xdotool mousemove --window " << m_id << ' ' << x << ' ' << y << " click 1";
    OutputOf(command.str());
}

void Window::DoubleClick(int x, int y) const {
    std::ostringstream command;
    command << "xdotool mousemove --window " << m_id << ' ' << x << ' ' << y
            << " click --repeat 2 --delay 20 1";
    OutputOf(command.str());
}

void Window::Drag(int fromX, int fromY, int toX, int toY) const {
    DragWith(1, fromX, fromY, toX, toY);
}

void Window::DragMiddle(int fromX, int fromY, int toX, int toY) const {
    DragWith(2, fromX, fromY, toX, toY);
}

void Window::DragWith(int button, int fromX, int fromY, int toX, int toY) const {
    std::ostringstream command;
    command << "xdotool mousemove --window " << m_id << ' ' << fromX << ' ' << fromY << " mousedown "
            << button << " mousemove --window " << m_id << ' ' << toX << ' ' << toY << " mouseup " << button;
    OutputOf(command.str());
}

void Window::Wheel(int x, int y, int notches) const {
    std::ostringstream command;
    command << "xdotool mousemove --window " << m_id << ' ' << x << ' ' << y << " click --repeat "
            << std::abs(notches) << " --delay 20 " << (notches > 0 ? 4 : 5);
    OutputOf(command.str());
}

void Window::Press(const std::string& key) const {
    if (Activate()) {
        OutputOf("xdotool key " + key);
    }
}

bool Window::PressUntilClosed(const std::string& key) const {
    for (int tries = 0; tries < 20 && IsOpen(); ++tries) {
        Press(key);
        WaitUntil([this] { return !IsOpen(); }, 3);
    }
    return !IsOpen();
}

Screenshot Window::Look() const {
    return Screenshot(OutputOf("import -window " + m_id + " -depth 8 ppm:-"));
}

Screenshot Window::LookWhenStill() const {
    Screenshot last = Look();
    WaitUntil([&] {
        Screenshot next = Look();
        const bool still = next.Width() > 0 && next == last;
        last = std::move(next);
        return still;
    });
    return last;
}
