// viewers_watch: the eye and the finger of bench/viewers, on the X server of $DISPLAY. Reads one
// order a line, answers each with one line; the times are its own, from the clock that never jumps:
//   start NUMBER PROGRAM<tab>ARGUMENT…  "pid MS": starts it; until the picture's squares are seen
//   key KEYSYM NUMBER                   "MS": presses the key (in hexadecimal); until they are seen
//   click X Y NUMBER                    "MS": presses the left button there
//   stop                                "stopped": ends the program
// A NUMBER of -1 does not wait. "late" instead of a time after 20 s.
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

extern char** environ;

namespace {

// As viewers_pictures.cpp draws them, on a screen that the picture's height fills.
constexpr int kMarkColumns = 8;
constexpr int kMarkSidesInHeight = 25;
constexpr double kPatienceMs = 20000;
constexpr auto kLookEvery = std::chrono::microseconds(500);

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

double NowMs() {
    return std::chrono::duration<double, std::milli>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

class Screen {
public:
    Screen() : server_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(server_) != 0) {
            std::fputs("viewers_watch: no display\n", stderr);
            std::exit(1);
        }
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(server_)).data;
    }
    ~Screen() { xcb_disconnect(server_); }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// The number that stands in the middle of the screen, -1 for none.
    int Number() {
        const int side = screen_->height_in_pixels / kMarkSidesInHeight;
        const auto upper = AskRow(screen_->height_in_pixels / 2 - side / 2, side);
        const auto lower = AskRow(screen_->height_in_pixels / 2 + side / 2, side);
        const int above = Bits(upper, side);
        const int below = Bits(lower, side);
        constexpr int kAll = (1 << kMarkColumns) - 1;
        const bool mark = above >= 0 && below == (above ^ kAll) && (above & 1) != 0 &&
                          above >> (kMarkColumns - 1) == 0;
        return mark ? above >> 1 : -1;
    }

    void Key(xcb_keysym_t wanted) {
        const uint8_t code = CodeOf(wanted);
        Send(XCB_KEY_PRESS, code, 0, 0);
        Send(XCB_KEY_RELEASE, code, 0, 0);
        xcb_flush(server_);
    }

    void Click(int16_t x, int16_t y) {
        constexpr uint8_t kLeft = 1;
        Send(XCB_MOTION_NOTIFY, 0, x, y);
        Send(XCB_BUTTON_PRESS, kLeft, 0, 0);
        Send(XCB_BUTTON_RELEASE, kLeft, 0, 0);
        xcb_flush(server_);
    }

private:
    xcb_get_image_cookie_t AskRow(int y, int side) {
        return xcb_get_image(
            server_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
            static_cast<int16_t>(screen_->width_in_pixels / 2 - side * kMarkColumns / 2),
            static_cast<int16_t>(y), static_cast<uint16_t>(side * kMarkColumns), 1, ~0u);
    }

    /// A bit for each white square of a row, -1 where one is neither white nor black.
    int Bits(xcb_get_image_cookie_t cookie, int side) {
        const std::unique_ptr<xcb_get_image_reply_t, Free> reply(
            xcb_get_image_reply(server_, cookie, nullptr));
        if (!reply) {
            return -1;
        }
        constexpr int kDarkest = 170;
        constexpr int kBrightest = 85;
        const uint8_t* pixels = xcb_get_image_data(reply.get());
        int bits = 0;
        for (int column = 0; column < kMarkColumns; ++column) {
            const uint8_t green = pixels[4 * (column * side + side / 2) + 1];
            if (green > kBrightest && green < kDarkest) {
                return -1;
            }
            bits |= (green >= kDarkest ? 1 : 0) << column;
        }
        return bits;
    }

    uint8_t CodeOf(xcb_keysym_t wanted) {
        const xcb_setup_t* setup = xcb_get_setup(server_);
        const uint8_t first = setup->min_keycode;
        const auto count = static_cast<uint8_t>(setup->max_keycode - first + 1);
        const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, Free> map(
            xcb_get_keyboard_mapping_reply(server_, xcb_get_keyboard_mapping(server_, first, count),
                                           nullptr));
        if (map) {
            const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(map.get());
            for (int i = 0; i < count; ++i) {
                if (symbols[i * map->keysyms_per_keycode] == wanted) {
                    return static_cast<uint8_t>(first + i);
                }
            }
        }
        std::fputs("viewers_watch: no such key\n", stderr);
        std::exit(1);
    }

    void Send(uint8_t kind, uint8_t detail, int16_t x, int16_t y) {
        xcb_test_fake_input(server_, kind, detail, XCB_CURRENT_TIME, screen_->root, x, y, 0);
    }

    xcb_connection_t* server_;
    const xcb_screen_t* screen_;
};

/// "MS" from `start` until the number is seen; "late"; "-" for a number of -1.
std::string WaitFor(Screen& screen, int number, double start) {
    if (number < 0) {
        return "-";
    }
    while (screen.Number() != number) {
        if (NowMs() - start > kPatienceMs) {
            return "late";
        }
        std::this_thread::sleep_for(kLookEvery);
    }
    return std::to_string(NowMs() - start);
}

pid_t Start(const std::string& words) {
    std::vector<std::string> arguments;
    std::istringstream line(words);
    for (std::string word; std::getline(line, word, '\t');) {
        arguments.push_back(word);
    }
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    // What the program prints is no answer of ours.
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
    pid_t pid = -1;
    if (posix_spawnp(&pid, pointers[0], &files, nullptr, pointers.data(), environ) != 0) {
        pid = -1;
    }
    posix_spawn_file_actions_destroy(&files);
    return pid;
}

/// Asks first; a viewer that is about to wait for input may overhear it.
void Stop(pid_t& pid) {
    constexpr auto kPause = std::chrono::milliseconds(10);
    constexpr int kPauses = 200;
    if (pid <= 0) {
        return;
    }
    kill(pid, SIGTERM);
    bool ended = false;
    for (int i = 0; i < kPauses && !ended; ++i) {
        ended = waitpid(pid, nullptr, WNOHANG) != 0;
        if (!ended) {
            std::this_thread::sleep_for(kPause);
        }
    }
    if (!ended) {
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }
    pid = -1;
}

}  // namespace

int main() {
    Screen screen;
    pid_t pid = -1;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string order;
        int x = 0, y = 0, number = -1;
        words >> order;
        if (order == "start") {
            std::string command;
            words >> number >> std::ws;
            std::getline(words, command);
            const double start = NowMs();
            pid = Start(command);
            std::cout << pid << " " << WaitFor(screen, number, start) << std::endl;
        } else if (order == "key") {
            words >> std::hex >> x >> std::dec >> number;
            const double start = NowMs();
            screen.Key(static_cast<xcb_keysym_t>(x));
            std::cout << WaitFor(screen, number, start) << std::endl;
        } else if (order == "click") {
            words >> x >> y >> number;
            const double start = NowMs();
            screen.Click(static_cast<int16_t>(x), static_cast<int16_t>(y));
            std::cout << WaitFor(screen, number, start) << std::endl;
        } else if (order == "stop") {
            Stop(pid);
            std::cout << "stopped" << std::endl;
        } else {
            std::cout << "?" << std::endl;
        }
    }
    Stop(pid);
    return 0;
}
