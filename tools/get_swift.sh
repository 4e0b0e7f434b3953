#!/bin/sh
# Unpacks Debian 13's Swift compiler into a folder, with all that it needs there to build programs, a newer
# C library among it, and the sources of its standard library; nothing is installed, and no root is
# needed. 770 MB to download, once: what is there already stays. Two ways to run it are left in the folder:
# swift-frontend, the compiler alone, for any user, and in_root, which runs any of its programs.
#
#     tools/get_swift.sh FOLDER
set -eu
mkdir -p "$1"
to=$(realpath "$1")
if [ -e "$to/in_root" ]; then exit; fi
rm -rf "$to/tree" "$to/source" "$to/ios"  # left by a run that was broken off, or by an earlier script
mkdir -p "$to/lists/partial" "$to/cache/archives/partial" "$to/packages" "$to/tree" "$to/source"

# The archive that this machine's apt uses, in a configuration of its own.
. /etc/os-release
archive=$(apt-get indextargets --format '$(REPO_URI) $(CODENAME) $(SUITE)' 'Created-By: Packages' |
  awk -v codename="$VERSION_CODENAME" '$2 == codename { print $1; exit }')
signed='[signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]'
printf 'deb %s %s trixie main\ndeb-src %s %s trixie main\n' "$signed" "$archive" "$signed" "$archive" >"$to/sources.list"
: >"$to/status"  # nothing is installed, so all that is needed comes
private_apt() {
  apt-get -qq -o Dir::Etc::SourceList="$to/sources.list" -o Dir::Etc::SourceParts=/dev/null \
    -o Dir::State::Lists="$to/lists" -o Dir::Cache="$to/cache" -o Dir::State::status="$to/status" \
    -o APT::Sandbox::User= "$@"
}
private_apt update
private_apt install --download-only --yes --no-install-recommends swiftlang libstdc++-14-dev libc6-dev
for package in "$to"/cache/archives/*.deb; do  # without what nothing here runs
  dpkg --fsys-tarfile "$package" | tar -x -C "$to/tree" --exclude './usr/share/*' --exclude '*/swift_static' \
    --exclude '*/swift/embedded' --exclude '*lldb*' --exclude '*/bin/clangd' --exclude '*/bin/docc' \
    --exclude '*sourcekit*' --exclude '*/bin/swift-format' --exclude '*/libLTO*' --exclude './usr/libexec/gcc'
done
for folder in bin lib lib64 sbin; do ln -sfn "usr/$folder" "$to/tree/$folder"; done
mkdir -p "$to/tree/dev" "$to/tree/proc" "$to/tree/tmp"
# Its packaging, which a mirror may lack, is not needed.
cd "$to/packages"
private_apt source --download-only swiftlang 2>/dev/null || ls swiftlang_*.orig.tar.* >/dev/null
for archive in swiftlang_*.orig*.tar.*; do
  tar -x -C "$to/source" -f "$archive" --wildcards '*/stdlib/public/core/*' '*/stdlib/public/Concurrency/*' \
    '*/stdlib/public/Cxx/*' '*/test/abi/Inputs/macOS/arm64/*/baseline' '*/swift/utils/*.py' '*/utils/availability-macros.def' 2>/dev/null || true
done
find "$to/source" -name gyb.py | grep -q .
rm -r "$to/packages" "$to/cache" "$to/lists" "$to"/status* "$to"/lock*

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
cat >"$to/in_root.new" <<'SCRIPT'
#!/bin/sh
# in_root PROGRAM...: with the tree as the root folder, where the present folder is found at its own place.
tree=$(dirname "$(realpath "$0")")/tree
if [ "$(id -u)" -eq 0 ]; then as_root=; else as_root=--map-root-user; fi
mkdir -p "$tree$PWD"
exec unshare $as_root --mount --pid --fork --mount-proc="$tree/proc" sh -c '
  tree=$1
  shift
  mount --rbind /dev "$tree/dev"
  mount --bind "$PWD" "$tree$PWD"
  exec env -i PATH=/usr/libexec/swift/bin:/usr/bin:/usr/sbin HOME=/tmp LANG=C.UTF-8 \
    unshare --root="$tree" --wd="$PWD" "$@"' sh "$tree" "$@"
SCRIPT
chmod +x "$to/swift-frontend" "$to/in_root.new"
mv "$to/in_root.new" "$to/in_root"
