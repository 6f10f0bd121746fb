#!/bin/sh
# SPDX-License-Identifier: MIT
# Makes a source archive of the commit that is checked out, and Debian packages of that. Checks them
# by lintian, by making them once more in another folder, which must give the same bytes, and by
# building the first example against what is in them, in a folder of its own.
# usage: package.sh FOLDER     leaves archive and packages in FOLDER
set -eu
umask 022
rm -rf "$1"
mkdir -p "$1"
folder=$(cd "$1" && pwd)
version=$(sed -n 's/^#define KULGUI_VERSION "\(.*\)"/\1/p' kulplatform/kulgui/kulgui.h)
archive=$folder/kulgui-$version.tar.gz
git archive --format=tar.gz --prefix="kulgui-$version/" -o "$archive" HEAD
[ -z "$(git status --porcelain)" ] || echo "What is not committed is not in the packages." >&2

# Who makes them, as Debian's own tools ask it; without an answer lintian is not to mind.
suppressed=bogus-mail-host,bogus-mail-host-in-debian-changelog,root-in-contact
maintainer="The kulgui authors <root@localhost.localdomain>"
if [ -n "${DEBEMAIL:-}" ]; then
    maintainer="${DEBFULLNAME:-The kulgui authors} <$DEBEMAIL>"
    suppressed=none
fi
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH

# Debian's own flags, all that harden, without debugging information.
flags() {
    for name in "$@"; do
        DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --get "$name" | sed 's/^-g //'
    done | tr '\n' ' '
}

# make_packages FOLDER: leaves them in FOLDER/build/packages
make_packages() {
    mkdir -p "$1"
    tar -xf "$archive" -C "$1"
    CFLAGS=$(flags CFLAGS CPPFLAGS) CXXFLAGS=$(flags CXXFLAGS CPPFLAGS) LDFLAGS=$(flags LDFLAGS) \
        cmake -S "$1/kulgui-$version" -B "$1/build" -G Ninja -DCMAKE_BUILD_TYPE=MinSizeRel \
        -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_DOCDIR=share/doc/libkulgui-doc \
        -DKULGUI_BUILD_ARCHIVE=ON -DKULGUI_BUILD_DOCS=ON -DKULGUI_BUILD_TESTS=OFF -DKULGUI_BUILD_EXAMPLES=OFF \
        -DKULGUI_BUILD_BENCH=OFF -DKULGUI_MAINTAINER="$maintainer"
    ninja -C "$1/build" --quiet
    (cd "$1/build" && cpack -B "$PWD/packages")
}
make_packages "$folder/once" >&2
make_packages "$folder/again/elsewhere" >&2
for package in "$folder"/once/build/packages/*.deb; do
    cmp "$package" "$folder/again/elsewhere/build/packages/$(basename "$package")"
    mv "$package" "$folder"
done

lintian --fail-on error,warning --suppress-tags "$suppressed" --allow-root "$folder"/*.deb

# Into an empty folder, and a program against it.
root=$folder/root
for package in "$folder"/*.deb; do
    dpkg-deb -x "$package" "$root"
done
if grep -rlF "$folder" "$root" >&2; then
    echo "These know where they were built." >&2
    exit 1
fi
libraries=$(dirname "$(find "$root" -name libkulgui.a)")
example=$(find "$root" -name hello.c)
PKG_CONFIG_ALLOW_SYSTEM_LIBS=1 PKG_CONFIG_ALLOW_SYSTEM_CFLAGS=1
export PKG_CONFIG_ALLOW_SYSTEM_LIBS PKG_CONFIG_ALLOW_SYSTEM_CFLAGS
export PKG_CONFIG_PATH="$libraries/pkgconfig" LD_LIBRARY_PATH="$libraries"
# shellcheck disable=SC2046
{
    cc $(pkg-config --cflags kulgui) "$example" -o "$folder/hello" $(pkg-config --libs kulgui)
    cc -static $(pkg-config --cflags kulgui) "$example" -o "$folder/hello-static" \
        $(pkg-config --static --libs kulgui)
}
ldd "$folder/hello" | grep -q "$libraries/libkulgui.so.0" || {
    echo "hello does not use the library of the packages" >&2
    exit 1
}
for program in hello hello-static; do
    said=$("$folder/$program" 2>&1 </dev/null) && said="$said, and that all is well"
    [ "$said" = "hello: this is no terminal that can be used" ] || {
        echo "$program, built of the packages, says: $said" >&2
        exit 1
    }
done
rm -r "$folder/once" "$folder/again" "$root" "$folder/hello" "$folder/hello-static"
ls -l "$folder"
