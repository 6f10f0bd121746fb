#!/bin/sh
# SPDX-License-Identifier: MIT
# A short tour of the demonstration without a terminal: kulshot types and prints the screens.
# tour.sh KULSHOT DEMO
set -eu
export LC_ALL=C.UTF-8
exec "$1" --size 80x24 --term xterm-256color --format text --keys "
    shot:The_menu_of_pages
    enter shot:Facts_of_this_machine tab tab enter shot:Enter_shows_another_form_of_one
    esc
    down enter enter shot:Items_that_show right enter
    down enter down down space shot:A_time_zone_is_chosen tab enter
    down enter shot:Network_interfaces tab enter
    down enter end '-lab' tab 'secret' shot:Boxes_for_text tab enter
    down enter down down space shot:The_same_in_another_language tab tab enter
    down enter end shot:The_end_of_a_log_file
" -- "$2"
