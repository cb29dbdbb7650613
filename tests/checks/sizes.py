#!/usr/bin/env python3
"""Checks that no source file is over 600 lines and no function over 60."""

import os
import re
import sys

from sources import ROOT, sources

FILE_LIMIT = 600
FUNCTION_LIMIT = 60


def check(path, report):
	with open(os.path.join(ROOT, path), encoding="utf-8") as file:
		lines = file.read().split("\n")
	if len(lines) - 1 > FILE_LIMIT:
		report(f"{path}: {len(lines) - 1} lines")
	begin = None
	for number, line in enumerate(lines, 1):
		if line == "{":
			begin = number
		elif line == "}" and begin is not None:
			if number - begin - 1 > FUNCTION_LIMIT:
				report(f"{path}:{begin}: a function of {number - begin - 1} lines")
			begin = None
		elif re.match(r"^\S", line) and not line.startswith(("#", "//", "}")):
			begin = None


def main():
	found = []
	for path in sources():
		check(path, found.append)
	print("\n".join(found) if found else "sizes: no file and no function is too long")
	return 1 if found else 0


sys.exit(main())
