SUMMARY = "Custom-drawn Qt widgets for touch screens"
LICENSE = "MIT"

# Where the sources are kept, and the commit to build, are the product's to say:
#   ZCOMMONWIDGETS_SOURCE = "git://<server>/<path>;protocol=https;branch=main"
#   SRCREV:pn-zcommonwidgets = "<commit>"
ZCOMMONWIDGETS_SOURCE ?= ""
SRC_URI = "${ZCOMMONWIDGETS_SOURCE}"
S = "${WORKDIR}/git"
PV = "0.1.0+git${SRCPV}"

# LIC_FILES_CHKSUM is the output of: md5sum LICENSE
LIC_FILES_CHKSUM = "file://LICENSE;md5=532d5c2e18774fc86b0d5862430e984d"

DEPENDS = "qtbase qtsvg"

# From the Qt 5 layer; it brings in cmake and finds Qt's own tools on the build machine.
inherit cmake_qt5

EXTRA_OECMAKE = "-DBUILD_TESTING=OFF -DZCOMMONWIDGETS_GALLERY=OFF"

# Nothing but the library runs on the device: headers, CMake's and pkg-config's files are for the
# SDK, where the usual split into packages puts them.
FILES:${PN}-dev += "${libdir}/cmake"
