# SPDX-License-Identifier: GPL-3.0-or-later
"""The detail screen as a screen reader reads it: each format line a button named by its format
and text, in Tab order from the first; the contrast lines with the ratio said as a ratio; the
comparison with the colour picked before, its menu and swap button reached by Tab and every
result read again after a swap; the copy capsule heard as a notification without taking the
focus; Escape back to the row, then closing the popup."""
import json
import os
import sys
import time

sys.path.insert(0, os.path.join(os.environ.get("VANTLE_TESTS_DIR", "tests"), "desktop"))
from atspi import Session  # noqa: E402

SUNSET = {"id": "6f1c1a52-0d57-4f0e-9a7e-2b1d3c4e5f60", "red": 1, "green": 107 / 255, "blue": 54 / 255,
          "alpha": 1, "timestamp": 700000000, "isPinned": True, "name": "Sunset"}
INK = {"id": "0a1b2c3d-4e5f-4a6b-8c7d-9e0f1a2b3c4d", "red": 30 / 255, "green": 32 / 255, "blue": 36 / 255,
       "alpha": 1, "timestamp": 699999000, "isPinned": False}  # picked just before Sunset
ROW = "Sunset, #FF6B36, pinned"

LINES = [  # Tab order from the first line; "…" ends a prefix
    "Hex, #FF6B36",
    "Hex (lowercase), #ff6b36",
    "RGB, rgb(255, 107, 54)",
    "RGB (decimal), …",
    "HSL, hsl(…",
    "HSB/HSV, …",
    "SwiftUI Color, Color(red: 1.00…",
    "UIColor, UIColor(red: 1.00…",
    "CSS rgba, rgba(…",
]
TREE = [
    ("push button", "Back"),
    ("label", "Sunset"),
    ("heading", "Contrast Ratios"),
    ("label", "vs White, 2.8 to 1, Fail"),
    ("label", "vs Black, 7.4 to 1, AAA"),
    ("heading", "Text and Background"),
    ("combo box", "#1E2024"),  # named by its value, as every combo box
    ("push button", "Swap text and background"),
    ("label", "Contrast ratio 5.8 to 1"),
    ("label", "Normal text: AA, 5.8 to 1"),
    ("label", "Large text: AAA, 5.8 to 1"),
    ("label", "Non-text: Pass, 5.8 to 1"),
    ("label", "APCA: Lc 47.7, headlines"),
    *[("push button", line) for line in LINES],
]


def focus_line(s, line):
    if line.endswith("…"):
        return s.expect_focus(f"Tab reaches '{line}'", role="push button", prefix=line[:-1])
    return s.expect_focus(f"Tab reaches '{line}'", role="push button", name=line)


with Session(settings={"onboardingShown": "true"}, files={"colorHistory.json": json.dumps([SUNSET, INK])}) as s:
    time.sleep(2)
    s.key("alt+shift+x")
    s.wait(lambda: s.find(role="push button", name="Pick Color"), 10)
    s.key("Tab")
    s.expect_focus("Tab reaches the row", role="list item", name=ROW)
    s.key("Return")
    focus_line(s, LINES[0])
    s.expect_tree("detail", TREE)
    for line in LINES[1:]:
        s.key("Tab")
        focus_line(s, line)
    s.key("Tab")
    s.expect_focus("Tab from the last line to the compared colour", role="combo box", name="#1E2024")
    s.key("Tab")
    s.expect_focus("Tab to the swap", role="push button", name="Swap text and background")
    s.key("space")
    s.check("a swap reads the results again",
            bool(s.wait(lambda: s.find(role="label", name="APCA: Lc -46.2, headlines"), 3)), s.dump())
    s.key("Tab")
    s.expect_focus("Tab from the comparison to Back", role="push button", name="Back")
    s.key("Tab")
    focus_line(s, LINES[0])

    # A copy is heard as a notification; the focus stays on the line.
    s.key("Return")
    note = s.wait(lambda: s.find(role="notification", name="Copied #FF6B36"), 3)
    s.check("the copy capsule is heard", note is not None, s.dump())
    focus_line(s, LINES[0])

    s.key("Escape")
    s.expect_focus("Escape from the detail back to the row", role="list item", name=ROW)
    s.key("Escape")
    s.check("Escape closes the popup last",
            bool(s.wait(lambda: s.find(role="push button", name="Pick Color") is None, 3)), s.dump())
    s.finish()
