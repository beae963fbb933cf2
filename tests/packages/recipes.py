"""What can be said of the recipes of other package managers without running these: their form, the version, and that the options
which they set are options of the build. recipes.py SOURCES CMAKE VERSION"""

import json
import pathlib
import re
import runpy
import subprocess
import sys
import tempfile
import types

sources, cmake, version = pathlib.Path(sys.argv[1]), sys.argv[2], sys.argv[3]
OPTIONS = set(re.findall(r"^option\((\w+)", (sources / "CMakeLists.txt").read_text(), re.MULTILINE))
failures = []


def expect(what, expected, found):
    if expected != found:
        failures.append(f"{what}: expected {expected!r}, found {found!r}")


def check_vcpkg():
    folder = sources / "packaging/vcpkg/ombrel-effect-settings"
    manifest = json.loads((folder / "vcpkg.json").read_text())
    expect("version of vcpkg.json", version, manifest["version"])
    expect("name of vcpkg.json", folder.name, manifest["name"])
    expect("default features", set(), set(manifest["default-features"]) - set(manifest["features"]))
    # The functions of vcpkg, which say what they are called with.
    names = set(re.findall(r"^\s*(vcpkg_\w+)\(", (folder / "portfile.cmake").read_text(), re.MULTILINE))
    stubs = "".join(f'function({name})\nlist(JOIN ARGV " " all)\nmessage("{name} ${{all}}")\nendfunction()\n' for name in names)
    with tempfile.TemporaryDirectory() as scratch:
        script = pathlib.Path(scratch) / "port.cmake"
        script.write_text(f"cmake_minimum_required(VERSION 3.25)\n{stubs}set(FEATURES tool)\nset(PORT port)\nset(CURRENT_PACKAGES_DIR {scratch})\n"
                          f"include({folder}/portfile.cmake)\n")
        run = subprocess.run([cmake, "-P", script], capture_output=True, text=True)
        expect(f"the end of portfile.cmake with {run.stderr}", 0, run.returncode)
        called = run.stderr
    expect("the sources of the port", str(sources), re.search(r"SOURCE_PATH (\S+)", called)[1])
    features = re.search(r"FEATURES (.*)", called)[1].split()
    expect("features of the port", set(manifest["features"]), set(features[::2]))
    options = set(features[1::2]) | set(re.findall(r"-D(\w+)=", called))
    expect("options of the port that the build lacks", set(), options - OPTIONS)


class Anything:
    """Stands for all that a recipe asks of the package manager."""

    def __init__(self, *arguments, **named):
        self.values = {}
        self.cache_variables = {}
        self.cpp_info = self

    def __getattr__(self, name):
        return self.values.setdefault(name, Anything())

    def __getitem__(self, key):
        return self.values.setdefault(key, Anything())

    def __call__(self, *arguments, **named):
        return Anything()

    def __bool__(self):
        return True


def check_conan():
    toolchains = []

    class Toolchain(Anything):
        def __init__(self, recipe):
            super().__init__()
            toolchains.append(self)

    read = lambda recipe, file: pathlib.Path(file).read_text()
    modules = {
        "conan": {"ConanFile": Anything},
        "conan.tools": {},
        "conan.tools.cmake": {"CMake": Anything, "CMakeDeps": Anything, "CMakeToolchain": Toolchain, "cmake_layout": Anything()},
        "conan.tools.files": {"copy": Anything(), "load": read},
    }
    for name, members in modules.items():
        sys.modules[name] = types.ModuleType(name)
        sys.modules[name].__dict__.update(members)
    module = runpy.run_path(str(sources / "packaging/conan/conanfile.py"))
    recipe = module["OmbrelEffectSettings"]()
    expect("options without a default", set(recipe.options), set(recipe.default_options))
    recipe.set_version()
    expect("version of the recipe", version, recipe.version)
    recipe.options = Anything()
    for step in ("requirements", "export_sources", "layout", "generate", "build", "package", "package_info"):
        getattr(recipe, step)()
    expect("options of the recipe that the build lacks", set(), set(toolchains[0].cache_variables) - OPTIONS)
    for library, _ in module["COMPONENTS"].values():
        found = [file for file in sources.glob("src/**/CMakeLists.txt") if f"OUTPUT_NAME {library}\n" in file.read_text()]
        expect(f"places where {library} is built", 1, len(found))


check_vcpkg()
check_conan()
sys.exit("\n".join(failures) or 0)
