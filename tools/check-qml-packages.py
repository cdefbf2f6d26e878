#!/usr/bin/env python3
"""Checks that debian/control depends on the packages of just those QML modules that the program imports, and that
tools/setup.sh installs them. Nothing else notices: the libraries' dependencies are found by the package builder, but QML
modules are loaded by name, and a missing one leaves an empty window.
"""
import pathlib
import re
import sys

IMPORT = re.compile(r"^\s*import\s+([A-Z][\w.]*)", re.MULTILINE)
PACKAGE = re.compile(r"qml6-module-[\w-]+")
IN_PROGRAM = {"Tessivo"}
IMPORTED_BY_QT = {"QtQml.WorkerScript"}  # by the QtQml module, which every file gets


def main(root):
    files = [file for tree in ("shell", "app") for file in (root / tree).rglob("*.qml")]
    imports = {name for file in files for name in IMPORT.findall(file.read_text(encoding="utf-8"))}
    modules = (imports | IMPORTED_BY_QT) - IN_PROGRAM
    needed = {"qml6-module-" + module.lower().replace(".", "-") for module in modules}
    depends = set(PACKAGE.findall((root / "debian/control").read_text(encoding="utf-8")))
    installed = set(PACKAGE.findall((root / "tools/setup.sh").read_text(encoding="utf-8")))
    faults = [f"debian/control lacks {package}" for package in needed - depends]
    faults += [f"debian/control depends on {package}, which nothing imports" for package in depends - needed]
    faults += [f"tools/setup.sh lacks {package}" for package in needed - installed]
    print("\n".join(sorted(faults)) or f"{len(files)} files import {', '.join(sorted(imports))}")
    return 1 if faults or not imports else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
