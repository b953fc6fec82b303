import os
import subprocess


def cmake_layout(recipe):
    pass


class CMakeToolchain:
    def __init__(self, recipe):
        self._recipe = recipe
        self.cache_variables = {}

    def generate(self):
        self._recipe.cache_variables = self.cache_variables


def _text(value):
    return {True: "ON", False: "OFF"}.get(value, value) if isinstance(value, bool) else value


class CMake:
    def __init__(self, recipe):
        self._recipe = recipe

    def _run(self, *arguments):
        subprocess.run(["cmake", *arguments], check=True, stdout=subprocess.DEVNULL)

    def configure(self):
        variables = [f"-D{name}={_text(value)}" for name, value in self._recipe.cache_variables.items()]
        self._run("-S", self._recipe.source_folder, "-B", self._recipe.build_folder, "-G", "Ninja",
                  "-DCMAKE_BUILD_TYPE=Release", f"-DCMAKE_INSTALL_PREFIX={self._recipe.package_folder}",
                  "-DCMAKE_INSTALL_LIBDIR=lib", "-DCALVIX_UNITY=ON", *variables)

    def build(self):
        self._run("--build", self._recipe.build_folder)

    def install(self):
        self._run("--install", self._recipe.build_folder)
