"""Where mutants are made and tried: a copy of the tree in build/mutate, in which the library is a file of its own, so that
a mutant costs the compilation of one source and the linking of one small library."""

import filecmp
import json
import math
import os
import pathlib
import resource
import shlex
import shutil
import signal
import subprocess
import threading

NOT_COPIED = ["build", ".git"]
PROGRAMS = ["unit", "model", "sweep"]  # the quick ones first
SETTINGS = ["-DCMAKE_BUILD_TYPE=RelWithDebInfo", "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1", "-DCALVIX_SHARED_CORE=ON",
            "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", "-DCALVIX_BUILD_EXAMPLES=OFF",
            "-DCALVIX_INSTALL=OFF"]
MOST_MEMORY = 4 << 30
MOST_OUTPUT = 64 << 20
LONGEST_WAIT = 200  # seconds; a mutant may make the tests wait for each other


class Failure(Exception):
    """The check itself cannot go on."""


def copy_tree(root, tree):
    """Makes the copy equal to the working tree; what is equal already keeps its time, so that little is built again."""
    wanted = set()
    for start in root.iterdir():
        if start.name in NOT_COPIED:
            continue
        files = [start] if start.is_file() else [path for path in start.rglob("*") if path.is_file()]
        for path in files:
            copy = tree / path.relative_to(root)
            wanted.add(copy)
            if not copy.exists() or not filecmp.cmp(path, copy, shallow=False):
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(path, copy)
                shutil.copymode(path, copy)
    for path in [path for path in tree.rglob("*") if path.is_file()]:
        if path not in wanted:
            path.unlink()


def run(command, log, **options):
    """Runs a command to its end, its output into a file. Whether it succeeded."""
    with open(log, "wb") as output:
        return subprocess.run(command, stdout=output, stderr=subprocess.STDOUT, **options).returncode == 0


class Workshop:
    def __init__(self, root):
        self.root = root
        self.folder = root / "build" / "mutate"
        self.tree = self.folder / "tree"
        self.build = self.folder / "build"
        self.limits = {}
        self.locks = {}
        self.lock = threading.Lock()

    def prepare(self):
        """Copies, configures and builds the tree, and lets the tests pass once unmutated."""
        self.tree.mkdir(parents=True, exist_ok=True)
        copy_tree(self.root, self.tree)
        log = self.folder / "build.log"
        if not run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", *SETTINGS], log):
            raise Failure(f"cannot configure the copy: {log}")
        targets = [f"calvix_{name}_tests" for name in PROGRAMS]
        if not run(["cmake", "--build", self.build, "-j", "2", "--target", *targets], log):
            raise Failure(f"cannot build the copy: {log}")
        self._read_commands()
        self.originals = self.folder / "originals"
        self.originals.mkdir(exist_ok=True)
        for path in self.originals.glob("*"):
            path.unlink()
        for name in PROGRAMS:
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            if not run(self.test_command(name), self.folder / f"{name}.log", cwd=self.tree):
                raise Failure(f"the {name} tests fail without any mutant: {self.folder / name}.log")
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            used = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
            self.limits[name] = math.ceil(5 + 5 * used)

    def _read_commands(self):
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.compile = {}
        for entry in commands:
            path = pathlib.Path(entry["file"])
            if self.tree / "src" in path.parents and path.suffix == ".cpp":
                words = [word for word in shlex.split(entry["command"])]
                words = words[next(at for at, word in enumerate(words) if word.endswith("c++")):]
                words = [word for word in words if not word.startswith("-W")]
                output = words.index("-o")
                self.compile[path.relative_to(self.tree / "src").as_posix()] = (
                    words[:output] + ["-O2", "-Werror=return-type", "-frandom-seed=calvix"], self.build / words[output + 1])
        text = subprocess.run(["ninja", "-C", self.build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
        self.dependents = {}
        for block in text.split("\n\n"):
            lines = block.split("\n")
            source = next((name for name, (_, built) in self.compile.items()
                           if lines[0].startswith(str(built.relative_to(self.build)) + ":")), None)
            for line in lines[1:] if source else []:
                header = os.path.normpath(self.build / line.strip())
                if header.startswith(f"{self.tree}/src/") and header.endswith(".h"):
                    self.dependents.setdefault(os.path.relpath(header, self.tree / "src"), set()).add(source)

    def test_command(self, name):
        command = [self.build / "bin" / f"calvix_{name}_tests", "--gtest_brief=1", "--gtest_fail_fast"]
        return ["nice", "-n", "10", *command]

    def sources_of(self, name):
        """The sources in which a change of this file is compiled."""
        return [name] if name.endswith(".cpp") else sorted(self.dependents.get(name, []))

    def compile_changed(self, name, text, folder):
        """Compiles a file of src/ with another text. The object, or None when it does not compile."""
        parts = self.sources_of(name)
        overlay = folder / "overlay"
        shutil.rmtree(overlay, ignore_errors=True)
        changed = overlay / name
        changed.parent.mkdir(parents=True)
        changed.write_text(text)
        # The same name for the mutant and the original: the compiler writes it into the object.
        if len(parts) == 1 and parts[0] == name:
            whole = changed
        else:
            whole = overlay / (name.replace("/", "_") + ".cpp")
            whole.write_text("".join(f'#include "{self.tree / "src" / part}"\n' for part in parts))
        if not parts:
            return None
        command, _ = self.compile[parts[0]]
        built = folder / "changed.o"
        command = ["nice", "-n", "10", command[0], f"-I{overlay}", *command[1:], "-o", built, "-c", whole]
        return built if run(command, folder / "compile.log") else None

    def original(self, name, folder):
        """The object of the unchanged file, compiled as its mutants are."""
        kept = self.originals / (name.replace("/", "_") + ".o")
        with self.lock:
            lock = self.locks.setdefault(name, threading.Lock())
        with lock:
            if not kept.exists():
                built = self.compile_changed(name, (self.tree / "src" / name).read_text(), folder)
                if built is None:
                    raise Failure(f"{name} does not compile unchanged: {folder / 'compile.log'}")
                shutil.move(built, kept)
        return kept

    def objects(self, name, changed):
        parts = set(self.sources_of(name))
        return [str(built) for source, (_, built) in self.compile.items() if source not in parts] + [str(changed)]

    def link(self, name, changed, folder):
        """The library of the tests, with the changed object in it."""
        library = folder / "libcalvix_core.so"
        command = ["nice", "-n", "10", "c++", "-shared", "-fuse-ld=gold", "-Wl,-Bsymbolic-functions",
                   "-Wl,-soname,libcalvix_core.so", "-o", str(library), *self.objects(name, changed)]
        return run(command, folder / "link.log")

    def passes(self, name, folder):
        """Whether a test program passes with the library in a folder. It is limited in the time that it computes, as the
        machine may be busy, and much more generously in the time that it takes."""

        def confine():
            os.setsid()
            resource.setrlimit(resource.RLIMIT_CPU, (self.limits[name], self.limits[name] + 5))
            resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (MOST_OUTPUT, MOST_OUTPUT))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        environment = dict(os.environ, LD_LIBRARY_PATH=str(folder))
        with open(folder / f"{name}.log", "wb") as output:
            process = subprocess.Popen(self.test_command(name), stdout=output, stderr=subprocess.STDOUT, cwd=self.tree,
                                       stdin=subprocess.DEVNULL, env=environment, preexec_fn=confine)
            try:
                return process.wait(LONGEST_WAIT) == 0
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
                return False
