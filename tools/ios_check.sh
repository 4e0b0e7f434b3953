#!/bin/sh
# Compiles sources for the device, to Mach-O objects for arm64-apple-ios11.0, without its SDK:
# libc++ with its availability marks switched on, musl's C headers, gnustep-base's Foundation and,
# for UIKit and MessageUI, the tests' stand-in headers. Anything that is newer than 11.0 and not
# behind a version test is an error. Nothing is linked.
#
#     tools/ios_check.sh OUT_DIR OBJC_HEADERS [SOURCE...]
#
# OBJC_HEADERS is where the build keeps the mended Objective-C headers (objc_compat). Without
# sources: the core, the iOS adapter and the example app.
set -eu
out=$(realpath -m "$1")
objc=$(realpath -m "$2")
shift 2
cd "$(dirname "$0")/.."
libcxx=/usr/lib/llvm-19/include/c++/v1

mkdir -p "$out/config"
# libc++ for Debian is configured without marks, as it is part of no system; the device's is not.
sed '/_LIBCPP_HAS_NO_VENDOR_AVAILABILITY_ANNOTATIONS/d' $libcxx/__config_site \
  >"$out/config/__config_site"
if cmp -s $libcxx/__config_site "$out/config/__config_site"; then
  echo "ios_check: libc++'s availability marks can't be switched on" >&2
  exit 2
fi

if [ $# -eq 0 ]; then
  set -- $(find qv_commons examples/ios_host \( -path qv_commons/platform/memory -o \
    -path qv_commons/platform/desktop \) -prune -o \
    \( -name '*.cpp' -o -name '*.mm' -o -name '*.m' \) -print)
fi

# -isystem in this order: libc++ wraps C headers, which it finds after its own.
cat >"$out/flags" <<FLAGS
-target arm64-apple-ios11.0 -c
-nostdinc -nostdinc++ -isystem $out/config -isystem tools/ios_sysroot -isystem $libcxx
-isystem $(clang-19 -print-resource-dir)/include -isystem $(echo /usr/include/*-linux-musl)
-isystem $objc -isystem tests/uikit_standin -isystem /usr/include/GNUstep
-I. -Iqv_commons/platform/uikit/include
-DQV_COMMONS_MAKER_HOST=\\"www.example.com\\" -D_GNU_SOURCE
-DGNUSTEP -DGNUSTEP_BASE_LIBRARY=1 -DGNU_RUNTIME=1 -D_NATIVE_OBJC_EXCEPTIONS
-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wunguarded-availability -Werror
-Wno-nullability-extension -Wno-nullability-completeness
FLAGS

# The settings of a language go before the source, those of all sources are in the file.
export out
if ! printf '%s\n' "$@" | xargs -P2 -I@ sh -c '
  case @ in
    *.m) language="-std=gnu11 -fobjc-arc" ;;
    *.mm) language="-std=c++20 -fobjc-arc" ;;
    *) language=-std=c++20 ;;
  esac
  clang-19 --config "$out/flags" $language @ -o "$out/$(echo @ | tr / _).o"'; then
  exit 1
fi
