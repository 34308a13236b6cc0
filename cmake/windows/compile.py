#!/usr/bin/env python3
"""compile.py BUILD_DIR: compiles every source of a configured build, C++ without making objects.

The build folder's precompiled header must be there; the libraries that a program links need not be.
"""
import concurrent.futures
import json
import os
import pathlib
import subprocess
import sys

build = pathlib.Path(sys.argv[1]).resolve()
commands = [c for c in json.loads((build / "compile_commands.json").read_text())
            if "cmake_pch" not in c["file"]]


def compiled(entry):
    command = entry["command"]
    if not entry["file"].endswith(".rc"):  # a resource compiler can only compile
        command = command.rsplit(" -o ", 1)[0] + f" -g0 -fsyntax-only {entry['file']}"
    result = subprocess.run(command, shell=True, cwd=entry["directory"], capture_output=True,
                            text=True)
    return result.returncode, result.stdout + result.stderr


with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    failed = 0
    for code, text in pool.map(compiled, commands):
        failed += code != 0
        sys.stdout.write(text)
print(f"{len(commands) - failed} of {len(commands)} sources compile for Windows")
sys.exit(failed > 0)
