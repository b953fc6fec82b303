"""Builds the checkout that this recipe lies in."""

import os

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir

SOURCES = ("CMakeLists.txt", "README.md", "CHANGELOG.md", "LICENSE", "cli/*", "cmake/*", "docs/*", "examples/*",
           "include/*", "platforms/*", "scenarios/*", "src/*")


class CalvixConan(ConanFile):
    name = "calvix"
    version = "1.0.0"
    description = "Wireless management library for the WLAN API, with a simulated computer to test on"
    license = "MIT"
    topics = ("wifi", "wlan", "windows", "simulation")
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"host": [True, False]}
    default_options = {"host": True}

    def export_sources(self):
        root = os.path.join(self.recipe_folder, "..", "..")
        for pattern in SOURCES:
            copy(self, pattern, src=root, dst=self.export_sources_folder)

    def requirements(self):
        # Compiled in; nothing of them reaches whoever links the library.
        private = {"headers": True, "libs": False, "visible": False}
        self.requires("nlohmann_json/[>=3.11 <4]", **private)
        self.requires("rapidxml/1.13", **private)
        if self.options.host:
            self.requires("cli11/[>=2.3 <3]", **private)

    def validate(self):
        if self.settings.os not in ("Windows", "Linux") or self.settings.arch != "x86_64":
            raise ConanInvalidConfiguration("Calvix is for Windows and Linux on x86_64")
        check_min_cppstd(self, 20)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        folders = [dependency.package_folder for dependency in self.dependencies.host.values()]
        toolchain.cache_variables["CALVIX_HEADER_ONLY_PREFIX"] = ";".join(folders)
        toolchain.cache_variables["CALVIX_BUILD_HOST"] = bool(self.options.host)
        toolchain.cache_variables["CALVIX_BUILD_TESTS"] = False
        toolchain.cache_variables["CALVIX_BUILD_EXAMPLES"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        copy(self, "LICENSE", src=self.source_folder, dst=os.path.join(self.package_folder, "licenses"))
        # Conan writes the CMake and pkg-config files of a package itself.
        rmdir(self, os.path.join(self.package_folder, "lib", "cmake"))
        rmdir(self, os.path.join(self.package_folder, "lib", "pkgconfig"))

    def package_info(self):
        self.cpp_info.libs = ["calvix"]
        self.cpp_info.set_property("cmake_file_name", "calvix")
        self.cpp_info.set_property("cmake_target_name", "calvix::calvix")
        self.cpp_info.set_property("pkg_config_name", "calvix")
