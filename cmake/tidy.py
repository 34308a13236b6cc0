#!/usr/bin/env python3
"""tidy.py BUILD_DIR < SOURCES: reads sources with clang-tidy, several at once.

What costs here is the headers, which clang-tidy walks through again for every source. So the
sources of one folder and one target are read as one, up to TOGETHER of them. Where they do not go
together (two have a function of one name in their unnamed namespaces), or something is found, each
half of them is read, and so on: what is printed was found in one source, read alone.

The compiler's own warnings count only there as well; a build with clang has them anyway.
"""
import collections
import concurrent.futures
import itertools
import json
import os
import pathlib
import re
import subprocess
import sys

TOGETHER = 8
# Every one of these has the same names in its unnamed namespace.
ALIKE = ("apps/host/commands",)
FOLDERS = "(include/zsg|src|platform|apps)/"

root = pathlib.Path.cwd()
build = pathlib.Path(sys.argv[1]).resolve()
work = build / "tidy"
numbers = itertools.count()


def groups_of(wanted):
    """Lists of (flags, folder to run in, sources)."""
    of_target = collections.defaultdict(list)
    left = set(wanted)
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = entry["file"]
        if source in left:
            left.remove(source)  # a source of two targets is read in the first
            folder = os.path.relpath(os.path.dirname(source), root)
            flags = entry["command"].rsplit(" -o ", 1)[0]
            of_target[folder, flags, entry["directory"]].append(source)
    # What a build without a package compiles: clang-tidy reads it with its neighbours' flags.
    groups = [("", "", [source]) for source in sorted(left)]
    for (folder, flags, directory), sources in of_target.items():
        parts = len(sources) if folder in ALIKE else -(-len(sources) // TOGETHER)
        groups += [(flags, directory, sorted(sources)[i::parts]) for i in range(parts)]
    # The largest first, so that none is left alone at the end.
    return sorted(groups, key=lambda group: -sum(map(os.path.getsize, group[2])))


def tidy(*arguments):
    result = subprocess.run(["clang-tidy-14", "--quiet", "--warnings-as-errors=*", *arguments],
                            capture_output=True, text=True)
    return result.returncode != 0, result.stdout


def read(group):
    flags, directory, sources = group
    if len(sources) == 1:
        return tidy("-p", str(build), sources[0])
    folder = work / str(next(numbers))
    folder.mkdir(parents=True, exist_ok=True)
    together = folder / "together.cpp"
    together.write_text("".join(f'#include "{source}"\n' for source in sources))
    (folder / "compile_commands.json").write_text(json.dumps(
        [{"directory": directory, "file": str(together), "command": f"{flags} -w -c {together}"}]))
    failed, _ = tidy("-p", str(folder), f"--header-filter=^{re.escape(str(root))}/{FOLDERS}",
                     "--checks=-bugprone-suspicious-include,-clang-diagnostic-*", str(together))
    if not failed:
        return False, ""
    middle = len(sources) // 2
    halves = [read((flags, directory, part)) for part in (sources[:middle], sources[middle:])]
    return any(failed for failed, _ in halves), "".join(text for _, text in halves)


wanted = [str(root / line.strip()) for line in sys.stdin if line.strip()]
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    found = 0
    for failed, text in pool.map(read, groups_of(wanted)):
        found += failed
        sys.stdout.write(text)
print(f"{len(wanted)} sources read")
sys.exit(found > 0)
