"""Shows the program without a display: demonstrate.py PROGRAM FOLDER

In a virtual display with a sample album, it measures the titles, plays two of them through a real
player and leaves screenshots in the folder.
"""

import os
import shutil
import sys
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, prefer_player  # noqa: E402
from session import Session, as_ordinary_user, make_album, make_cover, make_title, wait_for  # noqa: E402

PLAYER = "/usr/bin/mpv"
PREFIX = "org.mpris.MediaPlayer2.mpv"

MORE_ALBUMS = [
	("Nachtzug", "#0b132b", "#5bc0be", ["Abfahrt", "Zwischenhalt", "東京", "Ankunft"]),
	("Garden Songs", "#2d6a4f", "#ffd166", ["Rake", "Seed", "Sun"]),
	("Blaue Stunde", "#3a0ca3", "#f72585", ["Dämmerung", "Laternen"]),
]


def make_music(folder):
	"""The sample album and three more, so that there are covers to see. Returns all titles."""
	titles = make_album(os.path.join(folder, "Hörproben"))
	for number, (album, top, bottom, names) in enumerate(MORE_ALBUMS):
		where = os.path.join(folder, album)
		os.makedirs(where)
		make_cover(os.path.join(where, "Folder.jpg"), top, bottom)
		for track, name in enumerate(names, 1):
			path = os.path.join(where, name + ".mp3")
			make_title(path, 4 + track, name, "Ensemble " + album, track, album=album,
				frequency=300 + 80 * number + 30 * track)
			titles.append(path)
	return titles


def show(session, program, titles, folder):
	def keep(name):
		path = os.path.join(folder, name)
		session.screenshot(path)
		print(f"screenshot: {path}")

	program.resize(1000, 640)
	keep("1-list.png")
	program.menu()
	keep("2-menu.png")
	session.key("Escape")
	program.measure(titles)
	program.play_first()
	for number, title in enumerate(titles[:2], 1):
		wait_for(lambda: session.playing_path(PREFIX) == title, f"{title} in the player", 25)
		print(f"plays: {os.path.basename(title)}")
		# The pulse that draws the time bar comes every two seconds.
		time.sleep(2.2)
		keep(f"{number + 2}-playing.png")


def make_folder(folder):
	"""Root makes it anew for the ordinary user who goes on from here."""
	if os.geteuid() == 0:
		shutil.rmtree(folder, ignore_errors=True)
		os.makedirs(folder)
		os.chmod(folder, 0o777)
	else:
		os.makedirs(folder, exist_ok=True)


def main():
	program_path, folder = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
	make_folder(folder)
	as_ordinary_user()
	with Session() as session:
		titles = make_music(os.path.join(session.home, "Musik"))
		with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
			file.write("".join(title + "\n" for title in titles))
		prefer_player(session, PLAYER)
		log = os.path.join(folder, "output.txt")
		program = Program(session, log, path=program_path)
		show(session, program, titles, folder)
		status = program.close()
	print(f"The program has ended with {status}. What it printed: {log}")
	return status


if __name__ == "__main__":
	sys.exit(main())
