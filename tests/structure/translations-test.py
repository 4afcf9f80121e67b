#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
# Every shipped translation is complete: no unfinished or empty entry, each plural form filled,
# and every placeholder of the English text (%1, %n, `vantle` commands of the help) kept.
import re, sys, pathlib, xml.etree.ElementTree as ET

faults = []
files = sorted(pathlib.Path(sys.argv[1]).glob("vantle_*.ts"))
for ts in files:
    for context in ET.parse(ts).getroot():
        for message in context.iter("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            forms = [f.text or "" for f in translation.iter("numerusform")] or [translation.text or ""]
            where = f"{ts.name}: {source[:60]!r}"
            if translation.get("type") or not all(f.strip() for f in forms):
                faults.append(f"{where}: unfinished")
            wanted = sorted(set(re.findall(r"%\d|%n", source)))
            examples = sorted(re.findall(r"^ +vantle .*$", source, re.M))
            for form in forms:
                if sorted(set(re.findall(r"%\d|%n", form))) != wanted and not (
                        "%n" in wanted and len(forms) > 1):
                    faults.append(f"{where}: placeholders {wanted} become {form[:60]!r}")
                if sorted(re.findall(r"^ +vantle .*$", form, re.M)) != examples:
                    faults.append(f"{where}: the example commands changed")
print("\n".join(faults) or f"{len(files)} translations complete")
sys.exit(1 if faults or not files else 0)
