// SPDX-License-Identifier: GPL-3.0-or-later
// Measures Vantle from the outside, as a person meets it, against the floor programs of this
// folder, on the X server named by DISPLAY (a private Xvfb with openbox and trayer, started by
// run-bench.sh). Nothing here polls: one X connection listens to the root and to every window
// made on it, and each figure is the moment an event arrives.
//
//   bench_harness --vantle PATH --floor-tray PATH --floor-overlay PATH --out FILE
//                 [--runs N] [--idle SECONDS] [--picks N] [--toggles N] [--size LABEL]
//                 [--only start,pick,idle,export]
//
// Writes one JSON object a line to FILE: {"figure", "program", "size", "unit", "samples"}.
// bench_report turns these into the tables.
#include "model/ColorHistoryCodec.h"
#include "model/PickedColor.h"
#include "services/PreferenceKeys.h"
#include "services/SettingsStore.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
#include <map>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

extern char **environ;

namespace {

double nowMs()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

[[noreturn]] void die(const std::string &message)
{
    std::fprintf(stderr, "bench harness: %s\n", message.c_str());
    std::exit(1);
}

// ---- Processes ---------------------------------------------------------------------------

struct Child {
    pid_t pid = -1;
    int out = -1; // the child's standard output, when asked for
};

Child spawn(const std::vector<std::string> &argv, bool captureOutput = false)
{
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    int pipeFds[2] = { -1, -1 };
    if (captureOutput) {
        if (pipe2(pipeFds, O_CLOEXEC) != 0)
            die("pipe failed");
        posix_spawn_file_actions_adddup2(&actions, pipeFds[1], STDOUT_FILENO);
    } else {
        posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    }
    std::vector<char *> args;
    for (const std::string &a : argv)
        args.push_back(const_cast<char *>(a.c_str()));
    args.push_back(nullptr);
    Child child;
    if (posix_spawn(&child.pid, args[0], &actions, nullptr, args.data(), environ) != 0)
        die("cannot start " + argv[0]);
    posix_spawn_file_actions_destroy(&actions);
    if (captureOutput) {
        close(pipeFds[1]);
        child.out = pipeFds[0];
    }
    return child;
}

bool exited(pid_t pid)
{
    int status = 0;
    return waitpid(pid, &status, WNOHANG) == pid;
}

int waitExit(pid_t pid)
{
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) { }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void stop(Child &child)
{
    if (child.pid <= 0)
        return;
    kill(child.pid, SIGTERM);
    waitExit(child.pid);
    if (child.out >= 0)
        close(child.out);
    child = Child();
}

// Waits for a line on the child's output (the floor overlay's "ready").
bool readLine(const Child &child, int timeoutMs)
{
    pollfd fd { child.out, POLLIN, 0 };
    if (poll(&fd, 1, timeoutMs) <= 0)
        return false;
    char buffer[64];
    return read(child.out, buffer, sizeof buffer) > 0;
}

// ---- /proc ---------------------------------------------------------------------------------

double rssMiB(pid_t pid)
{
    FILE *file = std::fopen(("/proc/" + std::to_string(pid) + "/status").c_str(), "r");
    if (!file)
        return -1;
    char line[256];
    double kib = -1;
    while (std::fgets(line, sizeof line, file))
        if (std::sscanf(line, "VmRSS: %lf kB", &kib) == 1)
            break;
    std::fclose(file);
    return kib / 1024.0;
}

struct Activity {
    long long ticks = 0; // user + system clock ticks of every thread
    std::map<std::string, long long> switches; // voluntary + involuntary context switches, by thread
};

// Context switches between two looks: a thread that ended in between woke at least once to end.
// Threads that woke are named on standard error, for the one who reads why.
long long switchesBetween(const Activity &before, const Activity &after)
{
    long long total = 0;
    for (const auto &[thread, count] : after.switches) {
        auto it = before.switches.find(thread);
        const long long woke = count - (it == before.switches.end() ? 0 : it->second);
        if (woke > 0)
            std::fprintf(stderr, "    thread %s: %lld switches\n", thread.c_str(), woke);
        total += woke;
    }
    for (const auto &[thread, count] : before.switches)
        if (!after.switches.count(thread)) {
            std::fprintf(stderr, "    thread %s ended\n", thread.c_str());
            total += 1;
        }
    return total;
}

Activity activity(pid_t pid)
{
    Activity a;
    const std::string base = "/proc/" + std::to_string(pid);
    if (FILE *file = std::fopen((base + "/stat").c_str(), "r")) {
        char buffer[1024];
        const size_t n = std::fread(buffer, 1, sizeof buffer - 1, file);
        buffer[n] = 0;
        std::fclose(file);
        // Fields after the command name, which may hold spaces, start after its ')'.
        if (const char *p = std::strrchr(buffer, ')')) {
            unsigned long long utime = 0, stime = 0;
            std::sscanf(p + 2, "%*c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %llu %llu", &utime, &stime);
            a.ticks = (long long)(utime + stime);
        }
    }
    if (DIR *tasks = opendir((base + "/task").c_str())) {
        while (dirent *entry = readdir(tasks)) {
            if (entry->d_name[0] == '.')
                continue;
            FILE *file = std::fopen((base + "/task/" + entry->d_name + "/status").c_str(), "r");
            if (!file)
                continue;
            char line[256];
            long long value = 0;
            // Keyed "tid name", so a report can say which thread woke.
            std::string name;
            if (FILE *comm = std::fopen((base + "/task/" + entry->d_name + "/comm").c_str(), "r")) {
                if (std::fgets(line, sizeof line, comm))
                    name = std::string(line, std::strcspn(line, "\n"));
                std::fclose(comm);
            }
            long long &switches = a.switches[std::string(entry->d_name) + ' ' + name];
            while (std::fgets(line, sizeof line, file))
                if (std::sscanf(line, "voluntary_ctxt_switches: %lld", &value) == 1
                    || std::sscanf(line, "nonvoluntary_ctxt_switches: %lld", &value) == 1)
                    switches += value;
            std::fclose(file);
        }
        closedir(tasks);
    }
    return a;
}

// ---- The X server as another client sees it --------------------------------------------

constexpr uint32_t keyC = 0x63, keyV = 0x76, keyEscape = 0xff1b;

struct Window {
    xcb_window_t parent = 0;
    bool viewable = false;
    bool overrideRedirect = false;
    double mappedAt = 0;
};

class Observer {
public:
    Observer()
    {
        m_connection = xcb_connect(nullptr, nullptr);
        if (xcb_connection_has_error(m_connection))
            die("no X server on DISPLAY");
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_root = screen->root;
        width = screen->width_in_pixels;
        height = screen->height_in_pixels;
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
        m_wmPid = atom("_NET_WM_PID");
        m_wmProtocols = atom("WM_PROTOCOLS");
        m_wmDelete = atom("WM_DELETE_WINDOW");
        xcb_flush(m_connection);
    }
    ~Observer() { xcb_disconnect(m_connection); }

    int width = 0, height = 0;

    // Handles events until `done` holds or `timeoutMs` passes; true when it holds.
    bool waitUntil(const std::function<bool()> &done, double timeoutMs = 10000)
    {
        const double deadline = nowMs() + timeoutMs;
        for (;;) {
            while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection)) {
                handle(event, nowMs());
                std::free(event);
            }
            if (done())
                return true;
            // done() may make round trips, and xcb keeps the events that arrive with their
            // replies in its own queue, where poll() on the socket never sees them.
            if (xcb_generic_event_t *event = xcb_poll_for_queued_event(m_connection)) {
                handle(event, nowMs());
                std::free(event);
                continue;
            }
            const double left = deadline - nowMs();
            if (left <= 0)
                return false;
            pollfd fd { xcb_get_file_descriptor(m_connection), POLLIN, 0 };
            poll(&fd, 1, int(left) + 1);
        }
    }

    // Drains what has arrived, so that "the next map" means one after this moment.
    void settle()
    {
        waitUntil([] { return true; }, 0);
    }

    // The next window to become viewable (after `since`) that `accept` takes.
    std::optional<std::pair<xcb_window_t, double>> nextMapped(
        double since, const std::function<bool(xcb_window_t)> &accept, double timeoutMs = 10000)
    {
        std::optional<std::pair<xcb_window_t, double>> found;
        waitUntil(
            [&] {
                for (auto &[id, w] : m_windows)
                    if (w.viewable && w.mappedAt >= since && accept(id)
                        && (!found || w.mappedAt < found->second))
                        found = std::make_pair(id, w.mappedAt);
                return found.has_value();
            },
            timeoutMs);
        return found;
    }

    bool waitHidden(xcb_window_t window, double timeoutMs = 10000)
    {
        return waitUntil(
            [&] {
                auto it = m_windows.find(window);
                return it == m_windows.end() || !it->second.viewable;
            },
            timeoutMs);
    }

    // What the user aims with: the floor's full-screen freeze-frame, or Vantle's loupe window
    // (named "vantle-loupe"; the input-only window it sits on shows nothing and is not it).
    bool isLoupe(xcb_window_t window)
    {
        auto it = m_windows.find(window);
        if (it == m_windows.end() || !it->second.overrideRedirect)
            return false;
        if (className(window) == "vantle-loupe")
            return true;
        xcb_get_window_attributes_reply_t *a = xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr);
        const bool drawn = a && a->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
        std::free(a);
        return drawn && isFullScreen(window);
    }

    // Override-redirect windows as large as the screen: the floor's freeze-frame, Vantle's
    // input-only window while it picks.
    bool isFullScreenOverlay(xcb_window_t window)
    {
        auto it = m_windows.find(window);
        return it != m_windows.end() && it->second.overrideRedirect
            && (isFullScreen(window) || isLoupe(window));
    }

    bool isFullScreen(xcb_window_t window)
    {
        xcb_get_geometry_reply_t *g
            = xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr);
        const bool full = g && g->width >= width && g->height >= height;
        std::free(g);
        return full;
    }

    std::string className(xcb_window_t window)
    {
        xcb_get_property_reply_t *reply = xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 16), nullptr);
        std::string name;
        if (reply)
            name = std::string(static_cast<const char *>(xcb_get_property_value(reply)),
                strnlen(static_cast<const char *>(xcb_get_property_value(reply)),
                    size_t(xcb_get_property_value_length(reply))));
        std::free(reply);
        return name;
    }

    // A window of `pid` inside another program's window: a tray host's (window managers'
    // frames carry no WM_CLASS of their own; a tray host's windows do).
    bool isTrayIconOf(xcb_window_t window, pid_t pid)
    {
        auto it = m_windows.find(window);
        if (it == m_windows.end() || it->second.parent == m_root || ownerPid(window) != pid)
            return false;
        for (xcb_window_t at = window;;) {
            xcb_query_tree_reply_t *tree
                = xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, at), nullptr);
            if (!tree)
                return false;
            at = tree->parent;
            std::free(tree);
            if (at == m_root || at == XCB_NONE)
                return false;
            if (hasProperty(at, XCB_ATOM_WM_CLASS))
                return true;
        }
    }

    // Any other window of `pid` but the loupe: the welcome, the popup, a window-manager frame's client.
    bool isManagedWindowOf(xcb_window_t window, pid_t pid)
    {
        return m_windows.count(window) && ownerPid(window) == pid && !isFullScreenOverlay(window)
            && !isTrayIconOf(window, pid);
    }

    // Whether a window of `pid` other than the loupe was mapped at or after `since`, even one
    // that has come and gone already.
    bool mappedSince(pid_t pid, double since) const
    {
        for (const auto &[owner, at] : m_maps)
            if (owner == pid && at >= since)
                return true;
        return false;
    }

    std::vector<xcb_window_t> viewableWindowsOf(pid_t pid)
    {
        std::vector<xcb_window_t> result;
        for (auto &[id, w] : m_windows)
            if (w.viewable && isManagedWindowOf(id, pid))
                result.push_back(id);
        return result;
    }

    // Whether some client holds Alt+Shift+`keysym` as a shortcut: only one client may.
    bool isAltShiftGrabbed(uint32_t keysym)
    {
        const xcb_keycode_t key = keycode(keysym);
        xcb_generic_error_t *taken = xcb_request_check(m_connection,
            xcb_grab_key_checked(m_connection, 0, m_root, XCB_MOD_MASK_1 | XCB_MOD_MASK_SHIFT, key,
                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        const bool grabbed = taken != nullptr;
        std::free(taken);
        if (!grabbed)
            xcb_ungrab_key(m_connection, key, m_root, XCB_MOD_MASK_1 | XCB_MOD_MASK_SHIFT);
        xcb_flush(m_connection);
        return grabbed;
    }

    // What the desktop looks like when a step went wrong: who holds the keyboard and the
    // pointer (a grab that outlived its window loses every later shortcut), and what shows.
    std::string describe()
    {
        std::string text;
        xcb_grab_keyboard_reply_t *keyboard = xcb_grab_keyboard_reply(m_connection,
            xcb_grab_keyboard(
                m_connection, 0, m_root, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
            nullptr);
        text
            += keyboard && keyboard->status == XCB_GRAB_STATUS_SUCCESS ? "keyboard free" : "keyboard grabbed";
        std::free(keyboard);
        xcb_ungrab_keyboard(m_connection, XCB_CURRENT_TIME);
        xcb_grab_pointer_reply_t *pointer = xcb_grab_pointer_reply(m_connection,
            xcb_grab_pointer(m_connection, 0, m_root, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC, XCB_NONE,
                XCB_NONE, XCB_CURRENT_TIME),
            nullptr);
        text
            += pointer && pointer->status == XCB_GRAB_STATUS_SUCCESS ? ", pointer free" : ", pointer grabbed";
        std::free(pointer);
        xcb_ungrab_pointer(m_connection, XCB_CURRENT_TIME);
        text += isAltShiftGrabbed(keyC) ? ", Alt+Shift+C grabbed" : ", Alt+Shift+C not grabbed";
        for (auto &[id, w] : m_windows)
            if (w.viewable && w.parent == m_root)
                text += "; " + std::to_string(id) + " pid " + std::to_string(ownerPid(id)) + " \""
                    + className(id) + "\"" + (w.overrideRedirect ? " override-redirect" : "");
        return text;
    }

    // As a window manager's close button does.
    void askToClose(xcb_window_t window)
    {
        xcb_client_message_event_t message {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = m_wmProtocols;
        message.data.data32[0] = m_wmDelete;
        message.data.data32[1] = XCB_CURRENT_TIME;
        xcb_send_event(
            m_connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&message));
        xcb_flush(m_connection);
    }

    // ---- Input through XTEST, as from a keyboard and a mouse

    xcb_keycode_t keycode(uint32_t keysym)
    {
        const xcb_setup_t *setup = xcb_get_setup(m_connection);
        const int count = setup->max_keycode - setup->min_keycode + 1;
        xcb_get_keyboard_mapping_reply_t *mapping = xcb_get_keyboard_mapping_reply(m_connection,
            xcb_get_keyboard_mapping(m_connection, setup->min_keycode, uint8_t(count)), nullptr);
        xcb_keycode_t found = 0;
        if (mapping) {
            const xcb_keysym_t *syms = xcb_get_keyboard_mapping_keysyms(mapping);
            for (int i = 0; i < count && !found; ++i)
                if (syms[i * mapping->keysyms_per_keycode] == keysym)
                    found = xcb_keycode_t(setup->min_keycode + i);
            std::free(mapping);
        }
        if (!found)
            die("no key for keysym " + std::to_string(keysym));
        return found;
    }

    void fake(uint8_t type, uint8_t detail)
    {
        xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root, 0, 0, 0);
    }

    // Holds Alt and Shift, then presses `keysym`; returns the moment the key left for the server.
    double altShift(uint32_t keysym)
    {
        const xcb_keycode_t alt = keycode(0xffe9), shift = keycode(0xffe1), key = keycode(keysym);
        fake(XCB_KEY_PRESS, alt);
        fake(XCB_KEY_PRESS, shift);
        xcb_flush(m_connection);
        const double at = nowMs();
        fake(XCB_KEY_PRESS, key);
        fake(XCB_KEY_RELEASE, key);
        fake(XCB_KEY_RELEASE, shift);
        fake(XCB_KEY_RELEASE, alt);
        xcb_flush(m_connection);
        return at;
    }

    void tap(uint32_t keysym)
    {
        const xcb_keycode_t key = keycode(keysym);
        fake(XCB_KEY_PRESS, key);
        fake(XCB_KEY_RELEASE, key);
        xcb_flush(m_connection);
    }

    void click(int x, int y)
    {
        xcb_test_fake_input(
            m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_root, int16_t(x), int16_t(y), 0);
        fake(XCB_BUTTON_PRESS, 1);
        fake(XCB_BUTTON_RELEASE, 1);
        xcb_flush(m_connection);
    }

    void movePointer(int x, int y)
    {
        xcb_test_fake_input(
            m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_root, int16_t(x), int16_t(y), 0);
        xcb_flush(m_connection);
    }

private:
    xcb_atom_t atom(const char *name)
    {
        xcb_intern_atom_reply_t *reply = xcb_intern_atom_reply(
            m_connection, xcb_intern_atom(m_connection, 0, uint16_t(std::strlen(name)), name), nullptr);
        const xcb_atom_t a = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
        std::free(reply);
        return a;
    }

    bool hasProperty(xcb_window_t window, xcb_atom_t property)
    {
        xcb_get_property_reply_t *reply = xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 1), nullptr);
        const bool has = reply && reply->type != XCB_ATOM_NONE;
        std::free(reply);
        return has;
    }

    pid_t ownerPid(xcb_window_t window)
    {
        xcb_get_property_reply_t *reply = xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, window, m_wmPid, XCB_ATOM_CARDINAL, 0, 1), nullptr);
        pid_t pid = -1;
        if (reply && xcb_get_property_value_length(reply) == 4)
            pid = pid_t(*static_cast<uint32_t *>(xcb_get_property_value(reply)));
        std::free(reply);
        return pid;
    }

    // A window just made on the root: listen to it too, then catch up with what happened to it
    // before the server heard that (the tray may have taken and mapped it already).
    void track(xcb_window_t window, bool overrideRedirect, double at)
    {
        Window &w = m_windows[window];
        w.parent = m_root;
        w.overrideRedirect = overrideRedirect;
        const uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &mask);
        xcb_query_tree_reply_t *tree
            = xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr);
        xcb_get_window_attributes_reply_t *attributes = xcb_get_window_attributes_reply(
            m_connection, xcb_get_window_attributes(m_connection, window), nullptr);
        if (tree)
            w.parent = tree->parent;
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE && !w.viewable) {
            w.viewable = true;
            w.mappedAt = at;
            noteMap(window, at);
        }
        std::free(tree);
        std::free(attributes);
    }

    void noteMap(xcb_window_t window, double at)
    {
        if (!isFullScreenOverlay(window))
            m_maps.emplace_back(ownerPid(window), at);
    }

    void handle(xcb_generic_event_t *event, double at)
    {
        switch (event->response_type & ~0x80) {
        case XCB_CREATE_NOTIFY: {
            auto *e = reinterpret_cast<xcb_create_notify_event_t *>(event);
            if (e->parent == m_root && !m_windows.count(e->window))
                track(e->window, e->override_redirect, at);
            break;
        }
        case XCB_REPARENT_NOTIFY: {
            auto *e = reinterpret_cast<xcb_reparent_notify_event_t *>(event);
            if (m_windows.count(e->window))
                m_windows[e->window].parent = e->parent;
            break;
        }
        case XCB_MAP_NOTIFY: {
            auto *e = reinterpret_cast<xcb_map_notify_event_t *>(event);
            auto it = m_windows.find(e->window);
            if (it != m_windows.end() && !it->second.viewable) {
                it->second.viewable = true;
                it->second.mappedAt = at;
                it->second.overrideRedirect = e->override_redirect;
                noteMap(e->window, at);
            }
            break;
        }
        case XCB_UNMAP_NOTIFY: {
            auto *e = reinterpret_cast<xcb_unmap_notify_event_t *>(event);
            auto it = m_windows.find(e->window);
            if (it != m_windows.end())
                it->second.viewable = false;
            break;
        }
        case XCB_DESTROY_NOTIFY:
            m_windows.erase(reinterpret_cast<xcb_destroy_notify_event_t *>(event)->window);
            break;
        default:
            break;
        }
    }

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    xcb_atom_t m_wmPid, m_wmProtocols, m_wmDelete;
    std::map<xcb_window_t, Window> m_windows;
    std::vector<std::pair<pid_t, double>> m_maps; // every window mapped: owner, when
};

// ---- Figures -------------------------------------------------------------------------------

struct Figures {
    QString size;
    QFile file;

    void add(const QString &figure, const QString &program, const QString &unit,
        const std::vector<double> &samples)
    {
        QJsonArray values;
        for (double v : samples)
            values.append(v);
        const QJsonObject object { { QStringLiteral("figure"), figure },
            { QStringLiteral("program"), program }, { QStringLiteral("size"), size },
            { QStringLiteral("unit"), unit }, { QStringLiteral("samples"), values } };
        file.write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
        file.flush();
        std::fprintf(
            stderr, "  %s [%s] %zu samples\n", qPrintable(figure), qPrintable(program), samples.size());
    }
};

struct Options {
    std::string vantle, floorTray, floorOverlay;
    int runs = 10;
    int idleSeconds = 60;
    int picks = 100;
    int toggles = 20;
    QStringList only { QStringLiteral("start"), QStringLiteral("pick"), QStringLiteral("idle"),
        QStringLiteral("export") };
};

// A configuration folder for Vantle, welcome already seen unless `firstRun`.
QString prepareConfig(const QString &home, const QString &name, bool firstRun, const QByteArray &extra = {})
{
    const QString dir = home + QLatin1Char('/') + name;
    QDir().mkpath(dir + QStringLiteral("/Vantle"));
    QFile conf(dir + QStringLiteral("/Vantle/Vantle.conf"));
    if (!conf.open(QIODevice::WriteOnly | QIODevice::Truncate))
        die("cannot write a configuration");
    conf.write("[General]\n");
    if (!firstRun)
        conf.write("onboardingShown=true\n");
    conf.write(extra);
    return dir;
}

void useConfig(const QString &dir)
{
    setenv("XDG_CONFIG_HOME", qPrintable(dir), 1);
}

// Starts a tray program; the moment its icon is viewable inside the tray, in ms after the start.
double startDocked(Observer &x, const std::string &program, Child &child, std::vector<std::string> args = {})
{
    for (int attempt = 0; attempt < 3; ++attempt) {
        x.settle();
        args.insert(args.begin(), program);
        const double start = nowMs();
        child = spawn(args);
        const pid_t pid = child.pid;
        std::optional<std::pair<xcb_window_t, double>> icon;
        x.waitUntil([&] {
            icon = x.nextMapped(
                start, [&](xcb_window_t w) { return x.isTrayIconOf(w, pid); }, 0);
            return icon.has_value() || exited(pid);
        });
        if (icon)
            return icon->second - start;
        // A Vantle that found the previous one still on the bus hands over and ends: again.
        if (kill(pid, 0) == 0)
            stop(child);
        child = Child();
        args.erase(args.begin());
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    die(program + ": its tray icon never docked");
}

void sleepUntil(double at)
{
    const double left = at - nowMs();
    if (left > 0)
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(left));
}

// Trigger → loupe viewable, then Escape (or a click) and wait until it is gone.
double timeOverlay(
    Observer &x, const char *what, const std::function<double()> &trigger, bool pickByClick = false)
{
    x.settle();
    const double at = trigger();
    const auto shown = x.nextMapped(at, [&](xcb_window_t w) { return x.isLoupe(w); });
    if (!shown)
        die(std::string("no loupe came up after ") + what + " (" + x.describe() + ")");
    // The loupe takes the keyboard a moment after it shows: until then a key or a click may go
    // elsewhere, so both are repeated until it answers.
    bool hidden = false;
    for (int attempt = 0; attempt < 50 && !hidden; ++attempt) {
        if (pickByClick)
            x.click(x.width / 3, x.height / 3);
        else
            x.tap(keyEscape);
        hidden = x.waitHidden(shown->first, 200);
    }
    if (!hidden)
        die("the loupe " + std::to_string(shown->first) + " after " + what + " did not go away ("
            + x.describe() + ")");
    return shown->second - at;
}

// Start-up, memory after start and the first pick, for Vantle and the floors in turn.
void measureStart(Observer &x, const Options &o, const QString &home, Figures &out)
{
    const QString config = prepareConfig(home, QStringLiteral("start"), false);
    std::vector<double> vantleDock, floorDock, vantleRss, floorRss, vantleFirst, floorFirst, vantleAfterPicks;
    for (int run = 0; run < o.runs; ++run) {
        std::fprintf(stderr, "  start run %d/%d\n", run + 1, o.runs);
        Child child;
        useConfig(config);
        double start = nowMs();
        vantleDock.push_back(startDocked(x, o.vantle, child));
        sleepUntil(start + 2000);
        vantleRss.push_back(rssMiB(child.pid));
        vantleFirst.push_back(timeOverlay(x, "Vantle's first shortcut", [&] { return x.altShift(keyC); }));
        // What a resident Vantle keeps once it has been used: a few picks that copy, then
        // 15 s for the confirmations to go and anything temporary to be given back.
        if (run < 3) {
            for (int pick = 0; pick < 4; ++pick)
                timeOverlay(
                    x, "a shortcut that picks by click", [&] { return x.altShift(keyC); }, true);
            std::this_thread::sleep_for(std::chrono::seconds(15));
            vantleAfterPicks.push_back(rssMiB(child.pid));
        }
        stop(child);

        start = nowMs();
        floorDock.push_back(startDocked(x, o.floorTray, child));
        sleepUntil(start + 2000);
        floorRss.push_back(rssMiB(child.pid));
        stop(child);

        child = spawn({ o.floorOverlay }, true);
        if (!readLine(child, 10000))
            die("the floor overlay never became ready");
        floorFirst.push_back(timeOverlay(x, "the floor's first shortcut", [&] { return x.altShift(keyV); }));
        stop(child);
    }
    out.add(QStringLiteral("start_docked"), QStringLiteral("vantle"), QStringLiteral("ms"), vantleDock);
    out.add(QStringLiteral("start_docked"), QStringLiteral("floor"), QStringLiteral("ms"), floorDock);
    out.add(QStringLiteral("rss_start"), QStringLiteral("vantle"), QStringLiteral("MiB"), vantleRss);
    out.add(QStringLiteral("rss_start"), QStringLiteral("floor"), QStringLiteral("MiB"), floorRss);
    out.add(
        QStringLiteral("rss_after_picks"), QStringLiteral("vantle"), QStringLiteral("MiB"), vantleAfterPicks);
    out.add(QStringLiteral("rss_after_picks"), QStringLiteral("floor"), QStringLiteral("MiB"), floorRss);
    out.add(
        QStringLiteral("shortcut_loupe_first"), QStringLiteral("vantle"), QStringLiteral("ms"), vantleFirst);
    out.add(
        QStringLiteral("shortcut_loupe_first"), QStringLiteral("floor"), QStringLiteral("ms"), floorFirst);
}

// Steady picks by shortcut (Vantle and the floor overlay, one after the other) and by
// `vantle pick` from another process.
void measurePicks(Observer &x, const Options &o, const QString &home, Figures &out)
{
    useConfig(prepareConfig(home, QStringLiteral("picks"), false));
    Child vantle, floor;
    startDocked(x, o.vantle, vantle);
    // An icon on screen tells a person Vantle is ready: its shortcut answers from that moment,
    // also on a first start, when the default shortcut is set during the launch.
    if (!x.isAltShiftGrabbed(keyC))
        die("the tray icon docked before the pick shortcut was registered");
    floor = spawn({ o.floorOverlay }, true);
    if (!readLine(floor, 10000))
        die("the floor overlay never became ready");
    std::vector<double> vantleSteady, floorSteady, command;
    for (int run = 0; run <= o.runs; ++run) { // the first round is each one's first pick: not counted
        const double v = timeOverlay(x, "Vantle's shortcut", [&] { return x.altShift(keyC); });
        const double f = timeOverlay(x, "the floor's shortcut", [&] { return x.altShift(keyV); });
        double c = timeOverlay(x, "vantle pick", [&] {
            const double at = nowMs();
            Child request = spawn({ o.vantle, "pick" });
            waitExit(request.pid);
            return at;
        });
        if (run == 0)
            continue;
        vantleSteady.push_back(v);
        floorSteady.push_back(f);
        command.push_back(c);
    }
    stop(vantle);
    stop(floor);
    out.add(QStringLiteral("shortcut_loupe_steady"), QStringLiteral("vantle"), QStringLiteral("ms"),
        vantleSteady);
    out.add(
        QStringLiteral("shortcut_loupe_steady"), QStringLiteral("floor"), QStringLiteral("ms"), floorSteady);
    out.add(QStringLiteral("command_loupe"), QStringLiteral("vantle"), QStringLiteral("ms"), command);
}

// Opens the popup with `vantle toggle` and closes it again the same way.
void togglePopup(Observer &x, const Options &o, pid_t pid)
{
    // At a person's pace: a popup that just closed ignores a request that follows at once
    // (the click on the tray icon that closed it must not open it again).
    std::optional<std::pair<xcb_window_t, double>> popup;
    for (int attempt = 0; attempt < 3 && !popup; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        x.settle();
        const double at = nowMs();
        waitExit(spawn({ o.vantle, "toggle" }).pid);
        popup = x.nextMapped(
            at, [&](xcb_window_t w) { return x.isManagedWindowOf(w, pid); }, 3000);
    }
    if (!popup)
        die("vantle toggle brought no popup up");
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    waitExit(spawn({ o.vantle, "toggle" }).pid);
    if (!x.waitHidden(popup->first))
        die("vantle toggle did not close the popup");
}

// Idle cost in the tray right after start, after a pick and after the popup, the tray
// floor alongside; then the memory after many picks and popups.
void measureIdle(Observer &x, const Options &o, const QString &home, Figures &out)
{
    // A first run: the welcome window comes up and is closed as from its title bar.
    useConfig(prepareConfig(home, QStringLiteral("idle"), true));
    Child vantle, floor;
    startDocked(x, o.vantle, vantle);
    const pid_t pid = vantle.pid;
    std::vector<xcb_window_t> welcome;
    x.waitUntil([&] { return !(welcome = x.viewableWindowsOf(pid)).empty(); });
    for (xcb_window_t w : welcome) {
        x.askToClose(w);
        if (!x.waitHidden(w))
            die("the welcome window " + std::to_string(w) + " did not close");
    }
    startDocked(x, o.floorTray, floor);
    // The pointer rests where nothing of either program is.
    x.movePointer(x.width / 2, x.height / 2);

    auto idleWindow = [&](const QString &figure, bool withFloor) {
        // Idle means nothing of Vantle's on screen but the tray icon: the "Copied" confirmation
        // of a pick fades out by itself first.
        x.waitUntil([&] { return x.viewableWindowsOf(pid).empty(); });
        std::this_thread::sleep_for(std::chrono::milliseconds(500)); // what the last action started settles
        const Activity v0 = activity(pid), f0 = activity(floor.pid);
        std::this_thread::sleep_for(std::chrono::seconds(o.idleSeconds));
        const Activity v1 = activity(pid), f1 = activity(floor.pid);
        out.add(figure + QStringLiteral("_ticks"), QStringLiteral("vantle"), QStringLiteral("ticks"),
            { double(v1.ticks - v0.ticks) });
        out.add(figure + QStringLiteral("_switches"), QStringLiteral("vantle"), QStringLiteral("switches"),
            { double(switchesBetween(v0, v1)) });
        if (withFloor) {
            out.add(figure + QStringLiteral("_ticks"), QStringLiteral("floor"), QStringLiteral("ticks"),
                { double(f1.ticks - f0.ticks) });
            out.add(figure + QStringLiteral("_switches"), QStringLiteral("floor"), QStringLiteral("switches"),
                { double(switchesBetween(f0, f1)) });
        }
    };
    std::fprintf(stderr, "  idle after start (%d s)\n", o.idleSeconds);
    idleWindow(QStringLiteral("idle_after_start"), true);
    const double rssBefore = rssMiB(pid);

    const double pickedFrom = nowMs();
    timeOverlay(
        x, "a shortcut that picks by click", [&] { return x.altShift(keyC); }, true);
    x.movePointer(x.width / 2, x.height / 2);
    // The "Copied" confirmation comes up a moment after the loupe goes: the idle window starts
    // once it has come and gone, not in the moment between.
    if (!x.waitUntil([&] { return x.mappedSince(pid, pickedFrom); }, 10000))
        std::fprintf(stderr, "bench harness: no \"Copied\" confirmation seen after the pick\n");
    std::fprintf(stderr, "  idle after a pick (%d s)\n", o.idleSeconds);
    idleWindow(QStringLiteral("idle_after_pick"), false);

    togglePopup(x, o, pid);
    std::fprintf(stderr, "  idle after the popup (%d s)\n", o.idleSeconds);
    idleWindow(QStringLiteral("idle_after_popup"), false);
    // What the first pick and popup keep for the next ones is counted apart from any growth.
    const double rssAfterFirstUse = rssMiB(pid);

    std::fprintf(stderr, "  %d picks and %d popups\n", o.picks, o.toggles);
    for (int i = 0; i < o.picks; ++i)
        timeOverlay(
            x, "a shortcut that picks by click", [&] { return x.altShift(keyC); }, true);
    for (int i = 0; i < o.toggles; ++i)
        togglePopup(x, o, pid);
    std::this_thread::sleep_for(std::chrono::seconds(2));
    const double rssAfter = rssMiB(pid);
    out.add(QStringLiteral("rss_before_use"), QStringLiteral("vantle"), QStringLiteral("MiB"), { rssBefore });
    out.add(QStringLiteral("rss_after_use"), QStringLiteral("vantle"), QStringLiteral("MiB"), { rssAfter });
    out.add(QStringLiteral("rss_after_first_use"), QStringLiteral("vantle"), QStringLiteral("MiB"),
        { rssAfterFirstUse });
    out.add(QStringLiteral("rss_growth"), QStringLiteral("vantle"), QStringLiteral("MiB"),
        { rssAfter - rssBefore });
    out.add(QStringLiteral("rss_growth_after_first_use"), QStringLiteral("vantle"), QStringLiteral("MiB"),
        { rssAfter - rssAfterFirstUse });
    stop(vantle);
    stop(floor);
}

// `vantle export` of a history of 10,000 colours, from start to exit.
void measureExport(const Options &o, const QString &home, Figures &out)
{
    QList<PickedColor> colors;
    QRandomGenerator random(12);
    for (int i = 0; i < 10000; ++i) {
        PickedColor c = PickedColor::fromSample(
            random.generateDouble(), random.generateDouble(), random.generateDouble(), 1.0);
        if (i % 7 == 0)
            c.name = QStringLiteral("Colour %1").arg(i);
        c.isPinned = i % 50 == 0;
        colors.append(c);
    }
    const QString config = prepareConfig(home, QStringLiteral("export"), false);
    {
        SettingsStore store(config + QStringLiteral("/Vantle/Vantle.conf"));
        store.setInteger(PreferenceKeys::historyLimit, 10000);
        store.setData(PreferenceKeys::colorHistory, *encodeColorHistory(colors));
    }
    useConfig(config);
    std::vector<double> times;
    for (int run = 0; run <= o.runs; ++run) {
        const double at = nowMs();
        Child child = spawn({ o.vantle, "export" }, true);
        size_t lines = 0;
        char buffer[65536];
        ssize_t n;
        while ((n = read(child.out, buffer, sizeof buffer)) > 0)
            lines += size_t(std::count(buffer, buffer + n, '\n'));
        const int status = waitExit(child.pid);
        const double took = nowMs() - at;
        close(child.out);
        if (status != 0 || lines != 10000)
            die("vantle export gave " + std::to_string(lines) + " lines, status " + std::to_string(status));
        if (run > 0) // the first run brings the files into the cache
            times.push_back(took);
    }
    out.add(QStringLiteral("export_10000"), QStringLiteral("vantle"), QStringLiteral("ms"), times);
}

} // namespace

int main(int argc, char **argv)
{
    Options o;
    Figures out;
    QString outPath;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string flag = argv[i], value = argv[i + 1];
        if (flag == "--vantle")
            o.vantle = value;
        else if (flag == "--floor-tray")
            o.floorTray = value;
        else if (flag == "--floor-overlay")
            o.floorOverlay = value;
        else if (flag == "--out")
            outPath = QString::fromStdString(value);
        else if (flag == "--runs")
            o.runs = std::max(1, std::atoi(value.c_str()));
        else if (flag == "--idle")
            o.idleSeconds = std::max(0, std::atoi(value.c_str()));
        else if (flag == "--picks")
            o.picks = std::max(0, std::atoi(value.c_str()));
        else if (flag == "--toggles")
            o.toggles = std::max(0, std::atoi(value.c_str()));
        else if (flag == "--size")
            out.size = QString::fromStdString(value);
        else if (flag == "--only")
            o.only = QString::fromStdString(value).split(QLatin1Char(','));
        else
            die("unknown option " + flag);
    }
    if (o.vantle.empty() || o.floorTray.empty() || o.floorOverlay.empty() || outPath.isEmpty())
        die("usage: bench_harness --vantle PATH --floor-tray PATH --floor-overlay PATH --out FILE [--runs N] "
            "[--idle S] [--picks N] [--toggles N] [--size LABEL] [--only start,pick,idle,export]");
    out.file.setFileName(outPath);
    if (!out.file.open(QIODevice::WriteOnly | QIODevice::Append))
        die("cannot write " + outPath.toStdString());
    signal(SIGPIPE, SIG_IGN);

    QTemporaryDir home;
    Observer x;
    if (out.size.isEmpty())
        out.size = QStringLiteral("%1x%2").arg(x.width).arg(x.height);
    if (o.only.contains(QStringLiteral("start")))
        measureStart(x, o, home.path(), out);
    if (o.only.contains(QStringLiteral("pick")))
        measurePicks(x, o, home.path(), out);
    if (o.only.contains(QStringLiteral("idle")))
        measureIdle(x, o, home.path(), out);
    if (o.only.contains(QStringLiteral("export")))
        measureExport(o, home.path(), out);
    return 0;
}
