#!/usr/bin/env python3
"""Makes the Debian packages of a build and looks whether they hold, and ask for, what they should.
  tools/check_packages.py BUILD          unpacks them into build/packages/root
  tools/check_packages.py BUILD --bare   also installs them on a bare Debian 12 in a folder and uses them there; needs
                                         the rights of root, and fetches that system
"""

import argparse
import os
import re
import shutil
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build/packages"
RELEASE = "bookworm"

# What each package must hold, and all that it may ask for.
PACKAGES = {
    "libteskara0.1": (
        ["usr/lib/libteskara.so.0.1"],
        ["libc6", "libgcc-s1", "libstdc++6"]),
    "libteskara-dev": (
        ["usr/lib/libteskara.so", "usr/include/teskara/core/CUIManager.h", "usr/lib/pkgconfig/teskara.pc",
         "usr/lib/cmake/Teskara/TeskaraConfig.cmake"],
        ["libteskara0.1"]),
    "teskara": (
        ["usr/bin/teskara", "usr/share/teskara/interfaces/desktop.xml", "usr/share/teskara/interfaces/skins/slate/skin.xml",
         "usr/share/man/man1/teskara.1", "usr/share/man/man5/teskara-interface.5"],
        ["libteskara0.1", "fonts-dejavu-core", "libc6", "libfontconfig1", "libfreetype6", "libgcc-s1", "libharfbuzz0b",
         "liblua5.4-0", "libsdl2-2.0-0", "libsdl2-image-2.0-0", "libstdc++6"]),
}

# What somebody does who has just installed them.
FIRST_STEPS = """
set -e
apt-get update -qq
export DEBIAN_FRONTEND=noninteractive
apt-get install -y -qq --no-install-recommends /packages/libteskara[0-9]*.deb /packages/teskara_*.deb
cd /tmp
teskara --version
teskara lint --strict /usr/share/teskara/interfaces/*.xml
teskara shot desktop.xml -o desktop.png
apt-get install -y -qq --no-install-recommends /packages/libteskara-dev_*.deb g++ pkg-config
g++ -std=c++20 -o client /packages/Client.cpp $(pkg-config --cflags --libs teskara)
./client
"""


def run(*command, **options):
    words = [str(word) for word in command]
    done = subprocess.run(words, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)
    if done.returncode != 0:
        sys.exit(f"{' '.join(words)}\n{done.stdout.rstrip()}")
    return done.stdout


def make(build):
    shutil.rmtree(WORK, ignore_errors=True)
    run("cpack", "--config", build / "CPackConfig.cmake", "-B", WORK, cwd=ROOT)
    shutil.rmtree(WORK / "_CPack_Packages", ignore_errors=True)
    return {run("dpkg-deb", "--field", file, "Package").strip(): file for file in WORK.glob("*.deb")}


def faults_of(package, file, root):
    holds, may_ask = PACKAGES[package]
    for path in holds:
        if not os.path.lexists(root / path):
            yield f"{package} lacks {path}"
    asked = re.findall(r"(?:^|, )([^ ,]+)", run("dpkg-deb", "--field", file, "Depends").strip())
    for name in sorted(set(asked) ^ set(may_ask)):
        yield f"{package} asks for {name}" if name in asked else f"{package} no longer asks for {name}"


def use_on_a_bare_system(files):
    bare = WORK / "bare"
    print(f"fetching a bare {RELEASE}", flush=True)
    run("debootstrap", "--variant=minbase", RELEASE, bare)
    (bare / "packages").mkdir()
    for file in [*files, ROOT / "tests/installed/Client.cpp"]:
        shutil.copy(file, bare / "packages")
    for settings in ("etc/apt/apt.conf.d", "etc/resolv.conf"):
        if Path("/", settings).is_dir():
            shutil.copytree(Path("/", settings), bare / settings, dirs_exist_ok=True)
        else:
            shutil.copy(Path("/", settings), bare / settings)
    run("mount", "-t", "proc", "proc", bare / "proc")
    try:
        run("chroot", bare, "sh", "-c", FIRST_STEPS)
    finally:
        run("umount", bare / "proc")
    if not (bare / "tmp/desktop.png").exists():
        sys.exit("no picture was made")
    shutil.rmtree(bare)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path)
    parser.add_argument("--bare", action="store_true")
    options = parser.parse_args()

    files = make(options.build)
    faults = [f"there is no package {name}" for name in sorted(set(PACKAGES) - set(files))]
    for package in sorted(set(PACKAGES) & set(files)):
        run("dpkg-deb", "--extract", files[package], WORK / "root")
        faults += faults_of(package, files[package], WORK / "root")
    print("\n".join(faults), end="\n" if faults else "")
    if not faults and options.bare:
        use_on_a_bare_system(files.values())
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
