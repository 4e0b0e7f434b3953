"""The recipe for Conan 2; the sources are those of the tree that it lies in."""
import os

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy


class QvCommons(ConanFile):
    name = "qv-commons"
    version = "1.0.0"
    license = "MIT"
    description = "Shared services for the apps of one family"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "fPIC": [True, False], "desktop": [True, False]}
    default_options = {"shared": False, "fPIC": True, "desktop": False}

    def export_sources(self):
        tree = os.path.join(self.recipe_folder, "..", "..")
        for pattern in ("CMakeLists.txt", "LICENSE", "cmake/*", "qv_commons/*"):
            copy(self, pattern, src=tree, dst=self.export_sources_folder)

    def requirements(self):
        if self.options.desktop:
            self.requires("qt/[>=6.4 <7]", options={"qttools": True, "with_dbus": True})
            self.requires("icu/[>=72]")
            self.requires("sqlite3/[>=3.40]")
            # GMime is taken from the system.

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["QV_COMMONS_DESKTOP"] = "ON" if self.options.desktop else "OFF"
        for part in ("TESTS", "EXAMPLES", "BENCH", "FUZZ"):
            toolchain.cache_variables[f"QV_COMMONS_{part}"] = "OFF"
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()

    def package_info(self):
        # The package's own CMake files know what belongs together.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs = ["lib/cmake/qv_commons"]
