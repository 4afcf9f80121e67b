#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Every C++ file is laid out as .clang-format says, by the clang-format the test packages
# install (scripts/packages/test.txt), so a change shows only what it changes; and every file
# says its licence in its first lines.
#   format-test.sh SOURCE_DIR
set -euo pipefail
cd "${1:?}"
command -v clang-format >/dev/null || { echo "SKIP: clang-format is not installed" >&2; exit 77; }
files=$(find src tests bench -name '*.cpp' -o -name '*.h' | sort)
status=0
for file in $files $(find src tests bench scripts -name '*.sh' -o -name CMakeLists.txt); do
    [[ $(head -n 3 "$file") == *"SPDX-License-Identifier: GPL-3.0-or-later"* ]] \
        || { echo "no licence line: $file"; status=1; }
done
if ! out=$(clang-format --dry-run --Werror $files 2>&1); then
    echo "$out" | grep -E '(warning|error):' | cut -d: -f1 | sort -u | sed 's/^/not formatted: /'
    echo "run: clang-format -i \$(find src tests bench -name '*.cpp' -o -name '*.h')"
    exit 1
fi
((status == 0)) && echo "every file formatted and licensed"
exit $status
