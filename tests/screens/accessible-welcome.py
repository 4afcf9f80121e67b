# SPDX-License-Identifier: GPL-3.0-or-later
"""The welcome window as a screen reader reads it: each screen's texts and its one button, named
and focused, pressed from the keyboard; the last press closes the window and records the welcome."""
import os
import sys
import time

sys.path.insert(0, os.path.join(os.environ.get("VANTLE_TESTS_DIR", "tests"), "desktop"))
from atspi import Session  # noqa: E402

SCREENS = [  # (what is read, the button that Return presses there)
    ([("label", "Welcome to vantle"),
      ("label", "Pick any color from anywhere on your screen with one click."),
      ("label", "The color value is copied to your clipboard instantly in your preferred format."),
      ("label", "Pin your favorite colors and build a palette you can export anytime."),
      ("push button", "Close")], "Get Started"),
    ([("label", "You're all set."),
      ("label", "Look for the eyedropper icon in your system tray.")], "Start Using vantle"),
]

with Session() as s:
    s.check("announced as a window", s.wait(lambda: s.find(role="frame", name="Welcome to vantle"), 10), s.dump())
    for table, button in SCREENS:
        s.expect_tree(button, table + [("push button", button)])
        s.expect_focus(f"focus on {button}", role="push button", name=button)
        actions = s.actions(s.find(role="push button", name=button))
        s.check(f"{button} has a press action", "Press" in actions, str(actions))
        time.sleep(2.5)  # the button enters last; Return presses it once it is there
        s.key("Return")
    s.check("the welcome window closes",
            bool(s.wait(lambda: s.find(role="push button", name="Start Using vantle") is None, 5)))
    s.finish()
