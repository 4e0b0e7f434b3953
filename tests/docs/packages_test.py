"""What the scripts do about packages: on another system, where nothing is missing, and as whom."""
import pathlib
import subprocess
import tempfile
import unittest

PACKAGES = pathlib.Path(__file__).resolve().parents[2] / "tools" / "packages.sh"


class Packages(unittest.TestCase):
    def install(self, *packages, **programs):
        """Runs install_packages where those programs are all there is, beside the shell's tools."""
        with tempfile.TemporaryDirectory() as scratch:
            folder = pathlib.Path(scratch)
            for tool in ("awk", "sort", "comm", "env", "sed", "tr"):
                (folder / tool).symlink_to(f"/usr/bin/{tool}")
            for name, script in programs.items():
                program = folder / name.replace("_", "-")
                program.write_text(f"#!/bin/bash\n{script}\n")
                program.chmod(0o755)
            done = subprocess.run(
                ["/bin/bash", "-euo", "pipefail", "-c",
                 f'PATH={scratch}; source "{PACKAGES}"; install_packages {" ".join(packages)}; '
                 "echo went on"], capture_output=True, text=True)
            self.assertEqual(done.returncode, 0, done.stderr)
            return done.stdout

    def test_names_what_is_needed_on_another_system_and_goes_on(self):
        self.assertEqual(self.install("cmake", "ninja-build"),
                         "This is no Debian system. Needed, by Debian's names: cmake ninja-build\n"
                         "Going on with what is there.\nwent on\n")

    def test_does_nothing_where_nothing_is_missing(self):
        self.assertEqual(self.install("cmake", dpkg_query="echo installed cmake,",
                                      apt_get="echo must not be called; exit 1"), "went on\n")

    def test_installs_what_is_missing_and_says_which(self):
        said = self.install("cmake", "g++", dpkg_query="echo installed cmake,; echo not-installed g++,", id="echo 0",
                            apt_get='echo "apt-get $*" >&2; echo "apt-get $*" >>/dev/stderr')
        self.assertEqual(said, "Installing: g++\nwent on\n")

    def test_takes_what_another_package_provides_for_installed(self):
        self.assertEqual(self.install("libqt6opengl6-dev", apt_get="echo must not be called; exit 1",
                                      dpkg_query="echo 'installed qt6-base-dev, libqt6opengl6-dev (= 6.8), qt6'"),
                         "went on\n")

    def test_installs_the_rest_where_the_release_lacks_some(self):
        said = self.install("g++", "clang-3", "clang-4", dpkg_query="true", id="echo 0", apt_get=r"""
            if [[ $* == "install -s"* ]]; then
                echo "E: Unable to locate package clang-3" >&2
                echo "E: Package 'clang-4' has no installation candidate" >&2
                exit 100
            fi
            [[ $* != *clang* ]]""")
        self.assertEqual(said, "Installing: clang-3 clang-4 g++\n"
                               "Left out, for this release does not have them: clang-3 clang-4\nwent on\n")

    def test_asks_for_rights_where_it_has_none(self):
        said = self.install("g++", dpkg_query="exit 1", id="echo 1000", apt_get="true",
                            sudo='echo "with sudo" >&2; [ "$1" = apt-get ] || [ "$1" = env ]')
        self.assertEqual(said, "Installing: g++\nwent on\n")

    def test_says_so_where_installing_fails(self):
        said = self.install("g++", dpkg_query="exit 1", id="echo 0", apt_get="exit 1")
        self.assertEqual(said, "Installing: g++\n"
                               "They could not be installed. Going on with what is there.\nwent on\n")


if __name__ == "__main__":
    unittest.main()
