SUMMARY = "Dialogs on a character terminal, for small Linux devices"
DESCRIPTION = "Menus, buttons, check box lists, text boxes, a file viewer, bars and \
labels on a character terminal, for devices that are set up over a serial \
console or ssh. A C interface in one header; no C++ library at run time."
SECTION = "libs"
LICENSE = "MIT"
LIC_FILES_CHKSUM = "file://LICENSE;md5=@LICENSE_MD5@"

SRC_URI = "@ADDRESS@/${BP}.tar.gz"
SRC_URI[sha256sum] = "@SHA256@"

DEPENDS = "ncurses"

inherit cmake

EXTRA_OECMAKE = "\
    -DKULGUI_BUILD_TESTS=OFF \
    -DKULGUI_BUILD_EXAMPLES=OFF \
    -DKULGUI_BUILD_BENCH=OFF \
    -DKULGUI_BUILD_DOCS=OFF \
"

# The file finds the library from where it lies; here that is told by the sysroot.
do_install:append() {
    sed -i 's,^prefix=.*,prefix=${prefix},' ${D}${libdir}/pkgconfig/kulgui.pc
}

PACKAGES =+ "kuldialog"
FILES:kuldialog = "${bindir}/kuldialog"

BBCLASSEXTEND = "native nativesdk"
