"""Builds the checkout that this recipe lies in."""

import os

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir

SOURCES = ("CMakeLists.txt", "README.md", "CHANGELOG.md", "LICENSE", "cli/*", "cmake/*", "docs/*", "examples/*",
           "include/*", "platforms/*", "scenarios/*", "src/*")


class CalvixConan(ConanFile):
    name = "calvix"
    version = "1.0.0"
    license = "MIT"
    package_type = "shared-library"
    settings = "os", "arch", "compiler", "build_type"

    def export_sources(self):
        for pattern in SOURCES:
            copy(self, pattern, src=os.path.join(self.recipe_folder, "..", ".."), dst=self.export_sources_folder)

    def requirements(self):
        # Compiled in; nothing of them reaches whoever links the library.
        for header_only in ("nlohmann_json/[>=3.11 <4]", "rapidxml/1.13", "cli11/[>=2.3 <3]"):
            self.requires(header_only, headers=True, libs=False, visible=False)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["CALVIX_BUILD_TESTS"] = False
        toolchain.cache_variables["CALVIX_BUILD_EXAMPLES"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()
        # Conan writes the CMake and pkg-config files of a package itself.
        rmdir(self, os.path.join(self.package_folder, "lib", "cmake"))
        rmdir(self, os.path.join(self.package_folder, "lib", "pkgconfig"))

    def package_info(self):
        debug_of_visual_c = self.settings.compiler == "msvc" and self.settings.build_type == "Debug"
        suffix = "d" if debug_of_visual_c else ""
        on_windows = self.settings.os == "Windows"
        libraries = {"calvix": "calvix" + suffix, "explain": "calvix_explain" + suffix,
                     "testing": "calvix_testing" + suffix, "wlanapi": "wlanapi"}
        for name, library in libraries.items():
            component = self.cpp_info.components[name]
            component.set_property("cmake_target_name", "calvix::" + name)
            if on_windows and name == "wlanapi":
                component.system_libs = [library]
            else:
                component.libs = [library]
        self.cpp_info.components["testing"].defines = ["CALVIX_STATIC"]
        self.cpp_info.components["testing"].system_libs = ["advapi32" if on_windows else "pthread"]
