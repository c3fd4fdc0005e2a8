#!/bin/sh
# Copies the texts that differed from their golden files over them, for review with git diff.
# Usage: tools/accept_goldens.sh FOLDER, the folder in which the test program ran (it holds golden_out).
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$1/golden_out"
find . -name '*.out' -type f | while read -r file; do
    golden="$root/tests/data/output/${file%.out}"
    mkdir -p "$(dirname "$golden")"
    cp "$file" "$golden"
    rm "$file"
    echo "accepted ${file%.out}"
done
