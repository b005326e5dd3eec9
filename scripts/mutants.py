"""Makes mutants of the sources in a copy of the project that is built with shared libraries, and
tells which of them the tests notice. Started by mutants.sh, which makes the copy.

A mutant is compiled by the copy's own command and linked into a library of its own, which the test
programs load in the place of the copy's. So the copy stays as it was built.
"""

import argparse
import difflib
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import mutations

# Sources without a rule of their own, and those that another system compiles.
LEFT_OUT = re.compile(r"(Windows|/main|/WindowStyle)\.cpp$")
# Test programs whose tests start the program itself, which their own libraries do not tell.
START_THE_PROGRAM = ("program_tests", "window_tests", "gestures_tests")


def parse_arguments():
    parser = argparse.ArgumentParser(
        prog="mutants.sh",
        description="Changes the sources in one place at a time and tells which changes no test "
        "notices.",
    )
    parser.add_argument("--count", type=int, default=100, help="mutants that compile (100)")
    parser.add_argument("--seed", type=int, default=1, help="of the choice of places (1)")
    parser.add_argument("--layer", action="append", default=[], help="only this folder of src/; "
                        "can be repeated")
    parser.add_argument("--paths", nargs="+", default=[], help="only these files, and the chosen layers")
    parser.add_argument("--skip", default="demo,gestures,print_queue",
                        help="test programs left out, parted by commas "
                        "(demo,gestures,print_queue)")
    parser.add_argument("--jobs", type=int, default=1, help="mutants tried at the same time (1)")
    parser.add_argument("--tree", type=Path, required=True, help=argparse.SUPPRESS)
    return parser.parse_args()


class Build:
    """The copy's build: how its sources are compiled, its libraries linked, its tests run."""

    def __init__(self, tree, skipped):
        self.tree = tree
        self.folder = tree / "build-test"
        database = json.loads((self.folder / "compile_commands.json").read_text())
        self.commands = {str(Path(entry["file"]).relative_to(tree)): entry for entry in database}
        targets = subprocess.run(
            ["ninja", "-C", self.folder, "-t", "targets", "all"],
            check=True, capture_output=True, text=True,
        ).stdout
        names = set(re.findall(r"^(?!cmake_)(\w+_tests): phony", targets, re.M))
        names -= {name + "_tests" for name in skipped}
        self.tests = [self.folder / "bin" / name for name in sorted(names)]
        self.seconds = {}
        self.libraries = {}

    def make_tests(self):
        if subprocess.run(["ninja", "-C", self.folder, *(test.name for test in self.tests)],
                          stdout=subprocess.DEVNULL).returncode != 0:
            sys.exit("The tests cannot be built without a mutant.")

    def lib_of(self, layer):
        return f"libtempora_{layer}.so"

    def link_command(self, layer):
        target = f"src/{layer}/{self.lib_of(layer)}"
        commands = subprocess.run(
            ["ninja", "-C", self.folder, "-t", "commands", "-s", target],
            check=True, capture_output=True, text=True,
        ).stdout.splitlines()
        return re.sub(r"^: && | && :$", "", commands[-1])

    def used_libraries(self, program):
        if program not in self.libraries:
            told = subprocess.run(["ldd", program], check=True, capture_output=True, text=True)
            used = set(re.findall(r"libtempora_\w+\.so", told.stdout))
            if program.name in START_THE_PROGRAM:
                used |= self.used_libraries(self.folder / "bin/tempora")
            self.libraries[program] = used
        return self.libraries[program]

    def tests_of(self, layer):
        """The layer's own tests, then the others that use it, the quickest first."""
        using = [test for test in self.tests if self.lib_of(layer) in self.used_libraries(test)]
        own = layer + "_tests"
        return sorted(using, key=lambda test: (test.name != own, self.seconds.get(test, 0)))

    def run(self, test, library_folder=None):
        """Whether the program's tests pass, up to the first that does not."""
        environment = dict(os.environ)
        if test.name not in START_THE_PROGRAM:
            environment["QT_QPA_PLATFORM"] = "offscreen"
        if library_folder is not None:
            environment["LD_LIBRARY_PATH"] = str(library_folder)
        limit = 60 + 6 * self.seconds[test] if test in self.seconds else 900
        with subprocess.Popen(
            [test, "--gtest_fail_fast", "--gtest_brief=1"],
            cwd=test.parent, env=environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
        ) as process:
            try:
                output = process.communicate(timeout=limit)[0].decode(errors="replace")
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, 9)
                process.communicate()
                return False, "takes too long"
            failed = re.search(r"\[  FAILED  \] (\S+)", output)
            reason = failed.group(1).rstrip(",") if failed else f"ends with {process.returncode}"
            return process.returncode == 0, reason

    def measure(self, layers):
        """Runs the tests without a mutant; what fails so is of no use."""
        needed = {test for layer in layers for test in self.tests_of(layer)}
        for test in [test for test in self.tests if test in needed]:
            start = time.monotonic()
            passes, reason = self.run(test)
            if passes:
                self.seconds[test] = time.monotonic() - start
            else:
                print(f"Left out, as it fails without a mutant: {test.name} ({reason})", flush=True)
        self.tests = [test for test in self.tests if test in self.seconds]


class Mutant:
    def __init__(self, number, path, mutation, source):
        self.number = number
        self.path = path
        self.layer = path.split("/")[1]
        self.mutation = mutation
        self.source = source
        self.outcome = ""
        self.noticed_by = ""

    @property
    def line(self):
        return self.source.count("\n", 0, self.mutation.begin) + 1

    def difference(self):
        lines = difflib.unified_diff(
            self.source.splitlines(), self.mutation.applied(self.source).splitlines(),
            lineterm="", n=1,
        )
        return "\n".join(f"    {line}" for line in list(lines)[3:])

    def build(self, build, folder):
        """Whether the mutant compiles and links, into the folder."""
        entry = build.commands[self.path]
        # Beside the source: what it includes by name is found.
        changed = build.tree / self.path.replace(".cpp", f".mutant{self.number}.cpp")
        changed.write_text(self.mutation.applied(self.source))
        made = folder / "mutant.o"
        command = shlex.split(entry["command"])
        command = [
            str(changed) if part == entry["file"] else str(made) if part == old_output(command)
            else part for part in command
        ]
        if Path(command[0]).name == "ccache":
            del command[0]
        try:
            # No warning counts: a mutant may well leave something unused.
            if not succeeds([*command, "-w"], entry["directory"]):
                return False
        finally:
            changed.unlink()
        link = shlex.split(build.link_command(self.layer))
        library = build.lib_of(self.layer)
        link = [
            str(folder / library) if part.endswith("/" + library)
            else str(made) if part.endswith("/" + old_name(self.path)) else part for part in link
        ]
        return succeeds(link, build.folder)

    def try_out(self, build, scratch):
        folder = scratch / str(self.number)
        folder.mkdir(parents=True)
        try:
            if not self.build(build, folder):
                self.outcome = "did not compile"
                return self
            for test in build.tests_of(self.layer):
                passes, reason = build.run(test, folder)
                if not passes:
                    self.outcome, self.noticed_by = "noticed", f"{test.name}: {reason}"
                    return self
            self.outcome = "unnoticed"
            return self
        finally:
            shutil.rmtree(folder)


def old_output(command):
    return command[command.index("-o") + 1]


def old_name(path):
    return Path(path).name + ".o"


def succeeds(command, folder):
    return subprocess.run(command, cwd=folder, capture_output=True).returncode == 0


def sources(tree, options):
    found = {}
    for path in sorted(tree.glob("src/*/*.cpp")):
        name = str(path.relative_to(tree))
        every = not options.layer and not options.paths
        chosen = every or name.split("/")[1] in options.layer or name in options.paths
        if chosen and not LEFT_OUT.search(name):
            found[name] = path.read_text()
    if not found:
        sys.exit("No source of src/ is chosen.")
    return found


def report(mutants):
    compiled = [mutant for mutant in mutants if mutant.outcome != "did not compile"]
    noticed = [mutant for mutant in compiled if mutant.outcome == "noticed"]
    print()
    for layer in sorted({mutant.layer for mutant in compiled}):
        own = [mutant for mutant in compiled if mutant.layer == layer]
        print(f"{layer}: {sum(mutant in noticed for mutant in own)} of {len(own)} noticed")
    print(f"Noticed: {len(noticed)} of {len(compiled)}. Unnoticed: {len(compiled) - len(noticed)}. "
          f"Did not compile: {len(mutants) - len(compiled)}.")


def main():
    options = parse_arguments()
    build = Build(options.tree.resolve(), [name for name in options.skip.split(",") if name])
    texts = sources(build.tree, options)
    build.make_tests()
    build.measure({path.split("/")[1] for path in texts})
    # More than are asked for: what does not compile does not count.
    candidates = [
        Mutant(number, path, mutation, texts[path])
        for number, (path, mutation) in enumerate(
            mutations.drawn(texts, 4 * options.count, options.seed))
    ]
    scratch = build.folder / "mutants"
    shutil.rmtree(scratch, ignore_errors=True)
    tried, compiled = [], 0
    with ThreadPoolExecutor(options.jobs) as pool:
        while candidates and compiled < options.count:
            several = candidates[: min(options.jobs, options.count - compiled)]
            del candidates[: len(several)]
            for mutant in pool.map(lambda one: one.try_out(build, scratch), several):
                tried.append(mutant)
                compiled += mutant.outcome != "did not compile"
                if mutant.outcome != "did not compile":
                    place = f"{mutant.path}:{mutant.line}"
                    by = f" by {mutant.noticed_by}" if mutant.noticed_by else ""
                    print(f"{compiled}/{options.count} {place} {mutant.outcome}{by}")
                if mutant.outcome == "unnoticed":
                    print(mutant.difference())
                sys.stdout.flush()
    report(tried)


if __name__ == "__main__":
    main()
