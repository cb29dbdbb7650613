#!/usr/bin/env python3
"""Checks the layout of the C++ sources, or with --fix brings them into it.

clang-format does most. What it cannot do is done here: the colon of a constructor's initializers
stands alone on its line, and two blank lines part functions.
"""

import concurrent.futures
import os
import re
import shutil
import subprocess
import sys

from sources import ROOT, sources

FORMATTER = shutil.which("clang-format-14") or shutil.which("clang-format") or "clang-format-14"


def part_initializers(lines):
	result = []
	inside = False
	for line in lines:
		match = re.match(r"^(\t+): (.*)$", line)
		if match and not inside and result and result[-1].rstrip().endswith(")"):
			result.append(match.group(1) + ":")
			result.append(match.group(1) + match.group(2))
			inside = not line.rstrip().endswith("{")
			continue
		if inside:
			if re.match(r"^\t*\{", line):
				inside = False
			else:
				line = re.sub(r"^(\t+)  (\S)", r"\1\2", line)
		result.append(line)
	return result


def part_functions(lines):
	result = []
	index = 0
	while index < len(lines):
		result.append(lines[index])
		closes = lines[index] == "}"
		index += 1
		if not closes:
			continue
		following = index
		while following < len(lines) and lines[following] == "":
			following += 1
		if following == len(lines):
			continue
		if not lines[following].startswith(("} ", "}", "#endif", "#else")):
			result += ["", ""]
			index = following
	return result


def formatted(path, text):
	done = subprocess.run([FORMATTER, "--assume-filename", path], input=text, cwd=ROOT,
		stdout=subprocess.PIPE, text=True, check=True)
	lines = done.stdout.split("\n")
	lines = part_functions(part_initializers(lines))
	return "\n".join(lines)


def handle(path, fix):
	full = os.path.join(ROOT, path)
	with open(full, encoding="utf-8") as file:
		text = file.read()
	wanted = formatted(path, text)
	if wanted == text:
		return None
	if fix:
		with open(full, "w", encoding="utf-8") as file:
			file.write(wanted)
		return None
	for number, (is_now, should_be) in enumerate(zip(text.split("\n"), wanted.split("\n")), 1):
		if is_now != should_be:
			return f"{path}:{number}: should read {should_be!r}"
	return f"{path}: ends otherwise"


def main():
	fix = "--fix" in sys.argv
	named = [os.path.relpath(os.path.abspath(path), ROOT) for path in sys.argv[1:] if path != "--fix"]
	with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
		found = [line for line in pool.map(lambda path: handle(path, fix), named or sources()) if line]
	for line in found:
		print(line)
	if found:
		print("run tests/checks/format.py --fix")
	return 1 if found else 0


sys.exit(main())
