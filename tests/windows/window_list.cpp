// Tells a test what a user of Windows sees: for each line that it reads it prints the visible
// windows, a line each, and an empty line. Ends with its input. A line: "1" for the window that has
// the keys and "0" for the others, then left, top, width and height of what is inside its frame, in
// pixels of the screen, its class and its title; a tab between them.
#include "base/windows/wide_text.hpp"

#include <array>
#include <cstdio>
#include <iostream>
#include <string>
#include <windows.h>

namespace {

constexpr int LONGEST_TEXT = 512;

std::string title(HWND window) {
    std::array<wchar_t, LONGEST_TEXT> text{};
    GetWindowTextW(window, text.data(), LONGEST_TEXT);
    return kvt::utf8_of_wide(text.data());
}

std::string class_name(HWND window) {
    std::array<wchar_t, LONGEST_TEXT> text{};
    GetClassNameW(window, text.data(), LONGEST_TEXT);
    return kvt::utf8_of_wide(text.data());
}

void print_window(HWND window) {
    RECT inside{};
    GetClientRect(window, &inside);
    POINT corner{0, 0};
    ClientToScreen(window, &corner);
    std::printf("%d\t%ld\t%ld\t%ld\t%ld\t%s\t%s\n", window == GetForegroundWindow() ? 1 : 0,
                corner.x, corner.y, inside.right, inside.bottom, class_name(window).c_str(),
                title(window).c_str());
}

BOOL CALLBACK print_visible(HWND window, LPARAM /*unused*/) {
    if (IsWindowVisible(window) != FALSE) {
        print_window(window);
    }
    return TRUE;
}

}  // namespace

int main() {
    std::string question;
    while (std::getline(std::cin, question)) {
        EnumWindows(print_visible, 0);
        std::puts("");
        std::fflush(stdout);
    }
    return 0;
}
