// A pointer for tests on a headless compositor, which has none of its own: a virtual pointer
// (wlr virtual-pointer protocol) that carries out the commands given as arguments, in order.
//
//   vantrel-test-pointer WIDTH HEIGHT COMMAND...
//     move X Y     the pointer to X, Y of the WIDTH x HEIGHT layout
//     press        the left button down
//     release      the left button up
//     click        press and release
//     wait MS      a pause, for the compositor and its clients to catch up
#include "wlr-virtual-pointer-unstable-v1-client-protocol.h"

#include <wayland-client.h>

#include <linux/input-event-codes.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace {

zwlr_virtual_pointer_manager_v1 *manager = nullptr;
wl_seat *seat = nullptr;

void handleGlobal(void *, wl_registry *registry, uint32_t name, const char *interface, uint32_t)
{
    if (std::strcmp(interface, zwlr_virtual_pointer_manager_v1_interface.name) == 0)
        manager = static_cast<zwlr_virtual_pointer_manager_v1 *>(
            wl_registry_bind(registry, name, &zwlr_virtual_pointer_manager_v1_interface, 1));
    else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !seat)
        seat = static_cast<wl_seat *>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
}
void handleGlobalRemove(void *, wl_registry *, uint32_t) {}

uint32_t now()
{
    using namespace std::chrono;
    return uint32_t(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

int fail(const char *message)
{
    std::fprintf(stderr, "vantrel-test-pointer: %s\n", message);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3)
        return fail("usage: vantrel-test-pointer WIDTH HEIGHT COMMAND...");
    const uint32_t width = uint32_t(std::atoi(argv[1]));
    const uint32_t height = uint32_t(std::atoi(argv[2]));
    wl_display *display = wl_display_connect(nullptr);
    if (!display)
        return fail("no compositor");
    static const wl_registry_listener listener{&handleGlobal, &handleGlobalRemove};
    wl_registry_add_listener(wl_display_get_registry(display), &listener, nullptr);
    wl_display_roundtrip(display);
    if (!manager)
        return fail("the compositor has no virtual pointers");
    zwlr_virtual_pointer_v1 *pointer =
        zwlr_virtual_pointer_manager_v1_create_virtual_pointer(manager, seat);
    for (int i = 3; i < argc; ++i) {
        const std::string command = argv[i];
        if (command == "move" && i + 2 < argc) {
            const uint32_t x = uint32_t(std::atoi(argv[++i]));
            const uint32_t y = uint32_t(std::atoi(argv[++i]));
            zwlr_virtual_pointer_v1_motion_absolute(pointer, now(), x, y, width, height);
        } else if (command == "press" || command == "release" || command == "click") {
            if (command != "release")
                zwlr_virtual_pointer_v1_button(pointer, now(), BTN_LEFT,
                                               WL_POINTER_BUTTON_STATE_PRESSED);
            if (command != "press") {
                zwlr_virtual_pointer_v1_frame(pointer);
                zwlr_virtual_pointer_v1_button(pointer, now(), BTN_LEFT,
                                               WL_POINTER_BUTTON_STATE_RELEASED);
            }
        } else if (command == "wait" && i + 1 < argc) {
            wl_display_roundtrip(display);
            std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(argv[++i])));
            continue;
        } else {
            return fail(("unknown command " + command).c_str());
        }
        zwlr_virtual_pointer_v1_frame(pointer);
        wl_display_roundtrip(display);
    }
    zwlr_virtual_pointer_v1_destroy(pointer);
    wl_display_roundtrip(display);
    wl_display_disconnect(display);
    return 0;
}
