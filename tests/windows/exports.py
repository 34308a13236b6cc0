#!/usr/bin/env python3
"""exports.py ELF_DIR DLL_DIR: the libraries for Windows export what those for Linux do.

Names are compared as C++ shows them. Left out: virtual tables and type information, which the two
systems place differently, and what is weak on Linux, which is inline and is made where it is used.
What only Windows exports must be a member of a class that is exported on Linux as well.
"""
import pathlib
import re
import subprocess
import sys

elf_dir, dll_dir = map(pathlib.Path, sys.argv[1:])
compiler_made = re.compile(r"^(vtable|typeinfo|typeinfo name|VTT|construction vtable|"
                           r"(non-)?virtual thunk|covariant return thunk)\b")
# Inside an exported class, and so exported with it on Linux, but no application sees it.
hidden = ("zsg::WeavePattern::Data",)


def output(*command, text=None):
    return subprocess.run(command, input=text, capture_output=True, text=True, check=True).stdout


def shown(mangled):
    names = output("c++filt", text="\n".join(mangled)).splitlines()
    # A size is an unsigned long here, and an unsigned long long there.
    return {re.sub(r"\blong long\b", "long", n) for n in names if not compiler_made.match(n)}


def scope(name):
    return re.sub(r"(<[^()]*>)?\(.*", "", name).rpartition("::")[0]


failed = False
for library in ("nyxrender", "zcore", "ztask", "zscenegraph", "nyxembedded"):
    symbols = [line.split()[-2:] for line in
               output("nm", "-D", "--defined-only", elf_dir / f"lib{library}.so").splitlines()]
    strong = shown(name for kind, name in symbols if kind in "TBDR")
    all_elf = shown(name for _, name in symbols)
    table = output("x86_64-w64-mingw32-objdump", "-p", dll_dir / f"{library}.dll")
    table = table[table.index("[Ordinal/Name Pointer] Table"):]
    dll = shown(re.findall(r"^\s*\[ *\d.*\s(\S+)$", table, re.MULTILINE))
    missing = {name for name in strong - dll if scope(name) not in hidden}
    scopes = {scope(name) for name in all_elf}
    surplus = {name for name in dll - all_elf if scope(name) not in scopes}
    print(f"{library}: {len(strong)} names on Linux, {len(dll)} on Windows")
    for title, names in (("missing", missing), ("surplus", surplus)):
        for name in sorted(names):
            print(f"  {title}: {name}")
    failed = failed or bool(missing or surplus) or not strong
sys.exit(failed)
