# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads Vantle as a screen reader does: the accessibility bus of the private X desktop of
x11-session.sh, Vantle's tree in the AT-SPI registry, the focused object after real key presses.

    with Session() as s:  # the accessibility bus and Vantle with a new profile
        s.key("alt+shift+x")
        s.expect_focus("focus starts on Pick Color", role="push button", name="Pick Color")
        s.finish()  # exits 1 listing every failed check; 77 when the bus or pyatspi is missing
"""
import os, shutil, subprocess, sys, tempfile, time

try:
    import pyatspi
except ImportError:
    print("SKIP: python3-pyatspi is not installed", file=sys.stderr)
    sys.exit(77)

BUS_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


def describe(acc):
    try:
        return f"{acc.getRoleName()} '{acc.name}'"
    except Exception:  # gone while we looked
        return "<gone>"


def matches(acc, role, name):
    """A name ending in "…" is a prefix."""
    try:
        prefix = name[:-1] if name and name.endswith("…") and len(name) > 1 else None
        return ((not role or acc.getRoleName() == role)
                and ((acc.name or "").startswith(prefix) if prefix else name is None or acc.name == name))
    except Exception:  # gone while we looked
        return False


class Session:
    def __init__(self, files=None):
        """files: {path under the config folder Vantle/: text}, e.g. a seeded history."""
        self.files, self.failures, self.procs = files or {}, [], []

    def __enter__(self):
        if not os.path.exists(BUS_LAUNCHER) or not shutil.which("xdotool"):
            print("SKIP: at-spi2-core or xdotool is missing", file=sys.stderr)
            sys.exit(77)
        self.home = tempfile.mkdtemp()
        env = {key: value for key, value in os.environ.items() if key != "NO_AT_BRIDGE"}
        env.update(HOME=self.home, XDG_CONFIG_HOME=f"{self.home}/config",
                   XDG_DATA_HOME=f"{self.home}/data", XDG_RUNTIME_DIR=f"{self.home}/run",
                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
        os.makedirs(f"{self.home}/run", mode=0o700)
        os.makedirs(f"{self.home}/config/Vantle")
        for name, text in self.files.items():
            open(f"{self.home}/config/Vantle/{name}", "w").write(text)
        self.procs.append(subprocess.Popen([BUS_LAUNCHER, "--launch-immediately"], env=env,
                                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        # Vantle looks for the accessibility bus as it starts: the launcher owns it first.
        owner = ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
                 "org.freedesktop.DBus.NameHasOwner", "string:org.a11y.Bus"]
        self.wait(lambda: b"true" in subprocess.run(owner, capture_output=True, env=env).stdout, 10)
        self.vantle = subprocess.Popen([os.environ["VANTLE_BIN"]], env=env)
        self.procs.append(self.vantle)
        if not self.wait(self.app, 20):
            self.fail("Vantle never joined the accessibility registry")
            self.finish()
        return self

    def __exit__(self, kind, value, tb):
        self.finish() if kind is None else self.stop()

    def stop(self):
        for proc in reversed(self.procs):
            proc.kill()
            proc.wait()
        self.procs = []
        shutil.rmtree(self.home, ignore_errors=True)

    def finish(self):
        """Exits 1 listing every failed check, else 0."""
        for failure in self.failures:
            print(f"FAIL: {failure}", file=sys.stderr)
        self.stop()
        sys.exit(1 if self.failures else 0)

    def key(self, *keys):
        """Each key held 80 ms, as a hand holds it; then a moment for the tree to follow."""
        for k in keys:
            subprocess.run(["xdotool", "key", "--delay", "80", k], check=True)
            time.sleep(0.15)

    def pointer(self, from_right, y, *then):
        """Moves the pointer to from_right pixels left of the screen's right edge; then e.g. "click", "1"."""
        width = subprocess.run(["xdotool", "getdisplaygeometry"], capture_output=True, text=True).stdout.split()[0]
        subprocess.run(["xdotool", "mousemove", str(int(width) - from_right), str(y), *then], check=True)

    def app(self):
        desktop = pyatspi.Registry.getDesktop(0)
        for child in (desktop.getChildAtIndex(i) for i in range(desktop.childCount)):
            try:
                if child is not None and child.get_process_id() == self.vantle.pid:
                    return child
            except Exception:
                continue

    def walk(self, root=None, depth=False):
        """Every showing object under Vantle's windows, depth first; with depth, (object, depth)."""
        stack = [(root or self.app(), 0)]
        while stack and stack[-1][0] is not None:
            acc, level = stack.pop()
            try:
                if level and acc.getRole() != pyatspi.ROLE_APPLICATION:
                    if not acc.getState().contains(pyatspi.STATE_SHOWING):
                        continue
                    yield (acc, level) if depth else acc
                stack.extend(reversed([(acc.getChildAtIndex(i), level + 1) for i in range(acc.childCount)]))
            except Exception:
                continue

    def find(self, role=None, name=None, prefix=None):
        return next((acc for acc in self.walk() if matches(acc, role, name if prefix is None else prefix + "…")),
                    None)

    def focused(self):
        """While a menu is open the widget it opened from still reads as focused (Qt keeps it as
        the window's focus), but the keys go to the menu's entry."""
        found = None
        for acc in self.walk():
            try:
                if acc.getState().contains(pyatspi.STATE_FOCUSED):
                    if acc.getRole() == pyatspi.ROLE_MENU_ITEM:
                        return acc
                    found = found or acc
            except Exception:
                continue
        return found

    def actions(self, acc):
        try:
            action = acc.queryAction()
            return [action.getName(i) for i in range(action.nActions)]
        except NotImplementedError:
            return []

    def dump(self):
        """The tree as indented lines, for a failure message."""
        return "\n".join("  " * level + describe(acc) for acc, level in self.walk(depth=True))

    def wait(self, predicate, timeout=5.0):
        deadline = time.monotonic() + timeout
        while True:
            try:
                result = predicate()
            except Exception:
                result = None
            if result or time.monotonic() > deadline:
                return result
            time.sleep(0.1)

    def fail(self, message):
        self.failures.append(message)

    def check(self, label, ok, detail=""):
        if not ok:
            self.fail(f"{label}{': ' + detail if detail else ''}")
        return ok

    def expect_focus(self, label, name=None, role=None, timeout=3.0):
        """After a key: the focused object is the one named."""
        if self.wait(lambda: matches(self.focused(), role, name), timeout):
            return True
        acc = self.focused()
        self.fail(f"{label}: focus on {describe(acc) if acc else 'nothing'}, expected {role or 'any role'} '{name}'")
        return False

    def expect_tree(self, label, table):
        """table: (role, name) rows; each must be showing."""
        for role, name in table:
            if self.wait(lambda: self.find(role, name), 2) is None:
                self.fail(f"{label}: no {role} '{name}' in\n{self.dump()}")
