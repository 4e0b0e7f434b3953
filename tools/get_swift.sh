#!/bin/sh
# Unpacks Debian 13's Swift compiler into a folder, with the newer C library that it needs on Debian
# 12 and the sources of its standard library; nothing is installed, and no root is needed. 690 MB to
# download, once: what is there already stays.
#
#     tools/get_swift.sh FOLDER
set -eu
mkdir -p "$1"
to=$(realpath "$1")
if [ -e "$to/complete" ]; then exit; fi
mkdir -p "$to/lists/partial" "$to/cache/archives/partial" "$to/packages" "$to/tree" "$to/source"

# The archive that this machine's apt uses, in a configuration of its own.
. /etc/os-release
archive=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(SUITE)' 'Created-By: Packages' |
  awk -v codename="$VERSION_CODENAME" '$2 == codename { print $1; exit }')
signed='[signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]'
printf 'deb %s %s trixie main\ndeb-src %s %s trixie main\n' "$signed" "$archive" "$signed" "$archive" >"$to/sources.list"
private_apt() {
  apt-get -qq -o Dir::Etc::SourceList="$to/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::State::Lists="$to/lists" -o Dir::Cache="$to/cache" -o Dir::State::status=/dev/null \
    -o APT::Sandbox::User= "$@"
}
private_apt update
cd "$to/packages"
private_apt download swiftlang libswiftlang libc6 libstdc++6 libgcc-s1 zlib1g libzstd1 libtinfo6 libuuid1
for package in lib*.deb zlib*.deb; do dpkg -x "$package" "$to/tree"; done
dpkg --fsys-tarfile swiftlang_*.deb | tar -x -C "$to/tree" --wildcards \
  ./usr/libexec/swift/bin/swift-frontend './usr/libexec/swift/lib/swift/linux/*' \
  './usr/libexec/swift/lib/swift/shims/*' ./usr/libexec/swift/lib/swift/clang \
  './usr/libexec/swift/lib/clang/17/include/*' './usr/libexec/swift/lib/swift/pm/ManifestAPI/*'
# Its packaging, which a mirror may lack, is not needed.
private_apt source --download-only swiftlang || ls swiftlang_*.orig.tar.* >/dev/null
for archive in swiftlang_*.orig*.tar.*; do
  tar -x -C "$to/source" -f "$archive" --wildcards '*/stdlib/public/core/*' '*/stdlib/public/Concurrency/*' \
    '*/swift/utils/*.py' '*/utils/availability-macros.def' 2>/dev/null || true
done
find "$to/source" -name gyb.py | grep -q .
rm -r "$to/packages" "$to/cache" "$to/lists"

cat >"$to/swift-frontend" <<'SCRIPT'
#!/bin/sh
# The compiler, started by the C library that it was built for.
tree=$(dirname "$(realpath "$0")")/tree
libraries=$tree/usr/lib/x86_64-linux-gnu:$tree/lib/x86_64-linux-gnu
for loader in "$tree/usr/lib64/ld-linux-x86-64.so.2" "$tree/lib64/ld-linux-x86-64.so.2"; do
  [ ! -e "$loader" ] || exec "$loader" --library-path "$libraries" \
    "$tree/usr/libexec/swift/bin/swift-frontend" "$@"
done
SCRIPT
chmod +x "$to/swift-frontend"
touch "$to/complete"
