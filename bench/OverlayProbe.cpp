// Measures a running Vantrel from the outside, on the X server named by DISPLAY:
//   latency  - time from an XTest key press to the overlay's first drawing (X Damage): the
//              first key after start, keys added to a row already showing, keys on an empty
//              overlay
//   idle     - CPU time and wake-ups while no key shows
//   typing   - 15 keys per second, twice: watched, for the frames drawn (and the X server's CPU
//              with the work of reporting damage to this probe), then unwatched, for the CPU
//              time and wake-ups of Vantrel, the X server and the compositor
// Usage: overlay_probe <vantrel pid> <seconds for idle and each typing phase> [--all-keys]
//        [--idle-seconds N] [--server-pid N] [--compositor-pid N] [--no-latency]
// Prints one "measure<TAB>result" line each; resident memory is also sampled every 10 s of
// typing, so that a long run shows whether it stays flat. With --all-keys Vantrel runs with
// "showAllKeys" on and letters are timed; otherwise F-keys, which the default settings show.
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fstream>
#include <map>
#include <poll.h>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct ProcessTimes {
    double systemSeconds = 0;
    std::map<std::string, long long> contextSwitches;                       // per thread
    std::map<std::string, std::pair<std::string, long long>> threadRuntime; // name, CPU ns
    long long rssKiB = 0;
};

// Wake-ups between two samples: context switches of the threads seen in both, plus all of
// those of threads that started in between.
long long wakeUps(const ProcessTimes &before, const ProcessTimes &after)
{
    long long total = 0;
    for (const auto &[thread, switches] : after.contextSwitches) {
        const auto old = before.contextSwitches.find(thread);
        total += switches - (old == before.contextSwitches.end() ? 0 : old->second);
    }
    return total;
}

// CPU time between two samples, to the nanosecond, of the threads seen in the second.
double runSeconds(const ProcessTimes &before, const ProcessTimes &after)
{
    long long total = 0;
    for (const auto &[thread, nameRuntime] : after.threadRuntime) {
        const auto old = before.threadRuntime.find(thread);
        total += nameRuntime.second - (old == before.threadRuntime.end() ? 0 : old->second.second);
    }
    return double(total) / 1e9;
}

ProcessTimes readProcess(int pid)
{
    ProcessTimes result;
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string content((std::istreambuf_iterator<char>(stat)), {});
    const auto close = content.rfind(')');
    if (close != std::string::npos) {
        std::istringstream fields(content.substr(close + 2));
        std::string field;
        long long stime = 0;
        for (int i = 3; fields >> field; ++i)
            if (i == 15) {
                stime = std::stoll(field);
                break;
            }
        result.systemSeconds = double(stime) / double(sysconf(_SC_CLK_TCK));
    }
    // Wake-ups: context switches summed over all threads.
    const std::string taskDir = "/proc/" + std::to_string(pid) + "/task";
    if (DIR *dir = opendir(taskDir.c_str())) {
        while (dirent *entry = readdir(dir)) {
            if (entry->d_name[0] == '.')
                continue;
            // The scheduler's exact run time, where /proc/.../stat counts whole clock ticks.
            const std::string thread = taskDir + "/" + entry->d_name;
            std::ifstream comm(thread + "/comm"), schedstat(thread + "/schedstat");
            std::string name;
            long long nanoseconds = 0;
            std::getline(comm, name);
            if (schedstat >> nanoseconds)
                result.threadRuntime[entry->d_name] = {name, nanoseconds};
            std::ifstream status(taskDir + "/" + entry->d_name + "/status");
            std::string line;
            while (std::getline(status, line))
                if (line.rfind("voluntary_ctxt_switches:", 0) == 0 ||
                    line.rfind("nonvoluntary_ctxt_switches:", 0) == 0)
                    result.contextSwitches[entry->d_name] +=
                        std::stoll(line.substr(line.find(':') + 1));
        }
        closedir(dir);
    }
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    while (std::getline(status, line))
        if (line.rfind("VmRSS:", 0) == 0)
            result.rssKiB = std::stoll(line.substr(6));
    return result;
}

std::vector<xcb_window_t> overlayWindows(xcb_connection_t *c, xcb_window_t root)
{
    std::vector<xcb_window_t> result;
    xcb_query_tree_reply_t *tree = xcb_query_tree_reply(c, xcb_query_tree(c, root), nullptr);
    if (!tree)
        return result;
    const xcb_window_t *children = xcb_query_tree_children(tree);
    for (int i = 0; i < xcb_query_tree_children_length(tree); ++i) {
        xcb_get_window_attributes_reply_t *attributes =
            xcb_get_window_attributes_reply(c, xcb_get_window_attributes(c, children[i]), nullptr);
        if (attributes && attributes->override_redirect &&
            attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
            xcb_get_property_reply_t *wmClass = xcb_get_property_reply(
                c, xcb_get_property(c, 0, children[i], XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 64),
                nullptr);
            if (wmClass) {
                const std::string text(static_cast<const char *>(xcb_get_property_value(wmClass)),
                                       size_t(xcb_get_property_value_length(wmClass)));
                if (text.find("antrel") != std::string::npos)
                    result.push_back(children[i]);
                std::free(wmClass);
            }
        }
        std::free(attributes);
    }
    std::free(tree);
    return result;
}

xcb_keycode_t keycodeOf(xcb_connection_t *c, xcb_keysym_t keysym)
{
    const xcb_setup_t *setup = xcb_get_setup(c);
    xcb_get_keyboard_mapping_reply_t *mapping = xcb_get_keyboard_mapping_reply(
        c,
        xcb_get_keyboard_mapping(c, setup->min_keycode,
                                 uint8_t(setup->max_keycode - setup->min_keycode + 1)),
        nullptr);
    xcb_keycode_t result = 0;
    if (mapping) {
        const xcb_keysym_t *syms = xcb_get_keyboard_mapping_keysyms(mapping);
        const int perCode = mapping->keysyms_per_keycode;
        for (int code = setup->min_keycode; code <= setup->max_keycode && !result; ++code)
            for (int i = 0; i < perCode; ++i)
                if (syms[(code - setup->min_keycode) * perCode + i] == keysym) {
                    result = xcb_keycode_t(code);
                    break;
                }
        std::free(mapping);
    }
    return result;
}

void tap(xcb_connection_t *c, xcb_keycode_t key)
{
    xcb_test_fake_input(c, XCB_KEY_PRESS, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    xcb_test_fake_input(c, XCB_KEY_RELEASE, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    xcb_flush(c);
}

// Drawings seen: damage events, and frames (bursts of damage events closer than 3 ms).
struct DamageCount {
    long long events = 0;
    long long frames = 0;
    Clock::time_point last;
    Clock::time_point frameStart;
    // Time from one frame to the next: shorter than 10 ms (a key restarts the beat), 10 to
    // 24 ms (the next frame on a 60 Hz beat), longer (a frame skipped, or nothing moved).
    long long gaps[3] = {};
};
DamageCount damageCount;

// Drains events; true when a damage event arrived before the deadline.
bool waitForDamage(xcb_connection_t *c, uint8_t damageEvent, Clock::time_point deadline)
{
    for (;;) {
        while (xcb_generic_event_t *event = xcb_poll_for_event(c)) {
            const bool damage = (event->response_type & 0x7f) == damageEvent;
            std::free(event);
            if (damage) {
                const auto now = Clock::now();
                ++damageCount.events;
                if (now - damageCount.last > std::chrono::milliseconds(3)) {
                    const auto gap = now - damageCount.frameStart;
                    if (damageCount.frames > 0)
                        ++damageCount.gaps[gap < std::chrono::milliseconds(10)   ? 0
                                           : gap < std::chrono::milliseconds(24) ? 1
                                                                                 : 2];
                    ++damageCount.frames;
                    damageCount.frameStart = now;
                }
                damageCount.last = now;
                return true;
            }
        }
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left.count() <= 0)
            return false;
        pollfd fd{xcb_get_file_descriptor(c), POLLIN, 0};
        poll(&fd, 1, int(left.count()));
    }
}

void drain(xcb_connection_t *c, uint8_t damageEvent, int milliseconds)
{
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (Clock::now() < end)
        waitForDamage(c, damageEvent, end);
}

// Waits until the overlay has drawn nothing for `quiet` milliseconds.
void settle(xcb_connection_t *c, uint8_t damageEvent, int quiet)
{
    while (waitForDamage(c, damageEvent, Clock::now() + std::chrono::milliseconds(quiet))) {
    }
}

// Milliseconds from a tap to the overlay's first drawing, or a negative number for none.
double timeTap(xcb_connection_t *c, uint8_t damageEvent, xcb_keycode_t key)
{
    const auto sent = Clock::now();
    tap(c, key);
    if (!waitForDamage(c, damageEvent, sent + std::chrono::milliseconds(500)))
        return -1.0;
    return std::chrono::duration<double, std::milli>(Clock::now() - sent).count();
}

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, size_t(p * double(values.size() - 1) + 0.5))];
}

std::string latencyText(const std::vector<double> &all, size_t presses)
{
    std::vector<double> values;
    for (double v : all)
        if (v >= 0)
            values.push_back(v);
    char text[128];
    if (values.empty())
        std::snprintf(text, sizeof text, "no drawing (%zu presses)", presses);
    else
        std::snprintf(text, sizeof text, "p50 %.2f ms, p99 %.2f ms (%zu of %zu presses)",
                      percentile(values, 0.5), percentile(values, 0.99), values.size(), presses);
    return text;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 3) {
        std::fprintf(stderr,
                     "usage: %s <vantrel pid> <seconds> [--all-keys] [--idle-seconds N] "
                     "[--server-pid N] [--compositor-pid N] [--no-latency]\n",
                     argv[0]);
        return 2;
    }
    const int pid = std::atoi(argv[1]);
    const int seconds = std::atoi(argv[2]);
    bool allKeys = false;
    int idleSeconds = seconds;
    int serverPid = 0;     // the X server's, to report its CPU time too
    int compositorPid = 0; // the compositor's, likewise
    bool latency = true;
    for (int i = 3; i < argc; ++i) {
        if (std::strcmp(argv[i], "--all-keys") == 0)
            allKeys = true;
        else if (std::strcmp(argv[i], "--idle-seconds") == 0 && i + 1 < argc)
            idleSeconds = std::atoi(argv[++i]);
        else if (std::strcmp(argv[i], "--server-pid") == 0 && i + 1 < argc)
            serverPid = std::atoi(argv[++i]);
        else if (std::strcmp(argv[i], "--compositor-pid") == 0 && i + 1 < argc)
            compositorPid = std::atoi(argv[++i]);
        else if (std::strcmp(argv[i], "--no-latency") == 0)
            latency = false;
    }
    xcb_connection_t *c = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(c)) {
        std::fprintf(stderr, "cannot open the X display\n");
        return 1;
    }
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    const xcb_query_extension_reply_t *damageExtension = xcb_get_extension_data(c, &xcb_damage_id);
    if (!damageExtension || !damageExtension->present) {
        std::fprintf(stderr, "the X server has no Damage extension\n");
        return 1;
    }
    std::free(xcb_damage_query_version_reply(c, xcb_damage_query_version(c, 1, 1), nullptr));
    const uint8_t damageEvent = damageExtension->first_event + XCB_DAMAGE_NOTIFY;

    const std::vector<xcb_window_t> windows = overlayWindows(c, screen->root);
    if (windows.empty()) {
        std::fprintf(stderr, "no overlay window found\n");
        return 1;
    }
    std::vector<xcb_damage_damage_t> damages;
    for (xcb_window_t window : windows) {
        damages.push_back(xcb_generate_id(c));
        xcb_damage_create(c, damages.back(), window, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    }
    xcb_flush(c);

    const char letters[] = "abcdefghijlmnopqrstuvwxyz";
    std::vector<xcb_keycode_t> keys;
    for (const char *l = letters; *l; ++l)
        keys.push_back(keycodeOf(c, xcb_keysym_t(*l)));
    // Timed keys: each shows a cap with the settings in use.
    std::vector<xcb_keycode_t> timed = keys;
    if (!allKeys) {
        timed.clear();
        for (xcb_keysym_t f = 0xffbe; f <= 0xffc9; ++f) // F1 to F12
            timed.push_back(keycodeOf(c, f));
    }

    // The very first key after start, on an empty overlay with nothing cached (once the
    // window's own first drawings are over).
    settle(c, damageEvent, 300);
    double first = -1.0;
    std::vector<double> showing; // keys added to a row already showing
    std::vector<double> empty;   // keys on an empty overlay
    if (latency) {
        first = timeTap(c, damageEvent, timed[0]);
        // Each after the previous drawing has settled.
        for (int i = 1; i <= 200; ++i) {
            drain(c, damageEvent, 60);
            showing.push_back(timeTap(c, damageEvent, timed[size_t(i) % timed.size()]));
        }
        // Each after every cap has gone (1.5 s on show, then removal).
        for (int i = 0; i < 20; ++i) {
            drain(c, damageEvent, 1900);
            settle(c, damageEvent, 200);
            empty.push_back(timeTap(c, damageEvent, timed[size_t(i) % timed.size()]));
        }
    }
    drain(c, damageEvent, 2500); // let every cap expire

    const ProcessTimes idleStart = readProcess(pid);
    std::this_thread::sleep_for(std::chrono::seconds(idleSeconds));
    const ProcessTimes idleEnd = readProcess(pid);

    // Typing, twice: once watched (frames drawn, the X server's CPU with the work of reporting
    // damage to this probe) and once unwatched (what the desktop pays: Vantrel's, the X server's
    // and the compositor's CPU).
    const xcb_keycode_t control = keycodeOf(c, 0xffe3);
    const xcb_keycode_t f5 = keycodeOf(c, 0xffc2);
    const xcb_keycode_t returnKey = keycodeOf(c, 0xff0d);
    std::vector<double> rssSamples; // MB, every 10 s of typing
    int shownKeys = 0;
    const auto type = [&](bool watched) {
        const auto typingEnd = Clock::now() + std::chrono::seconds(seconds);
        auto nextSample = Clock::now() + std::chrono::seconds(10);
        for (int i = 0; Clock::now() < typingEnd; ++i) {
            if (Clock::now() >= nextSample) {
                rssSamples.push_back(double(readProcess(pid).rssKiB) / 1024.0);
                nextSample += std::chrono::seconds(10);
            }
            // Chords, F5 and Return show with any settings, plain letters only with all keys.
            if (watched && (allKeys || i % 4 != 1))
                ++shownKeys;
            switch (i % 4) {
            case 0: // a chord
                xcb_test_fake_input(c, XCB_KEY_PRESS, control, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
                tap(c, keys[size_t(i) % keys.size()]);
                xcb_test_fake_input(c, XCB_KEY_RELEASE, control, XCB_CURRENT_TIME, XCB_NONE, 0, 0,
                                    0);
                xcb_flush(c);
                break;
            case 1:
                tap(c, keys[size_t(i) % keys.size()]);
                break;
            case 2:
                tap(c, f5);
                break;
            default:
                tap(c, returnKey);
            }
            if (watched)
                drain(c, damageEvent, 1000 / 15);
            else
                std::this_thread::sleep_for(std::chrono::milliseconds(1000 / 15));
        }
    };
    const ProcessTimes serverWatchedStart = serverPid > 0 ? readProcess(serverPid) : ProcessTimes();
    damageCount = {};
    type(true);
    const ProcessTimes serverWatchedStop = serverPid > 0 ? readProcess(serverPid) : ProcessTimes();
    const DamageCount typed = damageCount;
    drain(c, damageEvent, 2500); // let every cap expire
    for (const xcb_damage_damage_t damage : damages)
        xcb_damage_destroy(c, damage);
    xcb_flush(c);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));

    const ProcessTimes typingStart = readProcess(pid);
    const ProcessTimes serverStart = serverPid > 0 ? readProcess(serverPid) : ProcessTimes();
    const ProcessTimes compositorStart =
        compositorPid > 0 ? readProcess(compositorPid) : ProcessTimes();
    type(false);
    const ProcessTimes typingStop = readProcess(pid);
    const ProcessTimes serverStop = serverPid > 0 ? readProcess(serverPid) : ProcessTimes();
    const ProcessTimes compositorStop =
        compositorPid > 0 ? readProcess(compositorPid) : ProcessTimes();
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    const double frameRate = double(typed.frames) / seconds;

    if (latency) {
        std::printf("first key after start, press to first drawing\t%.2f ms\n", first);
        std::printf("latency, row already showing\t%s\n", latencyText(showing, 200).c_str());
        std::printf("latency, empty overlay\t%s\n", latencyText(empty, 20).c_str());
    }
    std::printf("idle for %d s\t%.3f s CPU, %lld wake-ups\n", idleSeconds,
                runSeconds(idleStart, idleEnd), wakeUps(idleStart, idleEnd));
    std::printf("typing 15 keys/s for %d s\t%.3f s CPU (%.3f s in the kernel), %lld wake-ups\n",
                seconds, runSeconds(typingStart, typingStop),
                typingStop.systemSeconds - typingStart.systemSeconds,
                wakeUps(typingStart, typingStop));
    // CPU and wake-ups by thread while typing, threads of one name summed.
    std::map<std::string, std::pair<long long, long long>> byName; // CPU ns, wake-ups
    for (const auto &[thread, nameRuntime] : typingStop.threadRuntime) {
        const auto before = typingStart.threadRuntime.find(thread);
        const auto switches = typingStart.contextSwitches.find(thread);
        auto &[runtime, wakes] = byName[nameRuntime.first];
        runtime += nameRuntime.second -
                   (before == typingStart.threadRuntime.end() ? 0 : before->second.second);
        if (const auto now = typingStop.contextSwitches.find(thread);
            now != typingStop.contextSwitches.end())
            wakes += now->second -
                     (switches == typingStart.contextSwitches.end() ? 0 : switches->second);
    }
    std::string threads;
    for (const auto &[name, runtimeWakes] : byName)
        if (runtimeWakes.first > 0) {
            char text[160];
            std::snprintf(text, sizeof text, "%s%s %.3f s, %lld wake-ups",
                          threads.empty() ? "" : "; ", name.c_str(),
                          double(runtimeWakes.first) / 1e9, runtimeWakes.second);
            threads += text;
        }
    std::printf("typing: CPU by thread\t%s\n", threads.c_str());
    if (serverPid > 0) {
        std::printf("typing: X server CPU\t%.3f s\n", runSeconds(serverStart, serverStop));
        std::printf("typing: X server CPU, damage reported to this probe\t%.3f s\n",
                    runSeconds(serverWatchedStart, serverWatchedStop));
    }
    if (compositorPid > 0)
        std::printf("typing: compositor CPU\t%.3f s\n",
                    runSeconds(compositorStart, compositorStop));
    std::printf("frames drawn while typing\t%lld (%.0f a second), %.1f per shown key, %.1f "
                "damage events per frame\n",
                typed.frames, frameRate, shownKeys ? double(typed.frames) / shownKeys : 0.0,
                typed.frames ? double(typed.events) / double(typed.frames) : 0.0);
    std::printf("time between frames while typing\t%lld under 10 ms, %lld of 10-24 ms, %lld "
                "longer\n",
                typed.gaps[0], typed.gaps[1], typed.gaps[2]);
    std::printf("resident memory after typing\t%.1f MB\n", double(typingStop.rssKiB) / 1024.0);
    if (rssSamples.size() > 1)
        std::printf("resident memory while typing, every 10 s\tfirst %.1f MB, highest %.1f MB, "
                    "last %.1f MB\n",
                    rssSamples.front(), *std::max_element(rssSamples.begin(), rssSamples.end()),
                    rssSamples.back());
    xcb_disconnect(c);
    return 0;
}
