#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes a source archive of the commit that is checked out and fills the recipes for Buildroot,
# OpenWrt and Yocto in. Then builds as these systems do: by their own recipe, with the variables
# that they hand to cmake and stand-ins for their other files, for a machine of 32 bits.
# usage: recipes.sh FOLDER ADDRESS
set -eu
umask 022
rm -rf "$1"
mkdir -p "$1/check"
folder=$(cd "$1" && pwd) address=$2
check=$folder/check
triplet=arm-linux-gnueabihf
fail() {
    echo "$*" >&2
    exit 1
}

# The archive, and the recipes with what is known of it.
version=$(sed -n 's/^#define KULGUI_VERSION "\(.*\)"/\1/p' kulplatform/kulgui/kulgui.h)
archive=$folder/kulgui-$version.tar.gz
git archive --format=tar.gz --prefix="kulgui-$version/" -o "$archive" HEAD
sum() {
    "$1" <"$2" | cut -d' ' -f1
}
cp -r packaging/buildroot packaging/openwrt packaging/yocto "$folder"
find "$folder" -name '*@VERSION@*' | while read -r file; do
    mv "$file" "$(echo "$file" | sed "s/@VERSION@/$version/")"
done
find "$folder/buildroot" "$folder/openwrt" "$folder/yocto" -type f -exec sed -i \
    -e "s|@VERSION@|$version|" -e "s|@ADDRESS@|$address|" \
    -e "s|@SHA256@|$(sum sha256sum "$archive")|" \
    -e "s|@LICENSE_SHA256@|$(sum sha256sum LICENSE)|" \
    -e "s|@LICENSE_MD5@|$(sum md5sum LICENSE)|" {} +
! grep -rn '@[A-Z0-9_]*@' "$folder/buildroot" "$folder/openwrt" "$folder/yocto" >&2 ||
    fail "A pattern has a name that is not known."
tar -xf "$archive" -C "$check"
source=$check/kulgui-$version

# What these systems would have built before: ncurses, wide and narrow.
for kind in wide narrow; do
    option=--enable-widec
    [ $kind = wide ] || option=--disable-widec
    sh tools/ncurses.sh "build/cross/$triplet/$kind/usr" $option --host=$triplet
done

# build NAME KIND OPTIONS: configures, builds and installs into check/NAME/usr, with curses of a kind
build() {
    name=$1 root=$PWD/build/cross/$triplet/$2
    shift 2
    cat >"$check/$name.cmake" <<TEXT
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER $triplet-gcc)
set(CMAKE_CXX_COMPILER $triplet-g++)
set(CMAKE_FIND_ROOT_PATH $root)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM BOTH)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
TEXT
    cmake -S "$source" -B "$check/build-$name" -G "Unix Makefiles" \
        -DCMAKE_TOOLCHAIN_FILE="$check/$name.cmake" -DCMAKE_INSTALL_PREFIX=/usr "$@" >&2
    make -s -j"$(getconf _NPROCESSORS_ONLN)" -C "$check/build-$name" >&2
    make -s -C "$check/build-$name" install DESTDIR="$check/$name" >/dev/null
    for unwanted in tests examples bench tools; do
        [ ! -e "$check/build-$name/$unwanted/Makefile" ] || fail "$name: builds its $unwanted"
    done
    links "$name" "$root"
}

# links NAME ROOT: hello can be built against what was installed, for that machine
links() {
    static=--static
    [ -f "$check/$1/usr/lib/libkulgui.a" ] || static=
    # shellcheck disable=SC2046
    PKG_CONFIG_LIBDIR=$check/$1/usr/lib/pkgconfig PKG_CONFIG_SYSROOT_DIR=$check/$1 \
        sh -c "$triplet-gcc \$(pkg-config --cflags kulgui) -I$2/usr/include examples/hello.c \
            -o $check/$1/hello -L$2/usr/lib -Wl,-rpath-link,$2/usr/lib ${static:+-static} \
            \$(pkg-config $static --libs kulgui)" || fail "$1: hello cannot be built"
    readelf -h "$check/$1/hello" | grep -q 'Machine:.*ARM' || fail "$1: hello is for this machine"
}

# Buildroot. The options as the kernel's own parser reads them, then the recipe, as make reads it.
options() {
    cat >"$check/Kconfig" <<TEXT
$(for name in USE_MMU INSTALL_LIBSTDCPP TOOLCHAIN_GCC_AT_LEAST_11; do
        printf 'config BR2_%s\n\tbool "%s"\n' $name $name
    done)
config BR2_PACKAGE_NCURSES
	bool
config BR2_PACKAGE_NCURSES_TARGET_PANEL
	bool
source "$folder/buildroot/package/kulgui/Config.in"
TEXT
    printf 'BR2_%s=y\n' "$@" PACKAGE_KULGUI >"$check/.config"
    (cd "$check" && CONFIG_="" kconfig-conf --olddefconfig Kconfig >/dev/null) || fail "Config.in is wrong"
    cat "$check/.config"
}
options USE_MMU INSTALL_LIBSTDCPP TOOLCHAIN_GCC_AT_LEAST_11 |
    grep -c -e PACKAGE_KULGUI=y -e NCURSES=y -e NCURSES_TARGET_PANEL=y | grep -qx 3 ||
    fail "kulgui does not select what it needs"
options USE_MMU TOOLCHAIN_GCC_AT_LEAST_11 | grep -q PACKAGE_KULGUI=y &&
    fail "kulgui can be had without a C++ compiler"

# buildroot NAME KIND SETTINGS FOR THE RECIPE
buildroot() {
    name=$1 kind=$2
    shift 2
    # shellcheck disable=SC2016
    printf '%s\n' 'BR2_EXTERNAL_KULGUI_PATH = $(FOLDER)' \
        'define cmake-package' '$(info $(KULGUI_CONF_OPTS))' 'endef' \
        'include $(FOLDER)/external.mk' 'all:;@:' >"$check/buildroot.mk"
    # shellcheck disable=SC2046
    build "$name" "$kind" -DCMAKE_COLOR_MAKEFILE=OFF -DBUILD_TESTING=OFF \
        -DBUILD_SHARED_LIBS="$([ "$name" = buildroot-static ] && echo OFF || echo ON)" \
        $(make -s -f "$check/buildroot.mk" FOLDER="$folder/buildroot" "$@")
}
buildroot buildroot wide BR2_PACKAGE_NCURSES_WCHAR=y BR2_PACKAGE_KULGUI_KULDIALOG=y
buildroot buildroot-static narrow

# OpenWrt, whose recipe also says which files go into the packages.
mkdir -p "$check/openwrt-top"
touch "$check/openwrt-top/rules.mk" "$check/openwrt-top/package.mk"
# shellcheck disable=SC2016
printf '%s\n' 'define BuildPackage' 'all: install-$(1)' 'install-$(1):' \
    '	$(call Package/$(1)/install,$(PACKAGES)/$(1))' 'endef' \
    'options:;@echo $(CMAKE_OPTIONS)' >"$check/openwrt-top/cmake.mk"
openwrt() {
    make -s -f "$folder/openwrt/kulgui/Makefile" TOPDIR="$check/openwrt-top" \
        INCLUDE_DIR="$check/openwrt-top" PKG_INSTALL_DIR="$check/openwrt" \
        PACKAGES="$check/openwrt-packages" INSTALL_DIR="install -d -m0755" \
        INSTALL_BIN="install -m0755" CP="cp -fpR" "$@"
}
# shellcheck disable=SC2046
build openwrt wide -DCMAKE_SKIP_RPATH=TRUE -DCMAKE_EXPORT_PACKAGE_REGISTRY=FALSE \
    $(openwrt options)
openwrt install-libkulgui
[ ! -e "$check/openwrt/usr/bin/kuldialog" ] || openwrt install-kuldialog
find "$check/openwrt-packages" -name 'libkulgui.so.0' | grep -q . || fail "openwrt: no library"

# Yocto: what it would append to the installation is done to what was installed.
recipe=$folder/yocto/recipes-kulgui/kulgui/kulgui_$version.bb
# shellcheck disable=SC2046
build yocto wide -DCMAKE_INSTALL_BINDIR:PATH=bin -DCMAKE_INSTALL_LIBDIR:PATH=lib \
    -DCMAKE_INSTALL_INCLUDEDIR:PATH=include -DCMAKE_INSTALL_SO_NO_EXE=0 \
    -DCMAKE_EXPORT_NO_PACKAGE_REGISTRY=ON \
    $(sed -n '/^EXTRA_OECMAKE/,/^"/s/^ *\(-D[^ ]*\).*/\1/p' "$recipe")
sed -n -e "s,\${D},$check/yocto,g; s,\${prefix},/usr,g; s,\${libdir},/usr/lib,g" \
    -e '/^do_install:append/,/^}/{/^    /p}' "$recipe" >"$check/append.sh"
sh -eu "$check/append.sh"
grep -qx 'prefix=/usr' "$check/yocto/usr/lib/pkgconfig/kulgui.pc" || fail "yocto: wrong prefix"

rm -r "$check"
find "$folder" -type f | sort
