#!/usr/bin/env python3
"""Checks that includes point down only.

The program's folders include each other as the table says, Haiku's headers and the C++ standard
library, and never ask which system they run on. The hosted kits know nothing of the program, and
Qt stands in no public header.
"""

import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
if len(sys.argv) > 1:
	ROOT = sys.argv[1]

# Folder: the folders that it may include from.
PROGRAM = {
	"app": {"window"},
	"window": {"listview", "entryview", "appcontrol", "locale", "settings"},
	"listview": {"window", "entryview", "appcontrol", "locale", "settings"},
	"entryview": {"locale", "settings"},
	"appcontrol": {"locale", "settings"},
	"locale": {"settings"},
	"settings": set(),
}

# Headers whose calls wait for other applications, and the folder that alone may include them besides
# their own: no window's thread may stand still for that.
WAITING = {"appcontrol/RemoteCommands.h": "appcontrol/", "appcontrol/RemotePlayers.h": "appcontrol/"}

C_LIBRARY = {
	"assert.h", "ctype.h", "errno.h", "fcntl.h", "float.h", "inttypes.h", "limits.h", "locale.h",
	"math.h", "setjmp.h", "signal.h", "stdarg.h", "stddef.h", "stdint.h", "stdio.h", "stdlib.h",
	"string.h", "strings.h", "time.h", "unistd.h", "wchar.h", "sys/stat.h", "sys/types.h",
	"dirent.h",
}

SYSTEM_QUESTION = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif)\b.*(__linux__|__HAIKU__|__unix__|_WIN32|HOSTED|QT_)")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def files(folder):
	for where, _, names in os.walk(os.path.join(ROOT, folder)):
		for name in sorted(names):
			if name.endswith((".cpp", ".h")):
				yield os.path.relpath(os.path.join(where, name), ROOT)


def lines(path):
	with open(os.path.join(ROOT, path), encoding="utf-8") as file:
		for number, line in enumerate(file, 1):
			yield number, line.rstrip("\n")


def public_headers():
	names = set()
	for path in files("platform/headers"):
		names.add(os.path.basename(path))
	return names


def check_program(folder, headers, report):
	for path in files(folder):
		for number, line in lines(path):
			if SYSTEM_QUESTION.match(line):
				report(path, number, "asks which system it runs on")
			match = INCLUDE.match(line)
			if not match:
				continue
			quoted, name = match.group(1) == '"', match.group(2)
			if quoted:
				check_local(folder, path, number, name, report)
				if not path.startswith(WAITING.get(name, "")):
					report(path, number, f'includes "{name}", which waits for other applications')
			elif name in headers or name in C_LIBRARY:
				continue
			elif "." in name or "/" in name or name[0].isupper():
				report(path, number, f"includes <{name}>, neither Haiku's nor the standard library's")


def check_local(folder, path, number, name, report):
	target = name.split("/")[0]
	if "/" not in name or ".." in name:
		report(path, number, f'includes "{name}", not by its path from the root')
	elif target == folder:
		return
	elif target not in PROGRAM[folder]:
		report(path, number, f'includes "{name}": {folder} lies below or beside {target}')


def check_platform(report):
	for path in files("platform"):
		public = path.startswith("platform/headers/")
		for number, line in lines(path):
			match = INCLUDE.match(line)
			if not match:
				continue
			quoted, name = match.group(1) == '"', match.group(2)
			if quoted and name.split("/")[0] in PROGRAM:
				report(path, number, f'the kits include "{name}" of the program')
			if public and quoted:
				report(path, number, f'a public header includes "{name}"')
			if public and not quoted and re.match(r"(Q[A-Z]|Qt|gio/|glib|libav|taglib|sqlite|sys/xattr)", name):
				report(path, number, f"a public header includes <{name}>")
			if not public and name.startswith("QtWidgets") and not path.startswith("platform/screen/"):
				report(path, number, f"<{name}> outside platform/screen")


def main():
	found = []

	def report(path, number, text):
		found.append(f"{path}:{number}: {text}")

	headers = public_headers()
	for folder in PROGRAM:
		check_program(folder, headers, report)
	check_platform(report)
	print("\n".join(found) if found else "layers: every include points down")
	return 1 if found else 0


sys.exit(main())
