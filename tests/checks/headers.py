#!/usr/bin/env python3
"""Compiles every header of the program and of the hosted kits' public folder alone."""

import argparse
import concurrent.futures
import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PROGRAM = ["app", "window", "listview", "entryview", "locale", "settings", "appcontrol"]
KITS = ["app", "interface", "storage", "support", "kernel", "translation", "media"]


def headers():
	for folder in PROGRAM + [f"platform/headers/{kit}" for kit in KITS]:
		where = os.path.join(ROOT, folder)
		for name in sorted(os.listdir(where)) if os.path.isdir(where) else []:
			if name.endswith(".h"):
				yield os.path.join(folder, name)


def compile_alone(compiler, header):
	includes = [f"-I{ROOT}"] + [f"-I{ROOT}/platform/headers/{kit}" for kit in KITS]
	# Twice: the guard has to hold.
	text = f'#include "{os.path.join(ROOT, header)}"\n' * 2
	done = subprocess.run(
		[compiler, "-std=c++17", "-Wall", "-Wextra", "-Wpedantic", "-Wno-multichar", "-Werror",
			"-fsyntax-only", "-x", "c++", "-"] + includes,
		input=text, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
	return None if done.returncode == 0 else f"{header} does not compile alone:\n{done.stdout}"


def main():
	parser = argparse.ArgumentParser(description=__doc__)
	parser.add_argument("--compiler", default="g++")
	compiler = parser.parse_args().compiler
	with concurrent.futures.ThreadPoolExecutor(2) as pool:
		found = [text for text in pool.map(lambda header: compile_alone(compiler, header), headers()) if text]
	print("\n".join(found) if found else "headers: each compiles alone")
	return 1 if found else 0


sys.exit(main())
