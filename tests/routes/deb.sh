#!/usr/bin/env bash
# The Debian packages, unpacked into a folder in the place of /usr, and a program built and run there.
source "$(dirname "$0")/lib.sh"
quietly cpack -G DEB --config "$SHARED/shared/CPackConfig.cmake" -B "$folder/packages" \
  -D CPACK_PACKAGE_CONTACT="Ada <ada@example.org>"
runtime=$(echo packages/libqv-commons1_1.0.0_*.deb) dev=$(echo packages/libqv-commons-dev_1.0.0_*.deb)
grep -q libqt6widgets6 <<<"$(dpkg-deb --field "$runtime" Depends)" || fail "the runtime package needs no Qt"
[ "$(dpkg-deb --field "$dev" Depends)" = "libqv-commons1 (= 1.0.0)" ] || fail "the dev package's needs"
[ "$(dpkg-deb --field "$dev" Maintainer)" = "Ada <ada@example.org>" ] || fail "another maintainer"
! dpkg-deb --contents "$runtime" | grep -E "\.(h|cmake|pc)$" || fail "the runtime package has more than that"
grep -q share/doc/qv_commons/LICENSE <<<"$(dpkg-deb --contents "$runtime")" || fail "no licence"
for package in "$runtime" "$dev"; do dpkg-deb --extract "$package" root; done
! find root -name '*.h' | grep -E "wheel|sqlite|mail_sender" || fail "the adapter's insides are installed"

take_program
cat >CMakeLists.txt <<'END'
cmake_minimum_required(VERSION 3.25)
project(notes LANGUAGES CXX)
find_package(qv_commons 1.0 REQUIRED COMPONENTS desktop)
find_package(Qt6 REQUIRED COMPONENTS Widgets)
add_executable(notes main.cpp)
target_link_libraries(notes PRIVATE qv_commons::desktop Qt6::Widgets)
END
quietly cmake -B build -DCMAKE_PREFIX_PATH="$folder/root/usr"
quietly cmake --build build
expect_gate build/notes
