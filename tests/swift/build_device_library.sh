#!/usr/bin/env bash
# Makes the module files, without code, of Swift's standard library and of its concurrency library for
# arm64-apple-ios11.0, from the compiler's own sources: a resource folder for -resource-dir.
#
#     tests/swift/build_device_library.sh TOOLCHAIN OUT
set -euo pipefail
toolchain=$(realpath "$1")
out=$2
source=$(dirname "$(find "$toolchain/source" -path '*/utils/gyb.py' | head -n 1)")/..
core=$source/stdlib/public/core
concurrency=$source/stdlib/public/Concurrency
linux=$toolchain/tree/usr/libexec/swift/lib/swift

mkdir -p "$out/generated" "$out"/iphoneos/{Swift,_Concurrency,SwiftOnoneSupport}.swiftmodule
ln -sfn "$linux/shims" "$out/shims"
ln -sfn "$linux/../clang/17" "$out/clang"
for template in "$core"/*.gyb; do
  python3 "$source/utils/gyb.py" -DCMAKE_SIZEOF_VOID_P=8 "$template" -o "$out/generated/$(basename "${template%.gyb}")"
done

availability=()
while read -r line; do
  availability+=(-define-availability "$line")
done < <(grep '^SwiftStdlib' "$source/utils/availability-macros.def")
features=()
for feature in NoncopyableGenerics2 SuppressedAssociatedTypes NonescapableTypes ExtensionImportVisiblity \
  Macros FreestandingMacros Extern BitwiseCopyable IsolatedAny; do
  features+=(-enable-experimental-feature $feature)
done

module() {
  local name=$1
  shift
  "$toolchain/swift-frontend" -frontend -emit-module -module-name "$name" -parse-stdlib -parse-as-library \
    -target arm64-apple-ios11.0 -resource-dir "$out" -swift-version 5 -module-cache-path "$out/cache" \
    -Xcc -ffreestanding -disable-objc-attr-requires-foundation-module -library-level api \
    -require-explicit-availability=ignore "${availability[@]}" "${features[@]}" -suppress-warnings \
    -disable-implicit-concurrency-module-import -disable-implicit-string-processing-module-import \
    -enable-lexical-lifetimes=false -disable-legacy-type-info -o "$out/iphoneos/$name.swiftmodule/arm64-apple-ios.swiftmodule" "$@"
}

# The lists of sources are those of the library's own build.
sources=()
while read -r file; do
  file=${file%.gyb}
  if [ -f "$core/$file" ]; then sources+=("$core/$file"); else sources+=("$out/generated/$file"); fi
done < <(sed -n '1,/^set(swift_stdlib_compile_flags/p' "$core/CMakeLists.txt" |
  grep -oE '^ +(EMBEDDED|NORMAL) +[A-Za-z0-9_]+\.swift(\.gyb)?' | awk '{ print $2 }')
module Swift -experimental-skip-non-inlinable-function-bodies -enable-experimental-concise-pound-file "${sources[@]}" \
  "$core/SIMDVector.swift" "$out/generated/SIMDConcreteOperations.swift" "$out/generated/SIMDVectorTypes.swift"
sources=()
while read -r file; do
  sources+=("$concurrency/$file")
done < <(sed -n '/^set(SWIFT_RUNTIME_CONCURRENCY_SWIFT_SOURCES/,/^)/p' "$concurrency/CMakeLists.txt" |
  grep -oE '[A-Za-z0-9_+/]+\.swift')
module _Concurrency -experimental-skip-non-inlinable-function-bodies -I "$concurrency/InternalShims" "${sources[@]}"
echo >"$out/generated/empty.swift"
module SwiftOnoneSupport -O "$out/generated/empty.swift"
