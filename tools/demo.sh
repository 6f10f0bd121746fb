#!/bin/sh
# SPDX-License-Identifier: MIT
# Prints the picture of devsetup that the README shows: the addresses of its network page.
# usage: demo.sh KULSHOT DEVSETUP
set -eu
export LC_ALL=C.UTF-8
exec "$1" --size 72x20 --format svg --quiet 300 --keys "
    down enter tab enter down space tab enter
" -- "$2" /no/such/settings
