# Which Debian packages the scripts need, and how they get there. To be sourced.

core_packages=(g++ cmake ninja-build python3)
desktop_packages=(qt6-base-dev qt6-tools-dev libqt6opengl6-dev libgmime-3.0-dev libicu-dev
  libsqlite3-dev pkg-config fonts-inter)
tour_packages=(msmtp python3-aiosmtpd)
test_packages=(git clang clang-format clang-tidy llvm libclang-rt-dev libgtest-dev
  libgmock-dev libssl-dev locales tzdata xvfb dbus-daemon dpkg-dev file doxygen strace openbox xdotool
  weston qt6-wayland at-spi2-core python3-pyatspi faketime
  fonts-dejavu-core fonts-lohit-deva fonts-wqy-microhei)
bench_packages=(libbenchmark-dev libfmt-dev libabsl-dev libssl-dev libglib2.0-dev libboost-dev)
ios_packages=(clang libgnustep-base-dev clang-19 libc++-19-dev lld-19 musl-dev python3-clang
  python3-kiwisolver python3-pil)
unpacked_packages=(libc++-15-dev libc++1-15 libc++abi1-15)  # a machine has one libc++ installed

# Those that are neither installed nor provided by what is: names move into other packages between releases.
missing_packages() {
  dpkg-query -W -f '${db:Status-Status} ${Package}, ${Provides}\n' 2>/dev/null | sed -n 's/^installed //p' |
    tr , '\n' | awk '{ print $1 }' | sort -u | comm -13 - <(printf '%s\n' "$@" | sort -u)
}

# Those that this release of Debian doesn't have.
lacking_packages() {
  { LC_ALL=C apt-get install -s -qq "$@" 2>&1 >/dev/null || true; } |
    sed -nE "s/^E: (Unable to locate package|Package) '?([^ ']+)('? has no installation candidate)?$/\2/p" | sort -u
}

# Installs those of the packages that are missing, and says which. What can't be installed is named,
# and the rest goes on with what is there.
install_packages() {
  if ! command -v dpkg-query apt-get >/dev/null; then
    echo "This is no Debian system. Needed, by Debian's names: $*"
    echo "Going on with what is there."
    return
  fi
  local missing=() lacking=() as_root=()
  mapfile -t missing < <(missing_packages "$@")
  if [ ${#missing[@]} -eq 0 ]; then
    return
  fi
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  if "${as_root[@]}" apt-get update -qq; then
    mapfile -t lacking < <(lacking_packages "${missing[@]}")
    if [ ${#lacking[@]} -ne 0 ]; then
      echo "Left out, for this release does not have them: ${lacking[*]}"
      mapfile -t missing < <(comm -23 <(printf '%s\n' "${missing[@]}") <(printf '%s\n' "${lacking[@]}"))
    fi
    if "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
      --no-install-recommends "${missing[@]}" >/dev/null; then
      return
    fi
  fi
  echo "They could not be installed. Going on with what is there."
}

# Unpacks packages into build/unpacked, each into a folder of its name, without installing them.
unpack_packages() {
  local package
  for package in "$@"; do
    if [ -d "build/unpacked/$package" ] || ! command -v dpkg >/dev/null; then continue; fi
    mkdir -p build/unpacked
    if ! (cd build/unpacked && apt-get download -qq "$package" 2>/dev/null &&
      dpkg -x "${package}"_*.deb "$package" && rm "${package}"_*.deb); then
      echo "$package could not be unpacked. Going on with what is there."
    fi
  done
}
