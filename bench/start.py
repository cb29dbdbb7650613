#!/usr/bin/env python3
"""How long the program needs until it shows a long list, how much memory it then has, and how long
it needs to save and end.

Usage: start.py [--program build/release/VinyloH] [--titles 10000] [--runs 5]

The titles lie in albums of twelve, each with tags and a cover. Every run has the same files, a
fresh display and a fresh bus; the first run also fills the system's file cache.
"""

import argparse
import os
import shutil
import statistics
import sys
import time

PROJECT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(PROJECT, "tests/e2e"))
from session import Session, as_ordinary_user, make_cover, make_title, wait_for  # noqa: E402

ALBUM_SIZE = 12
LOADED = "MxView::AttachedToWindow -ende-"


def make_list(home, count):
	"""Writes the playlist; returns its path. One title and one cover are made, all others copied."""
	title = os.path.join(home, "title.mp3")
	make_title(title, 1, "A title", "An artist", 1)
	cover = os.path.join(home, "cover.jpg")
	make_cover(cover)
	paths = []
	for number in range(count):
		folder = os.path.join(home, "Music", f"Album {number // ALBUM_SIZE + 1:04}")
		if number % ALBUM_SIZE == 0:
			os.makedirs(folder)
			shutil.copy(cover, os.path.join(folder, "Folder.jpg"))
		path = os.path.join(folder, f"{number % ALBUM_SIZE + 1:02} Title.mp3")
		shutil.copy(title, path)
		paths.append(path)
	with open(os.path.join(home, "_koru_media_list"), "w", encoding="utf-8") as file:
		file.write("".join(path + "\n" for path in paths))


def memory_of(pid):
	"""The resident memory in MiB."""
	with open(f"/proc/{pid}/status", encoding="ascii") as file:
		for line in file:
			if line.startswith("VmRSS:"):
				return int(line.split()[1]) / 1024
	return 0


def run(session, program):
	"""Seconds until the window is on the screen, until the list stands in it, MiB, and seconds from
	the request to quit to the end."""
	log = os.path.join(session.root, "log")
	open(log, "wb").close()
	begin = time.monotonic()
	process = session.start("VinyloH", ["stdbuf", "-oL", program], log=log)

	def loaded():
		with open(log, "rb") as file:
			return LOADED.encode() in file.read()

	wait_for(loaded, "the list", 120)
	listed = time.monotonic() - begin
	session.window("_koru_media_list", process=process)
	shown = time.monotonic() - begin
	memory = memory_of(process.pid)
	begin = time.monotonic()
	process.terminate()
	process.wait()
	return shown, listed, memory, time.monotonic() - begin


def main():
	parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
	parser.add_argument("--program", default=os.path.join(PROJECT, "build/release/VinyloH"))
	parser.add_argument("--titles", type=int, default=10000)
	parser.add_argument("--runs", type=int, default=5)
	arguments = parser.parse_args()
	as_ordinary_user()
	with Session() as session:
		make_list(session.home, arguments.titles)
		results = [run(session, os.path.abspath(arguments.program)) for _ in range(arguments.runs)]
	for name, unit, values in zip(["window shown after", "list stands after", "memory",
			"ends after"], ["s", "s", "MiB", "s"], zip(*results)):
		print(f"{name:20} median {statistics.median(values):7.2f} {unit}"
			f"   all {' '.join(f'{value:.2f}' for value in values)}")


if __name__ == "__main__":
	main()
