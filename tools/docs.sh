#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes the manual pages of the calls and the reference in HTML, and has every page formatted once.
# usage: docs.sh FOLDER
set -eu
folder=$1
cmake -S . -B "$folder" -G Ninja -DKULGUI_BUILD_DOCS=ON -DKULGUI_BUILD_TESTS=OFF \
    -DKULGUI_BUILD_EXAMPLES=OFF -DKULGUI_BUILD_BENCH=OFF >/dev/null
ninja -C "$folder" --quiet kulgui_docs
made=$folder/docs/reference
pages=$(find "$made/man3" . -path ./build -prune -o -name '*.[137]' -print)
# Those that are another name of a page are that page.
# shellcheck disable=SC2046,SC2086
said=$(groff -k -Tutf8 -man -ww -z $(grep -L '^\.so ' $pages) 2>&1)
[ -z "$said" ] || {
    echo "$said" >&2
    exit 1
}
for page in $pages; do
    [ -s "$page" ] || {
        echo "$page is empty" >&2
        exit 1
    }
done
echo "$(echo "$pages" | wc -w) manual pages, for example: man $made/man3/kulmenu.3"
echo "the reference: $made/html/index.html"
