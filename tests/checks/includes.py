#!/usr/bin/env python3
"""Each file of the program includes the headers of what it uses.

Haiku's headers and its compiler's library bring other headers along than the ones here do. What is
here by chance may be missing there.
"""

import glob
import os
import re
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PROGRAM = ["app", "window", "listview", "entryview", "locale", "settings", "appcontrol"]

# Functions of the C library, and what the program uses of the C++ library.
C_FUNCTIONS = {
	"fcntl.h": "open",
	"math.h": "fabsf floorf isfinite isnan truncf",
	"stdio.h": "fclose fdopen ferror fflush fgets fopen fprintf fputs fread printf rename rewind"
		" snprintf",
	"stdlib.h": "abs atoi getenv llabs strtol system",
	"string.h": "memcpy memset strchr strcmp strerror strlen strncmp strnlen strrchr strstr",
	"strings.h": "strcasecmp strncasecmp",
	"sys/stat.h": "chmod fchmod mkdir stat",
	"unistd.h": "access close fchown fsync getpid readlink unlink",
}
STANDARD = {
	"algorithm": "all_of any_of clamp find find_if max min sort stable_sort",
	"array": "array",
	"cmath": "abs fabs isfinite isnan",
	"functional": "function",
	"map": "map",
	"memory": "make_unique unique_ptr",
	"optional": "optional",
	"set": "set",
	"string": "string to_string",
	"string_view": "string_view",
	"unordered_map": "unordered_map",
	"unordered_set": "unordered_set",
	"utility": "move pair swap",
	"vector": "vector",
}
MACROS = {
	"errno.h": r"errno|E[A-Z]{3,}",
	"fcntl.h": r"O_[A-Z]+",
	"inttypes.h": r"PRI[diouxX]\w+",
	"limits.h": r"PATH_MAX",
	"stdint.h": r"U?INT\d+_MAX|u?int\d+_t|u?intptr_t",
	"sys/stat.h": r"S_IS\w+",
}

# What Haiku's headers promise to bring along, besides those of base classes.
BRINGS = {
	"Application.h": ["Messenger.h"],
	"Entry.h": ["SupportDefs.h"],
	"File.h": ["StorageDefs.h"],
	"InterfaceDefs.h": ["GraphicsDefs.h", "OS.h", "String.h"],
	"MenuItem.h": ["Menu.h"],
	"Mime.h": ["MimeType.h"],
	"NodeInfo.h": ["Entry.h", "File.h", "Message.h", "Mime.h"],
	"Path.h": ["Message.h"],
	"PopUpMenu.h": ["Menu.h"],
	"Rect.h": ["Point.h"],
	"Roster.h": ["Entry.h", "Messenger.h"],
	"View.h": ["Font.h", "InterfaceDefs.h", "Rect.h"],
}
# These come with every header of the kits.
ALWAYS = {"SupportDefs.h", "Errors.h"}


def read(path):
	with open(path, encoding="utf-8") as file:
		return file.read()


def code_of(text):
	pattern = r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\''
	return re.sub(pattern, " ", text, flags=re.S)


class Kits:
	"""What the headers of the kits declare: a name's header, and the headers that a header brings."""

	def __init__(self):
		self.classes = {}
		self.functions = {}
		self.constants = {}
		self.brings = {header: set(names) for header, names in BRINGS.items()}
		bases = []
		for path in glob.glob(os.path.join(ROOT, "platform/headers/*/*.h")):
			header = os.path.basename(path)
			text = code_of(read(path))
			# What has C linkage is indented; its string is gone.
			for block in re.findall(r"^extern\s+\{(.*?)^\}", text, re.M | re.S):
				text += re.sub(r"^\t", "", block, flags=re.M)
			for name, base in re.findall(r"^(?:class|struct) (\w+)([^;{]*)\{", text, re.M):
				self.classes[name] = header
				bases += [(header, word) for word in re.findall(r"public (\w+)", base)]
			for name in re.findall(r"^(?:extern )?[\w:]+[ *&]+(\w+)\([^;{]*\);", text, re.M):
				self.functions[name] = header
			for name in re.findall(r"^extern [^;(]*?(\w+)(?:\[\w*\])?(?:, [^;]*)?;", text, re.M):
				self.constants[name] = header
			for name in re.findall(r"^(?:#define|(?:static )?const \w+) (B_\w+)", text, re.M):
				self.constants[name] = header
			for body in re.findall(r"^enum[^;{]*\{(.*?)\}", text, re.M | re.S):
				for name in re.findall(r"(?:^|,)\s*(B_\w+)", body):
					self.constants[name] = header
		for header, base in bases:
			if base in self.classes:
				self.brings.setdefault(header, set()).add(self.classes[base])

	def all_of(self, headers):
		found = set(headers)
		fresh = list(headers)
		while fresh:
			more = self.brings.get(fresh.pop(), set()) - found
			found |= more
			fresh += more
		return found | ALWAYS


def includes_of(path, seen):
	"""The system's headers that a file and the program's headers in it include."""
	if path in seen or not os.path.exists(path):
		return set()
	seen.add(path)
	text = read(path)
	found = set(re.findall(r"^#include <(.*?)>", text, re.M))
	for name in re.findall(r'^#include "(.*?)"', text, re.M):
		found |= includes_of(os.path.join(ROOT, name), seen)
	return found


def needs(text, kits):
	"""Pairs of a name and the header that it needs."""
	alone = r"(?<![\w.:>])(?<!class )(?<!struct )"
	for header, names in C_FUNCTIONS.items():
		for name in re.findall(alone + r"(" + "|".join(names.split()) + r")\(", text):
			yield name, header
	for header, names in STANDARD.items():
		for name in re.findall(r"\bstd::(" + "|".join(names.split()) + r")\b", text):
			yield "std::" + name, header
	for header, pattern in MACROS.items():
		for name in re.findall(r"(?<!\w)(" + pattern + r")(?!\w)", text):
			yield name, header
	# A class is named alone, too, where it is only pointed to; here it is made or held.
	for name in re.findall(alone + r"(\w+)(?= \w|\(|\{|>)", text):
		if name in kits.classes:
			yield name, kits.classes[name]
	for name in re.findall(alone + r"(\w+)\(", text):
		if name in kits.functions:
			yield name, kits.functions[name]
	for name in re.findall(r"(?<!\w)((?:B|be)_\w+)", text):
		if name in kits.constants:
			yield name, kits.constants[name]


def main():
	kits = Kits()
	bad = []
	for folder in PROGRAM:
		for path in sorted(glob.glob(os.path.join(ROOT, folder, "**/*.*"), recursive=True)):
			if not path.endswith((".cpp", ".h")):
				continue
			here = kits.all_of(includes_of(path, set()))
			if "math.h" in here:
				here.add("cmath")
			missing = {pair for pair in needs(code_of(read(path)), kits) if pair[1] not in here}
			for name, header in sorted(missing):
				bad.append(f"{os.path.relpath(path, ROOT)}: {name} needs <{header}>")
	print("\n".join(bad) if bad else "includes: each file includes what it uses")
	return 1 if bad else 0


sys.exit(main())
