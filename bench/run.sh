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

# counted SCENE ELEMENTS KEYS TERM [EDITION [still]]: instructions of the whole run
counted() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$keys" "$@" 2>&1 |
        sed -n 's/.*Collected *: *//p'
}

# instructions SCENE ELEMENTS [TERM]: of one key
instructions() {
    echo $((($(counted "$1" "$2" 300 "${3:-linux}") - $(counted "$1" "$2" 0 "${3:-linux}")) / 300))
}

# on_three TEXT SCENE ELEMENTS: a row with those of three terminals
on_three() {
    row "$1" "$(instructions "$2" "$3" linux)" "$(instructions "$2" "$3" vt100)" \
        "$(instructions "$2" "$3" xterm-256color)"
}

# early SCENE ELEMENTS EDITION [still]: of one of the first keys, which do not go round a list
early() {
    scene=$1 n=$2
    shift 2
    echo $((($(counted "$scene" "$n" 8 linux "$@") - $(counted "$scene" "$n" 2 linux "$@")) / 6))
}

# adding SCENE ELEMENTS: instructions of one element
adding() {
    echo $((($(counted "$1" "$2" 0 linux) - $(counted "$1" 0 0 linux)) / $2))
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
row "Instructions of a key" linux vt100 xterm-256color
on_three "an arrow key in a check list of 10" checks 10
on_three "  Space" space 10
on_three "  with a callback that changes nothing" selects 10
on_three "  of 100, mean with scrolling" checks 100
on_three "an arrow key in an option list of 10" options 10
on_three "an arrow key in a dynamic menu of 10" menu 10
on_three "an arrow key in a menu of 3" bar 3
on_three "an arrow key in a description menu of 3" descriptions 3
on_three "a letter in a text box" text 20
on_three "a letter in a text box, edition 2" letters 20
on_three "focus to the next of 3 buttons" focus 3
on_three "an arrow key in a toolbar of 3" toolbar 3

echo
row "Instructions of a key, on linux" "" "" ""
row "focus, the same cells by curses alone" "$(instructions focus-plain 3)" "" ""
row "Enter that changes nothing, 3 buttons" "$(instructions button 3)" "" ""
row "Enter that changes nothing, 20 display items" "$(instructions items 20)" "" ""
row "  the same cells by curses alone, row by row" "$(instructions items-plain 20)" "" ""
row "a letter in a text box of 60,000, edition 2" "$(instructions letters 60000)" "" ""

echo
row "Instructions of a key in both editions" "edition 1" "edition 2" "cursor hidden"
for scene in text menu options checks space focus toolbar; do
    n=10
    case $scene in focus | toolbar) n=3 ;; esac
    row "$scene" "$(early $scene $n 1)" "$(early $scene $n 2)" "$(early $scene $n 2 still)"
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
