#!/usr/bin/env python3
"""Holds the folders to one table: who stands on whom. Behind ./dev check layering.

A row names a room, its files, and the rooms that those files may include. It may name only rooms
above it, so the rooms cannot form a circle; the one folder that is two rooms is core, whose root
(the roof) builds every subsystem, while everything else of it is ground floor.
"""
import fnmatch
import re
import subprocess
import sys

ROWS = [
    # room, files, may include
    ("declarations", "platform/include/*", ""),
    ("export", "include/zsg/Export.h", ""),
    ("core", "include/zsg/core/* include/zsg/version.h src/core/*", "declarations export"),
    ("values", "include/zsg/values/* src/values/*", "declarations export"),
    ("material manager", "include/zsg/materials/ISceneMaterialManager.h", "declarations export"),
    ("colors", "include/zsg/colors/* src/colors/*",
     "declarations export core values|material manager"),
    ("materials", "include/zsg/materials/* src/materials/*",
     "declarations export core values|material manager"),
    ("lightlayers", "include/zsg/lightlayers/* src/lightlayers/*", "declarations export core"),
    ("painting", "include/zsg/painting/* src/painting/*", "declarations export core values"),
    ("roof", "src/core/ZSceneGraph.* src/core/ISceneGraph.cpp",
     "declarations export core colors materials lightlayers painting"),
    # The embedded platform: nyxrender from records up to its facade, zcore and ztask beside it,
    # and what also needs the library on top.
    ("facade headers", "platform/embedded/include/nyxembedded/*", "declarations"),
    ("paint", "platform/embedded/paint/*", "declarations|facade headers"),
    ("store", "platform/embedded/store/*", "declarations paint|facade headers"),
    ("api", "platform/embedded/api/*", "declarations paint store|facade headers"),
    ("scenefile", "platform/embedded/scenefile/*",
     "declarations paint store api|facade headers"),
    ("renderer", "platform/embedded/renderer/*",
     "declarations paint store api scenefile|facade headers"),
    ("zcore", "platform/embedded/zcore/*", "declarations"),
    ("ztask", "platform/embedded/ztask/*", "declarations"),
    ("nyxembedded headers",
     "platform/embedded/include/nyxembedded/Host.h"
     " platform/embedded/include/nyxembedded/MaterialManager.h"
     " platform/embedded/include/nyxembedded/RenderTaskQueue.h",
     "declarations export core|material manager|facade headers"),
    ("nyxembedded", "platform/embedded/nyxembedded/*",
     "declarations export core colors materials lightlayers painting|material manager"
     "|facade headers|nyxembedded headers"),
    ("example of painting", "examples/painting/*", "declarations|facade headers"),
    ("host", "apps/host/*",
     "declarations export core values colors materials lightlayers painting|material manager"
     "|facade headers|nyxembedded headers|example of painting"),
    ("panels", "apps/workbench/scene/* apps/workbench/colors/* apps/workbench/history/*"
     " apps/workbench/events/* apps/workbench/painting/* apps/workbench/values/*"
     " apps/workbench/lights/* apps/workbench/materials/*",
     "declarations export core values colors materials lightlayers painting host"
     "|material manager"),
    ("window", "apps/workbench/*",
     "declarations export core colors painting host panels|material manager|facade headers"
     "|nyxembedded headers|example of painting"),
    ("console", "apps/console/*", "core colors host|facade headers|nyxembedded headers"),
]
ROOTS = ["include", "src", "platform/include", "platform/embedded/include", "platform/embedded",
         "apps", "examples"]
INCLUDE = re.compile(r'^#include "([^"]+)"', re.M)


def names(text):
    """The rooms of a cell: single words, and groups of words between bars."""
    plain, *rest = text.split("|")
    return plain.split() + rest


def tracked():
    listing = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], check=True, capture_output=True,
                             text=True).stdout
    return listing.split()


def room_of(path):
    """The room of a file; of several that fit, the one that names it most exactly."""
    fits = [(len(pattern), row[0]) for row in ROWS for pattern in row[1].split()
            if fnmatch.fnmatch(path, pattern)]
    return max(fits)[1] if fits else None


def resolve(include, path, files):
    folder = path.rsplit("/", 1)[0]
    for root in ROOTS + [folder]:
        if f"{root}/{include}" in files:
            return f"{root}/{include}"
    return None


def header_circle(includes):
    """A list of headers that include each other in a ring, or nothing."""
    state, trail = {}, []

    def visit(path):
        state[path] = "open"
        trail.append(path)
        for target in includes.get(path, ()):
            if state.get(target) == "open":
                return trail[trail.index(target):] + [target]
            if target not in state and (ring := visit(target)):
                return ring
        trail.pop()
        state[path] = "done"
        return None

    for path in sorted(includes):
        if path not in state and (ring := visit(path)):
            return ring
    return None


def main():
    faults = []
    allowed = {}
    for room, _, may in ROWS:
        faults += [f"row \"{room}\": \"{name}\" does not stand above it" for name in names(may)
                   if name not in allowed]
        allowed[room] = set(names(may)) | {room}
    files = set(tracked())
    includes = {}
    for path in sorted(files):
        room = room_of(path)
        if room is None:
            if path.startswith(("include/", "src/", "platform/", "apps/")):
                faults.append(f"{path}: stands in no row of the table")
            continue
        with open(path, encoding="utf-8") as source:
            for include in INCLUDE.findall(source.read()):
                target = resolve(include, path, files)
                if target is None:
                    if not include.endswith((".inc", ".moc")):
                        faults.append(f"{path}: includes \"{include}\", which is nowhere")
                    continue
                includes.setdefault(path, set()).add(target)
                if (other := room_of(target)) not in allowed[room]:
                    faults.append(f"{path}: {room} may not include {other} ({include})")
    if ring := header_circle(includes):
        faults.append("headers in a circle: " + " -> ".join(ring))
    for fault in faults:
        print("layering:", fault)
    return bool(faults)


if __name__ == "__main__":
    sys.exit(main())
