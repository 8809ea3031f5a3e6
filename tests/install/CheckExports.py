#!/usr/bin/env python3
"""Fails when the shared library hides a symbol that applications need.

The library is built with hidden visibility, and only what carries ZML_EXPORT is in its
dynamic symbol table. Two mistakes hide a needed symbol without breaking the library's own
link: a class or function left without ZML_EXPORT, and an exported template instantiation that
another source file also instantiated implicitly, as hidden, which makes the linker hide it.
The library's object files tell which symbols need exporting: every out-of-line definition of
the namespace (functions, static data, vtables and typeinfo of classes with a key function),
and every weak symbol an object already marks default (the vtables and typeinfo of exported
classes without one, exported explicit instantiations). Inline code, anonymous namespaces and
detail namespaces may stay hidden.

usage: CheckExports.py LIBRARY OBJECTS

OBJECTS is a file that lists the library's object files, one a line, or a folder holding them.
"""
import pathlib
import subprocess
import sys

SPECIAL_PREFIXES = ('vtable for ', 'typeinfo for ', 'typeinfo name for ', 'VTT for ',
                    'construction vtable for ', 'non-virtual thunk to ', 'virtual thunk to ',
                    'covariant return thunk to ', 'guard variable for ')


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def is_public(name):
    for prefix in SPECIAL_PREFIXES:
        if name.startswith(prefix):
            name = name[len(prefix):]
    if not name.startswith('ZelmarMediaLib::'):
        return False
    head = name.replace('(anonymous namespace)', '<anonymous>').split('(')[0]
    return '<anonymous>' not in head and '::detail::' not in head


def object_files(objects):
    path = pathlib.Path(objects)
    if path.is_dir():
        return sorted(path.rglob('*.o'))
    return [pathlib.Path(line) for line in path.read_text().splitlines() if line.strip()]


def needed_symbols(objects):
    """Demangled name -> object file, for every symbol the objects say must be exported."""
    needed = {}
    for obj in object_files(objects):
        for line in run('readelf', '-sW', '--demangle', str(obj)).splitlines():
            fields = line.split(None, 7)
            if len(fields) < 8 or not fields[0].endswith(':') or fields[6] == 'UND':
                continue
            kind, bind, visibility, name = fields[3], fields[4], fields[5], fields[7]
            if kind not in ('FUNC', 'OBJECT') or not is_public(name):
                continue
            if bind == 'GLOBAL' or (bind == 'WEAK' and visibility == 'DEFAULT'):
                needed.setdefault(name, obj.name)
    return needed


def main(library, objects):
    dynamic = run('nm', '-C', '-D', '--defined-only', library).splitlines()
    dynamic_names = {line.split(' ', 2)[2] for line in dynamic if line.count(' ') >= 2}
    letters = {}
    for line in run('nm', '-C', library).splitlines():
        parts = line.split(' ', 2)
        if len(parts) == 3:
            letters.setdefault(parts[2], parts[1])
    needed = needed_symbols(objects)
    hidden = sorted(name for name in needed if name not in dynamic_names)
    print(f'dynamic symbols: {len(dynamic)}')
    print(f'symbols that must be exported: {len(needed)}, hidden: {len(hidden)}')
    for name in hidden:
        print(f'  hidden ({letters.get(name, "?")}, from {needed[name]}): {name}')
    return 1 if hidden else 0


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], sys.argv[2]))
