#!/usr/bin/env python3
"""Runs the whole test suite; called by ./test, which explains the options."""

import argparse
import os
import re
import signal
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import coverage
import tidy

ROOT = Path(__file__).resolve().parent.parent
FUZZ_SECONDS = 60
CORPUS_VARIATIONS = 10
LONGEST_STAGE_SECONDS = 900
SHARES = 2  # of a long stage, at the same time
LEAST_CELLS = {"dev": 400000, "sanitize": 100000}  # of the matrix, which sanitizers see a selection of
OTHER_COMPILERS = ("gcc32", "clang32", "libcxx32", "libcxx")
HARSH_LOCALE = "de_DE.UTF-8"

SANITIZER_ENVIRONMENT = {
    "ASAN_OPTIONS": "detect_stack_use_after_return=1",
    "UBSAN_OPTIONS": "print_stacktrace=1",
}


class Tally:
    """What passed, and of what failed the name and the command that shows it again."""

    def __init__(self):
        self.passed = 0
        self.failures = []

    def ok(self, count=1):
        self.passed += count

    def fail(self, name, rerun):
        self.failures.append((name, rerun))


BEGUN = time.monotonic()


def say(text):
    """Announces a stage, with the minutes and seconds since the run began."""
    minutes, seconds = divmod(int(time.monotonic() - BEGUN), 60)
    print(f"== {minutes:02}:{seconds:02} {text}", flush=True)


def run(command):
    """(exit status, output) of a command in the root; a hang counts as a failure. The output goes to a file: what a
    command leaves running, as Wine does, may hold a pipe open for ever."""
    environment = {**os.environ, **SANITIZER_ENVIRONMENT}
    with tempfile.TemporaryFile("w+", encoding="utf-8", errors="replace") as output:
        try:
            status = subprocess.run([str(word) for word in command], cwd=ROOT, env=environment, stdout=output,
                                    stderr=subprocess.STDOUT, timeout=LONGEST_STAGE_SECONDS).returncode
            note = f"\nended by {signal.Signals(-status).name}\n" if status < 0 else ""
        except subprocess.TimeoutExpired:
            status, note = 1, f"\nstopped after {LONGEST_STAGE_SECONDS} s\n"
        output.seek(0)
        return status, output.read() + note


def check(tally, name, command):
    """One test: the command's exit status."""
    status, output = run(command)
    if status == 0:
        tally.ok()
    else:
        print(output.rstrip())
        tally.fail(name, " ".join(str(word) for word in command))
    return status == 0


def build(tally, preset):
    say(f"build/{preset}: building, a warning is an error")
    if subprocess.run([ROOT / "tools/build", preset, "--quiet", "-DTESKARA_WERROR=ON"], cwd=ROOT).returncode == 0:
        return True
    tally.fail(f"build of {preset}", f"tools/build {preset}")
    return False


def program(preset, name):
    """The words that start a program of a build."""
    folder = f"build/{preset}/bin"
    return ["wine", f"{folder}/{name}.exe"] if preset == "windows" else [f"{folder}/{name}"]


def check_the_house(tally):
    say("checks: layers, sizes, formatting, bans, skins, and that these checks can fail")
    check(tally, "layers", ["tools/check_layers.py"])
    check(tally, "sizes", ["tools/check_sizes.py"])
    check(tally, "formatting", ["tools/check_format.py"])
    check(tally, "bans", ["tools/check_bans.py"])
    check(tally, "skins", ["tools/check_skins.py"])
    check(tally, "checks of the checks", ["tools/test_checks.py"])


def lint(tally):
    say("lint: clang-tidy on what changed since it last passed")
    tidied(tally, tidy.QUICK)


def tidied(tally, checks):
    passed, failed = tidy.run(ROOT, ROOT / "build/dev", checks)
    tally.ok(passed)
    for name, output in failed:
        print(output.rstrip())
        tally.fail(f"lint of {name}", f"clang-tidy {checks} -p build/dev {name}")


def static_checks(tally):
    lint(tally)
    say("static: clang-tidy with the checks that take long")
    tidied(tally, tidy.SLOW)
    say("static: cppcheck")
    cache = ROOT / "build/cppcheck"
    cache.mkdir(parents=True, exist_ok=True)
    check(tally, "cppcheck", ["cppcheck", "-j", SHARES, "--std=c++20", "--language=c++", "--quiet", "--error-exitcode=1",
                              "--enable=warning,performance,portability", f"--cppcheck-build-dir={cache}",
                              "--suppressions-list=.cppcheck", "--suppress=missingIncludeSystem", "-DTESKARA_EXPORT=",
                              "-Dnoexcept=", "-I", ".", "teskara", "host", "program"])


def in_shares(tally, work):
    """What work(tally, number) gives for each share of a stage; they run at the same time."""
    tallies = [Tally() for _ in range(SHARES)]
    with ThreadPoolExecutor(SHARES) as pool:
        results = list(pool.map(work, tallies, range(SHARES)))
    for share in tallies:
        tally.passed += share.passed
        tally.failures += share.failures
    return results


def names_of_tests(tests):
    names, suite = [], ""
    for line in run([*tests, "--gtest_list_tests"])[1].splitlines():
        name = line.split("#")[0].rstrip()
        if name.startswith("  "):
            names.append(suite + name.strip())
        elif name.endswith("."):
            suite = name
    return names


def unit_tests(tally, preset, under=()):
    say(f"build/{preset}: unit tests{', harshly' if under else ''}")
    run_all_tests(tally, [*under, *program(preset, "teskara_unit")])


def matrix(tally, preset, under=()):
    say(f"build/{preset}: each kind, with each act wherever the toolkit calls out{', harshly' if under else ''}")
    tests = [*under, *program(preset, "teskara_matrix")]
    if preset == "dev":
        tests = ["env", "TESKARA_MATRIX=all", "MALLOC_PERTURB_=165", *tests]  # what is freed does not look alive
    output = run_all_tests(tally, tests)
    cells = sum(map(int, re.findall(r"^\[    CELLS \] (\d+) of ", output, re.MULTILINE)))
    say(f"build/{preset}: {cells} cells of the matrix")
    if cells >= LEAST_CELLS[preset]:
        tally.ok()
    else:
        tally.fail(f"{LEAST_CELLS[preset]} cells of the matrix", " ".join(tests))


def run_all_tests(tally, tests):
    """Runs the tests of a program in shares, and gives what they write."""
    if not (ROOT / tests[-1]).exists():
        return ""
    names = names_of_tests(tests)
    if not names:
        tally.fail(f"list of {tests[-1]}", f"{' '.join(tests)} --gtest_list_tests")
    return "".join(in_shares(tally, lambda share, number: run_tests(share, tests, names[number::SHARES])))


def run_tests(tally, tests, names):
    rerun, outputs = " ".join(tests), ""
    while names:
        # After a crash the tests that had not had their turn are run by themselves.
        with tempfile.NamedTemporaryFile("w", dir=ROOT / "build", suffix=".flags") as flags:
            # Where the stack is small, and on Windows, a command has not much room for words.
            flags.write(f"--gtest_filter={':'.join(names)}\n")
            flags.flush()
            status, output = run([*tests, f"--gtest_flagfile={Path(flags.name).relative_to(ROOT)}"])
        outputs += output
        begun = re.findall(r"^\[ RUN      \] (\S+)", output, re.MULTILINE)
        good = set(re.findall(r"^\[       OK \] (\S+)", output, re.MULTILINE))
        finished = good | set(re.findall(r"^\[  (?:FAILED|SKIPPED) +\] (\S+?),? ", output, re.MULTILINE))
        tally.ok(len(good))
        for name in begun:
            if name not in good:
                tally.fail(name, f"{rerun} --gtest_filter={name}")
        if status != 0:
            passed = r"^\[ RUN      \] .*\n(\[    CELLS \] .*\n)?\[       OK \] .*\n|^\[[-=]+\].*\n+"
            print(re.sub(passed, "", output, flags=re.MULTILINE).strip())
        if all(name in finished for name in begun):
            missed = [name for name in names if name not in begun]
            if missed or (status != 0 and len(good) == len(begun)):
                tally.fail(f"end of {tests[-1]}", rerun)
            break
        names = [name for name in names if name not in begun]
    return outputs


def transcripts(tally, preset, under=()):
    say(f"build/{preset}: transcripts{', harshly' if under else ''}")
    folders = sorted(path.relative_to(ROOT) for path in (ROOT / "tests/transcripts").iterdir())
    probe = [*under, *program(preset, "teskara"), "probe", "--check"]
    in_shares(tally, lambda share, number: check_transcripts(share, probe, folders[number::SHARES]))


def check_transcripts(tally, probe, folders):
    status, output = run([*probe, *folders])
    counts = re.findall(r"^(\d+) passed, (\d+) failed$", output, re.MULTILINE)
    if not counts:
        print(output.rstrip())
        tally.fail("transcripts", " ".join([*probe, "tests/transcripts"]))
        return

    passed, failed = map(int, counts[-1])
    tally.ok(passed)
    if status == 0 and failed == 0:
        return
    print(output.rstrip())
    names = list(dict.fromkeys(re.findall(r"^\S+\.probe", output, re.MULTILINE)))[:failed]
    for name in names + ["a transcript"] * (max(failed, 1) - len(names)):
        rerun = name if name in names else "tests/transcripts"
        tally.fail(name, " ".join([*probe, rerun]))


def fuzz_targets():
    """Their sources are named in small letters, those of classes that serve them are not."""
    return sorted(path.stem for path in (ROOT / "tests/fuzz").glob("*.cpp") if path.stem.islower())


def replay_corpus(tally, preset):
    say(f"build/{preset}: the stored corpus of the fuzz targets, and {CORPUS_VARIATIONS} variations of each file")
    for target in fuzz_targets():
        program = f"build/{preset}/bin/fuzz_{target}"
        files = sorted(path.relative_to(ROOT) for path in (ROOT / "tests/fuzz/corpus" / target).glob("*"))
        while files:
            # The program names each file before it runs it, so after a crash the rest have their turn.
            status, output = run([program, "--vary", CORPUS_VARIATIONS, *files])
            reached = len(set(output.splitlines()) & {str(file) for file in files})
            if status == 0:
                tally.ok(len(files))
                break
            print(output.rstrip()[-4000:])
            tally.ok(max(reached - 1, 0))
            culprit = files[max(reached - 1, 0)]
            tally.fail(f"fuzz {target}: {culprit}", f"{program} --vary {CORPUS_VARIATIONS} {culprit}")
            files = files[max(reached, 1):]


def recordings(tally, preset):
    say(f"build/{preset}: recordings, replayed")
    for file in sorted((ROOT / "tests/recordings").glob("*.rec")):
        check(tally, f"recording {file.name}", [f"build/{preset}/bin/teskara", "replay", file.relative_to(ROOT)])


def served(tally, preset):
    say(f"build/{preset}: draw lists and serve, from outside, and the example of a client")
    check(tally, "draw lists and serve", ["tools/check_draw_lists.py", f"build/{preset}/bin/teskara"])
    check(tally, "client of teskara serve", ["examples/serve_client/visitors.py", f"build/{preset}/bin/teskara"])


def pictures(tally, preset):
    say(f"build/{preset}: pictures")
    cases = (ROOT / "tests/pictures/cases.txt")
    for line in cases.read_text(encoding="utf-8").splitlines() if cases.exists() else []:
        name, _, arguments = line.partition(":")
        if name.strip() and not name.startswith("#"):
            check(tally, f"picture {name}",
                  ["tools/check_picture.py", f"build/{preset}/bin/teskara", name, *arguments.split()])
    check(tally, "pictures of the gallery", ["tools/check_gallery.py", f"build/{preset}/bin/teskara"])


def reference(tally):
    say("build/dev: docs/reference is what the program makes, its schema takes all interfaces, the manual tells all")
    check(tally, "reference", ["tools/check_reference.py", "build/dev/bin/teskara"])
    check(tally, "manual", ["tools/check_manual.py", "build/dev/bin/teskara"])


def exports(tally):
    say("build/dev: exported names and virtual tables are those that programs were built against")
    check(tally, "exports", ["tools/check_exports.py", "build/dev/lib/libteskara.so"])


def samples(tally, preset):
    """What this project shows to others must hold nothing that its own program finds fault with."""
    say(f"build/{preset}: samples have nothing that teskara lint finds")
    files = sorted(file for folder in ("interfaces", "docs") for file in (ROOT / folder).rglob("*.xml"))
    check(tally, "lint of the samples",
          [f"build/{preset}/bin/teskara", "lint", "--strict", *(file.relative_to(ROOT) for file in files)])
    # The scripts of the example are for its own host.
    check(tally, "lint of the example",
          [f"build/{preset}/bin/teskara", "lint", "--strict", "--no-scripts", "examples/minimal_host/hello.xml"])


def installed_copies(tally):
    say("an installed copy, and unpacked packages: the program starts from them, programs build against them")
    installed, packages = ROOT / "build/installed", ROOT / "build/packages/root/usr"
    if check(tally, "install", ["cmake", "--install", "build/dev", "--prefix", installed]):
        client = ROOT / "build/installed_client"
        if check(tally, "client of an installed copy",
                 ["cmake", "-S", "tests/installed", "-B", client, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={installed}"]):
            check(tally, "build of a client", ["cmake", "--build", client])
            check(tally, "run of a client", [client / "client"])
            check(tally, "run of a client in C", [client / "c_client"])
        try_copy(tally, "an installed copy", installed)
    if check(tally, "packages", ["tools/check_packages.py", "build/dev"]):
        try_copy(tally, "unpacked packages", packages)


def try_copy(tally, name, prefix):
    """A copy of the toolkit under a folder: its program, and programs made with CMake and with pkg-config."""
    work = ROOT / "build/copies" / prefix.parent.name
    work.mkdir(parents=True, exist_ok=True)
    check(tally, f"program of {name}", [prefix / "bin/teskara", "shot", "desktop.xml", "-o", work / "desktop.png"])

    client = work / "client"
    flags = f"$(PKG_CONFIG_PATH={prefix}/lib/pkgconfig pkg-config --cflags --libs teskara)"
    if check(tally, f"client of {name} by pkg-config",
             ["sh", "-c", f"g++ -std=c++20 -o {client} tests/installed/Client.cpp {flags}"]):
        check(tally, f"run of a client of {name}", ["env", f"LD_LIBRARY_PATH={prefix}/lib", client])

    example = work / "minimal_host"
    font = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"
    if check(tally, f"example against {name}",
             ["cmake", "-S", "examples/minimal_host", "-B", example, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}"]):
        check(tally, "build of the example", ["cmake", "--build", example])
        check(tally, "run of the example", ["env", "SDL_VIDEODRIVER=offscreen", "SDL_RENDER_DRIVER=software",
                                            example / "minimal_host", "examples/minimal_host/hello.xml", font, "20"])
    try_example_in_c(tally, name, prefix, work / "minimal_host_c")


def try_example_in_c(tally, name, prefix, example, toolchain=(), started_by=""):
    if check(tally, f"example in C against {name}",
             ["cmake", "-S", "examples/minimal_host_c", "-B", example, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={prefix}",
              *toolchain]):
        check(tally, "build of the example in C", ["cmake", "--build", example])
        clicks = "Bigger@Hello Quit@Hello"
        check(tally, "run of the example in C",
              ["sh", "-c", f"{started_by} {example}/minimal_host_c* examples/minimal_host/hello.xml {clicks} | "
                           "diff --strip-trailing-cr tests/installed/minimal_host_c.txt -"])


def packages(tally):
    if build(tally, "package"):
        say("build/package: packages, installed and used on a bare Debian 12")
        check(tally, "packages on a bare system", ["tools/check_packages.py", "build/package", "--bare"])


def bounds(tally, preset):
    say(f"build/{preset}: what hostile markup may cost")
    check(tally, "bounds of hostile markup", [f"build/{preset}/bin/teskara_bounds"])


def soak(tally, preset, *options):
    """A run of the desktop by somebody who does whatever comes to mind; the seed is told when it fails."""
    say(f"build/{preset}: a run of the desktop, {' '.join(options)}")
    status, output = run([f"build/{preset}/bin/teskara_soak", *options])
    print(output.rstrip())
    if status == 0:
        tally.ok()
    else:
        seed = re.search(r"seed (\d+)", output)
        tally.fail("soak", f"build/{preset}/bin/teskara_soak {' '.join(options)} --seed {seed[1] if seed else '?'}")


def long_soak(tally, minutes):
    global LONGEST_STAGE_SECONDS
    LONGEST_STAGE_SECONDS = minutes * 60 + 600
    if build(tally, "release"):
        soak(tally, "release", "--minutes", str(minutes))


def harsh_locale():
    """The folder of a locale with a decimal comma, which the system need not have."""
    folder = ROOT / "build/locale"
    if not (folder / HARSH_LOCALE).exists():
        folder.mkdir(parents=True, exist_ok=True)
        subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", folder / HARSH_LOCALE], check=True)
    return folder


def harshly(preset):
    """The words that start a program with a decimal comma, traps of floats and a stack of 512 KiB."""
    return ["prlimit", f"--stack={512 * 1024}", "env", f"LOCPATH={harsh_locale()}", "LC_ALL=", f"LANG={HARSH_LOCALE}",
            "LC_MESSAGES=C", f"LD_PRELOAD={ROOT}/build/{preset}/lib/libteskara_harsh.so"]


def windows(tally):
    """Wine has an installation of its own under build/, and no display."""
    global LONGEST_STAGE_SECONDS
    LONGEST_STAGE_SECONDS = 3600
    if not build(tally, "windows"):
        return
    say("build/windows: Wine is set up")
    os.environ.update(WINEPREFIX=str(ROOT / "build/wine"), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=", DISPLAY="")
    if not check(tally, "set-up of Wine", ["wine", "wineboot", "--init"]):
        return
    # It stays between the many programs, which then start in no time.
    subprocess.run(["wineserver", "--persistent"], cwd=ROOT)
    try:
        check(tally, "exports for Windows", ["tools/check_exports.py", "build/windows/bin/teskara.dll"])
        prefix, example = ROOT / "build/installed_windows", ROOT / "build/minimal_host_c_windows"
        if check(tally, "install for Windows", ["cmake", "--install", "build/windows", "--prefix", prefix]):
            os.environ["WINEPATH"] = f"{prefix}/bin;{ROOT}/build/windows/bin"
            toolchain = ["-DCMAKE_TOOLCHAIN_FILE=" + str(ROOT / "cmake/mingw-w64-x86_64.cmake"),
                         f"-DCMAKE_FIND_ROOT_PATH={prefix}"]
            try_example_in_c(tally, "an installed copy for Windows", prefix, example, toolchain, "wine")
        unit_tests(tally, "windows")
        transcripts(tally, "windows")
    finally:
        subprocess.run(["wineserver", "--kill"], cwd=ROOT)


def compilers(tally):
    """What the other stages do not try: 32 bits, and clang with its own standard library."""
    if not check(tally, "libc++ for 32 bits", ["tools/unpack_libcxx32"]):
        return
    for preset in OTHER_COMPILERS:
        if build(tally, preset):
            unit_tests(tally, preset)
            transcripts(tally, preset)


def cover(tally):
    """What the unit tests, the transcripts and the stored inputs of the fuzz targets reach."""
    if not (build(tally, "dev") and build(tally, "coverage")):
        return
    say("build/coverage: which lines and branches of the toolkit the tests reach")
    replays = [[f"fuzz_{target}", *sorted(str(path) for path in (ROOT / "tests/fuzz/corpus" / target).glob("*"))]
               for target in fuzz_targets()]
    if coverage.measure(ROOT, replays):
        tally.ok()
    else:
        tally.fail("coverage", "./test --coverage")


def behaviour(tally, preset, with_pictures, under=()):
    if not build(tally, preset):
        return False
    unit_tests(tally, preset, under)
    matrix(tally, preset)
    samples(tally, preset)
    transcripts(tally, preset, under)
    recordings(tally, preset)
    served(tally, preset)
    replay_corpus(tally, preset)
    if with_pictures:
        pictures(tally, preset)
    return True


def fuzz(tally):
    if not build(tally, "fuzz"):
        return
    for target in fuzz_targets():
        say(f"fuzz: {target} searches for {FUZZ_SECONDS} seconds")
        found, seeds = ROOT / "build/fuzz/found" / target, ROOT / "tests/fuzz/corpus" / target
        found.mkdir(parents=True, exist_ok=True)
        # Without entropic: weighing the inputs would take longer than running them.
        command = [f"build/fuzz/bin/fuzz_{target}", f"-max_total_time={FUZZ_SECONDS}", "-timeout=20", "-verbosity=0",
                   "-entropic=0",
                   "-print_final_stats=1", f"-artifact_prefix=build/fuzz/{target}-"]
        dictionary = ROOT / f"tests/fuzz/{target}.dict"
        if dictionary.exists():
            command.append(f"-dict={dictionary}")
        check(tally, f"fuzz {target}", [*command, found, seeds])


def main():
    parser = argparse.ArgumentParser(prog="./test", description="Runs the tests.")
    parser.add_argument("--quick", action="store_true", help="no sanitizers, pictures, lint, second compiler")
    parser.add_argument("--fuzz", action="store_true", help=f"each fuzz target searches for {FUZZ_SECONDS} seconds")
    parser.add_argument("--coverage", action="store_true", help="which lines and branches of the toolkit the tests reach")
    parser.add_argument("--bounds", action="store_true", help="what hostile markup may cost in time and memory")
    parser.add_argument("--harsh", action="store_true",
                        help="unit tests and transcripts with a decimal comma, traps of floats and a small stack")
    parser.add_argument("--packages", action="store_true",
                        help="Debian packages, installed and used on a bare system; as root")
    parser.add_argument("--windows", action="store_true", help="what is built for Windows, by Wine")
    parser.add_argument("--compilers", action="store_true",
                        help="for 32 bits by GCC and clang, and with clang's own standard library")
    parser.add_argument("--static", action="store_true", help="clang-tidy with all of its checks, and cppcheck")
    parser.add_argument("--soak", type=int, metavar="MINUTES", help="a long run of the desktop, with a clock that is driven")
    options = parser.parse_args()

    sys.stdout.reconfigure(line_buffering=True)
    tally = Tally()
    if options.fuzz:
        fuzz(tally)
    elif options.soak:
        long_soak(tally, options.soak)
    elif options.coverage:
        cover(tally)
    elif options.packages:
        packages(tally)
    elif options.windows:
        windows(tally)
    elif options.compilers:
        compilers(tally)
    elif options.bounds:
        if build(tally, "release"):
            bounds(tally, "release")
    elif options.static:
        if build(tally, "dev"):
            static_checks(tally)
    elif options.harsh:
        if build(tally, "dev"):
            unit_tests(tally, "dev", harshly("dev"))
            matrix(tally, "dev", harshly("dev"))
            transcripts(tally, "dev", harshly("dev"))
    else:
        check_the_house(tally)
        # What passes harshly passes under kinder hosts too, and those that are built with sanitizers show that.
        built = behaviour(tally, "dev", with_pictures=not options.quick, under=() if options.quick else harshly("dev"))
        if built:
            reference(tally)
            exports(tally)
        if not options.quick:
            if built:
                lint(tally)
                installed_copies(tally)
            behaviour(tally, "sanitize", with_pictures=True)

    say("done")
    for name, rerun in tally.failures:
        print(f"FAILED {name}\n    again: {rerun}")
    print(f"{tally.passed} passed, {len(tally.failures)} failed", flush=True)
    return 1 if tally.failures else 0


if __name__ == "__main__":
    sys.exit(main())
