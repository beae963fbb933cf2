"""Builds the sources in which it stands: conan create packaging/conan."""

import os
import re

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, load

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
COMPONENTS = {  # and the option that builds it
    "EffectSettings": ("ombrel-effect-settings", None),
    "PropertyTreeJson": ("ombrel-property-tree-json", "json"),
    "EffectInspection": ("ombrel-effect-inspection", "inspection"),
}


class OmbrelEffectSettings(ConanFile):
    name = "ombrel-effect-settings"
    description = "Settings of a photo editor's image effects and their stored form"
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {name: [True, False] for name in ("shared", "fPIC", "json", "inspection", "tool")}
    default_options = {"shared": False, "fPIC": True, "json": True, "inspection": True, "tool": False}

    def set_version(self):
        header = load(self, os.path.join(ROOT, "src", "OmbrelVersion.h"))
        self.version = ".".join(re.findall(r"^#define OMBREL_VERSION_[A-Z]+ (\d+)$", header, re.MULTILINE))

    def config_options(self):
        if self.settings.os == "Windows":
            del self.options.fPIC

    def requirements(self):
        self.requires("boost/1.83.0", transitive_headers=True, options={"header_only": True})
        if self.options.tool:
            self.requires("cli11/2.3.2")

    def export_sources(self):
        for part in ("CMakeLists.txt", "cmake/*", "debugger/*", "examples/*", "src/*", "tools/*"):
            copy(self, part, ROOT, self.export_sources_folder)

    def layout(self):
        cmake_layout(self)

    def generate(self):
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["OMBREL_BUILD_TESTS"] = False
        toolchain.cache_variables["OMBREL_BUILD_JSON"] = bool(self.options.json)
        toolchain.cache_variables["OMBREL_BUILD_INSPECTION"] = bool(self.options.inspection)
        toolchain.cache_variables["OMBREL_BUILD_TOOLS"] = bool(self.options.tool)
        toolchain.generate()
        CMakeDeps(self).generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "OmbrelEffectSettings")
        for name, (library, option) in COMPONENTS.items():
            if option and not (self.options.get_safe(option) or self.options.tool):
                continue
            component = self.cpp_info.components[name]
            component.libs = [library]
            component.includedirs = ["include/Ombrel"]
            component.set_property("cmake_target_name", f"Ombrel::{name}")
            component.set_property("pkg_config_name", library)
            component.requires = ["boost::headers"] if name == "EffectSettings" else ["EffectSettings"]
