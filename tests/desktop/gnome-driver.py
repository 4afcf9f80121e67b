#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
# A person at the GNOME desktop of gnome-session.sh (verbs: tests/platform/desktop-checks.sh): input
# through mutter's RemoteDesktop API, screen and windows through the shell. `serve SOCKET` holds
# the one input session the seat's virtual devices belong to; every other verb is its client.
import json, os, socket, sys, time

KEYSYMS = {"alt": 0xFFE9, "shift": 0xFFE1, "ctrl": 0xFFE3, "super": 0xFFEB, "escape": 0xFF1B, "return": 0xFF0D}
# X key codes of the US layout's letters and the X modifier masks, to ask the shell for a binding.
ROWS, MASKS = {"qwertyuiop": 24, "asdfghjkl": 38, "zxcvbnm": 52}, {"shift": 1, "ctrl": 4, "alt": 8, "super": 64}
WINDOW = "(w => { const r = w.get_frame_rect(); return [r.x, r.y, r.width, r.height, w.skip_taskbar, w.get_wm_class(), w.get_title()].join(' '); })"
SCRIPTS = {  # verb: the shell's answer, in JavaScript; a verb whose answer is "false" fails
    "focused": "(w => w ? %s(w) : '')(global.display.focus_window)" % WINDOW,
    "windows": "global.get_window_actors().map(a => a.meta_window).filter(w => w.showing_on_its_workspace())"
               ".map(%s).join('\\n')" % WINDOW,
    # The icons the AppIndicator extension shows on the top bar.
    "tray-icons": "Object.entries(Main.panel.statusArea).filter(([k]) => k.startsWith('appindicator'))"
                  ".map(([, a]) => [...a.get_transformed_position(), a.width, a.height].map(Math.round).join(' ')).join('\\n')",
    "picker-shown": "Main.uiGroup.get_children().some(a => a.constructor.name === 'PickPixel' && a.visible)",
}


def serve(path):
    import dbus
    from dbus.mainloop.glib import DBusGMainLoop
    from gi.repository import GLib

    DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    obj = lambda name, path, iface=None: dbus.Interface(bus.get_object(name, path), iface or name)
    rd, sc = "org.gnome.Mutter.RemoteDesktop", "org.gnome.Mutter.ScreenCast"
    remote = obj(rd, obj(rd, "/org/gnome/Mutter/RemoteDesktop").CreateSession(), rd + ".Session")
    remote_id = remote.get_dbus_method("Get", "org.freedesktop.DBus.Properties")(rd + ".Session", "SessionId")
    cast = obj(sc, obj(sc, "/org/gnome/Mutter/ScreenCast").CreateSession({"remote-desktop-session-id": remote_id}),
               sc + ".Session")
    stream = cast.RecordMonitor("Meta-0", dbus.Dictionary({}, signature="sv"))
    shell = obj("org.gnome.Shell", "/org/gnome/Shell")
    shot = obj("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot")

    def evaluate(code):
        ok, result = shell.Eval(code)
        assert ok and result != "false", result
        return json.loads(result) if result.startswith('"') else str(result)

    def press(notify, codes):  # down in order, held as a hand holds them, up in reverse
        for code in codes:
            notify(code, True)
            time.sleep(0.03)
        for code in reversed(codes):
            notify(code, False)

    def bound(combo):
        *mods, key = combo.lower().split("+")
        code = next(start + row.index(key) for row, start in ROWS.items() if key in row)
        return evaluate("global.display.get_keybinding_action(%d, %d) || false" % (code, sum(MASKS[m] for m in mods)))

    verbs = {
        "key": lambda combo: press(lambda k, down: remote.NotifyKeyboardKeysym(dbus.UInt32(k), down),
                                   [KEYSYMS.get(k.lower()) or ord(k.lower()) for k in combo.split("+")]),
        "move": lambda x, y: remote.NotifyPointerMotionAbsolute(stream, float(x), float(y)),
        # The shell's picker answers for where the pointer is some 50 ms after it moved.
        "click": lambda: time.sleep(0.05) or press(remote.NotifyPointerButton, [272]),
        "screenshot": lambda file: shot.Screenshot(False, False, os.path.abspath(file))[0] or 1 / 0,
        "shortcut-bound": bound,
        "background": lambda color: obj("org.vantle.PasteTarget", "/").SetColor(color),  # it fills the screen
        "eval": evaluate,
        **{verb: lambda script=script: evaluate(script) for verb, script in SCRIPTS.items()},
    }

    def answer(server, *_):
        client, _ = server.accept()
        with client:
            args = json.loads(client.makefile().readline())
            try:
                out = verbs[args[0]](*args[1:])
                reply = {"ok": True, "out": out if isinstance(out, str) else ""}
            except Exception as error:  # the client reports it and fails
                reply = {"ok": False, "out": "%s: %s" % (type(error).__name__, error)}
            client.sendall((json.dumps(reply) + "\n").encode())
        return True

    def listen(_node):  # absolute motion needs the stream running: listen once pipewire has it
        server = socket.socket(socket.AF_UNIX)
        server.bind(path + ".new")
        server.listen(4)
        os.rename(path + ".new", path)
        GLib.io_add_watch(server.fileno(), GLib.IO_IN, lambda *_: answer(server))

    bus.add_signal_receiver(listen, "PipeWireStreamAdded", sc + ".Stream", path=stream)
    remote.Start()
    GLib.MainLoop().run()


if sys.argv[1] == "serve":
    serve(sys.argv[2])
if sys.argv[1] == "paste-target":
    os.execv(os.path.join(os.path.dirname(os.path.abspath(__file__)), "paste-target.py"), sys.argv[1:])
with socket.socket(socket.AF_UNIX) as client:
    client.connect(os.environ["GNOME_DRIVER_SOCKET"])
    client.sendall((json.dumps(sys.argv[1:]) + "\n").encode())
    reply = json.loads(client.makefile().readline())
print(reply["out"]) if reply["out"] else None
sys.exit(0 if reply["ok"] else 1)
