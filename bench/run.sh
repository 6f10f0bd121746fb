#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints what a key costs: bytes on the line, instructions, time.
# usage: run.sh BUILD
set -eu
bench=$1/bench
keys=$bench/kulgui_keys
export LC_ALL=C

# bytes SCENE ELEMENTS TERM: of one key
bytes() {
    none=$("$keys" "$1" "$2" 0 "$3")
    some=$("$keys" "$1" "$2" 300 "$3")
    echo $(((some - none) / 300))
}

# counted SCENE ELEMENTS KEYS [EDITION]: instructions of the whole run
counted() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$keys" "$1" "$2" "$3" linux "${4:-1}" 2>&1 |
        sed -n 's/.*Collected *: *//p'
}

# instructions SCENE ELEMENTS: of one key
instructions() {
    echo $((($(counted "$1" "$2" 300) - $(counted "$1" "$2" 0)) / 300))
}

# early SCENE ELEMENTS EDITION: of one of the first keys, which do not go round a list
early() {
    echo $((($(counted "$1" "$2" 8 "$3") - $(counted "$1" "$2" 2 "$3")) / 6))
}

# adding SCENE ELEMENTS: instructions of one element
adding() {
    echo $((($(counted "$1" "$2" 0) - $(counted "$1" 0 0)) / $2))
}

row() {
    printf '%-48s %12s %12s %12s\n' "$@"
}

row "Bytes of a key, dialog of 40 by 14" linux vt100 xterm-256color
for scene in focus focus-plain button items text letters checks options menu checks-long; do
    case $scene in
    focus) text="focus to the next of 3 buttons" n=3 ;;
    focus-plain) text="  the same cells by curses alone" n=3 ;;
    button) text="Enter that changes nothing" n=3 ;;
    items) text="Enter that changes nothing, 20 display items" n=20 ;;
    text) text="a letter in a text box" n=20 ;;
    letters) text="a letter in a text box, edition 2" n=20 ;;
    checks) text="an arrow key in a check list of 10" n=10 ;;
    options) text="an arrow key in an option list of 10" n=10 ;;
    menu) text="an arrow key in a dynamic menu of 10" n=10 ;;
    checks-long) text="an arrow key in a check list of 100" n=100 scene=checks ;;
    esac
    row "$text" "$(bytes $scene $n linux)" "$(bytes $scene $n vt100)" "$(bytes $scene $n xterm-256color)"
done

# resizing TERM: bytes of the change
resizing() {
    echo $(($("$keys" sizes 10 1 "$1") - $("$keys" sizes 10 0 "$1")))
}
row "The screen from 80 by 24 to 60 by 18, a list of 10" "$(resizing linux)" "$(resizing vt100)" "$(resizing xterm-256color)"

echo
row "Instructions of a key, on linux" "" "" ""
row "focus to the next of 3 buttons" "$(instructions focus 3)" "" ""
row "  the same cells by curses alone" "$(instructions focus-plain 3)" "" ""
row "Enter that changes nothing, 3 buttons" "$(instructions button 3)" "" ""
row "Enter that changes nothing, 20 display items" "$(instructions items 20)" "" ""
row "  the same cells by curses alone, row by row" "$(instructions items-plain 20)" "" ""
row "a letter in a text box" "$(instructions text 20)" "" ""
row "an arrow key in a check list of 10" "$(instructions checks 10)" "" ""
row "an arrow key in an option list of 10" "$(instructions options 10)" "" ""
row "an arrow key in a dynamic menu of 10" "$(instructions menu 10)" "" ""
row "a letter in a text box, edition 2" "$(instructions letters 20)" "" ""
row "  one of 60,000" "$(instructions letters 60000)" "" ""

echo
row "Instructions of a key in both editions" "edition 1" "edition 2" ""
for scene in text menu options checks; do
    row "$scene" "$(early $scene 10 1)" "$(early $scene 10 2)" ""
done

echo
row "Instructions in a list" "100" "1,000" "10,000"
for scene in menu checks options; do
    row "$scene: one key (Down)" "$(instructions $scene 100)" "" "$(instructions $scene 10000)"
    row "$scene: adding one element" "" "$(adding $scene 1000)" "$(adding $scene 10000)"
done
row "fields, and descriptions: adding one each" "" "$(adding fields 1000)" "$(adding fields 10000)"

echo
row "Instructions to draw English texts" "by bytes" "by columns" ""
row "labels, lists, fields, a button, a wrapped text" "$(instructions texts 9)" "$(instructions texts-columns 9)" ""

for program in "$bench"/*_bench; do
    echo
    "$program" 2>/dev/null
done
