#!/usr/bin/env python3
"""Checks who includes whom: the program under src/ knows the C++ standard library and itself, adapters, shell and fakes
know the program but not each other. The machine's headers lie on the compiler's path, so only this check keeps them out.
"""
import pathlib
import re
import sys

STANDARD = set("""algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes
climits clocale cmath compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint cstdio
cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream functional
future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set shared_mutex
source_location span sstream stack stdexcept stop_token streambuf string string_view syncstream system_error thread tuple
type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version""".split())
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def folders(path):
    return {entry.name for entry in path.iterdir() if entry.is_dir()} if path.is_dir() else set()


def main(root):
    program, adapters = folders(root / "src"), folders(root / "adapters")
    faults = []

    def check(tree, allowed):
        for file in sorted((root / tree).rglob("*")):
            if file.suffix not in (".h", ".cpp"):
                continue
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                found = INCLUDE.match(line)
                if found and not allowed(found[1] == "<", found[2], file):
                    faults.append(f"{file.relative_to(root)}:{number}: {line.strip()}")

    def first(name):
        return name.split("/")[0]

    check("src", lambda system, name, file: name in STANDARD if system else first(name) in program)
    check("fakes", lambda system, name, file: name in STANDARD if system else first(name) in program | {"fakes"})
    check("adapters", lambda system, name, file: system or first(name) in program
          or first(name) == file.relative_to(root / "adapters").parts[0])
    check("shell", lambda system, name, file: system or first(name) not in adapters | {"fakes"})
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
