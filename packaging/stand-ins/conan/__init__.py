"""Stands in for Conan's own package: what the recipe uses of it, doing what it is documented to do."""

import os
from types import SimpleNamespace


class CppInfo:
    def __init__(self):
        self.libs = []
        self.properties = {}

    def set_property(self, name, value):
        self.properties[name] = value


class Dependencies:
    def __init__(self, folder):
        self._folder = folder

    @property
    def host(self):
        return {"all": SimpleNamespace(package_folder=self._folder)}


class ConanFile:
    def __init__(self, recipe_folder, work, headers):
        self.recipe_folder = recipe_folder
        self.export_sources_folder = self.source_folder = os.path.join(work, "source")
        self.build_folder = os.path.join(work, "build")
        self.package_folder = os.path.join(work, "package")
        self.settings = SimpleNamespace(os="Linux", arch="x86_64", build_type="Release")
        self.options = SimpleNamespace(**self.default_options)
        self.dependencies = Dependencies(headers)
        self.cpp_info = CppInfo()
        self.required = []
        self.cache_variables = {}

    def requires(self, reference, headers, libs, visible):
        assert headers and not libs and not visible, reference
        self.required.append(reference)
