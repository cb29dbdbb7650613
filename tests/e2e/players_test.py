"""Real VLC and mpv, preferred and as the system's choice, with names that a shell could misread."""

import os
import shutil
import struct
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, prefer_player, set_attribute  # noqa: E402
from session import Session, as_ordinary_user, make_title, wait_for  # noqa: E402

PREFIX = "org.mpris.MediaPlayer2."
NAMES = ["two  blanks.mp3", "$HOME & this; that.mp3", "\"quoted\" `x`.mp3", "line\nfeed.mp3",
	"-leading.mp3", "Über 日本.mp3"]
# A shell text cannot hold it between single quotes, so it is not run.
UNQUOTABLE = "it's.mp3"


def make_titles(session):
	"""An album of titles, long enough that none ends by itself. Returns their paths."""
	folder = os.path.join(session.home, "an album")
	os.makedirs(folder)
	titles = [os.path.join(folder, name) for name in NAMES + [UNQUOTABLE]]
	make_title(titles[0], 40, "One", "Somebody", 1)
	for number, title in enumerate(titles, 1):
		if title != titles[0]:
			shutil.copyfile(titles[0], title)
		set_attribute(title, "Audio:Track", "LONG", struct.pack("=i", number))
	return titles


class Players(unittest.TestCase):
	def start(self, session, titles, name):
		"""Starts the program with a list of the first title, and shows the whole album."""
		with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
			file.write(titles[0] + "\n")
		program = Program(session, os.path.join(session.root, name + ".log"))
		program.resize(1000, 640)
		session.click(*program.at(30, 40))
		program.wait_for_text(f" {len(titles) - 1:3d}| Nr:{len(titles):3d} = {titles[-1]}")
		return program

	def next(self, session, program, number):
		"""Plays the first title by a click, each other by the keys that mark and play it."""
		if number == 0:
			program.play_first()
		else:
			program.focus()
			session.key("Down", "Return")

	def wait_until_it_plays(self, session, player, title):
		wait_for(lambda: session.playing_path(PREFIX + player) == title, f"{title} in {player}", 30)
		# Its window takes the focus when it comes.
		if player == "vlc":
			session.window("VLC media player$")

	def play_album(self, session, player):
		"""Each title is played by one process, and each but the first asks exactly one to quit."""
		titles = self.titles
		path = "/usr/bin/" + player
		prefer_player(session, path)
		program = self.start(session, titles, player)
		for number, title in enumerate(titles[:-1]):
			self.next(session, program, number)
			self.wait_until_it_plays(session, player, title)
			self.assertEqual(program.count(f"[open][{path} '{title}' &]\n"), 1)
			self.assertEqual(program.count("  STOP\n"), number)
		self.next(session, program, len(titles))
		program.wait_for_text(f" oops: couldn't execute :\n{path} '{titles[-1]}' &\n")
		self.assertEqual(program.count("  STOP\n"), len(titles) - 1)
		return program

	def test_preferred_players_play_any_name(self):
		with Session() as session:
			self.titles = make_titles(session)
			program = self.play_album(session, "vlc")
			wait_for(lambda: not session.bus_names(PREFIX), "the end of VLC")
			self.assertEqual(program.close(), 0)
			program = self.play_album(session, "mpv")
			self.assertEqual(program.close(), 0)

	def test_of_two_running_players_one_is_asked_to_quit(self):
		with Session() as session:
			self.titles = titles = make_titles(session)
			prefer_player(session, "/usr/bin/mpv")
			program = self.start(session, titles, "two")
			for player in ["vlc", "mpv"]:
				session.start(player, [player, titles[1]], log=os.path.join(session.root, "players"))
				self.wait_until_it_plays(session, player, titles[1])
			self.next(session, program, 0)
			program.wait_for_text(f"[open][/usr/bin/mpv '{titles[0]}' &]\n")
			self.assertEqual(program.count("  STOP\n"), 1)
			asked = "vlc" if program.count(" 'application/x-vnd.videolan-vlc'  STOP") == 1 else "mpv"
			other = "mpv" if asked == "vlc" else "vlc"
			# Two of mpv play, or the new one beside the old VLC.
			wait_for(lambda: len(session.bus_names(PREFIX + "mpv")) >= (2 if other == "mpv" else 1),
				"both players")
			if other == "vlc":
				self.assertEqual(session.playing_path(PREFIX + "vlc"), titles[1])
			self.assertEqual(program.count("  STOP\n"), 1)
			self.assertEqual(program.close(), 0)

	def test_a_player_that_ignores_the_request_does_not_stop_the_next(self):
		with Session() as session:
			self.titles = titles = make_titles(session)
			deaf = os.path.join(session.root, "tools", "vlc")
			os.makedirs(os.path.dirname(deaf))
			shutil.copy(os.path.realpath("/bin/sleep"), deaf)
			session.environment["PATH"] = os.path.dirname(deaf) + ":" + session.environment["PATH"]
			process = session.start("vlc", ["sh", "-c", f"trap '' TERM; exec '{deaf}' 100"])
			prefer_player(session, "/usr/bin/mpv")
			program = self.start(session, titles, "deaf")
			self.next(session, program, 0)
			self.wait_until_it_plays(session, "mpv", titles[0])
			self.assertEqual(program.count(" 'application/x-vnd.videolan-vlc'  STOP\n"), 1)
			self.assertEqual(program.count("  STOP\n"), 1)
			self.assertIsNone(process.poll())
			self.assertEqual(program.close(), 0)

	def test_the_systems_choice_plays_what_no_player_is_preferred_for(self):
		with Session() as session:
			self.titles = titles = make_titles(session)
			choice = os.path.join(session.environment["XDG_CONFIG_HOME"], "mimeapps.list")
			program = self.start(session, titles, "choice")
			for number, player in enumerate(["vlc", "mpv"]):
				with open(choice, "w", encoding="utf-8") as file:
					file.write(f"[Default Applications]\naudio/mpeg={player}.desktop\n")
				self.next(session, program, number)
				self.wait_until_it_plays(session, player, titles[number])
				self.assertEqual(program.count(f"[open][xdg-open '{titles[number]}' &]\n"), 1)
			self.assertNotIn("will stop any", program.text())
			self.assertEqual(len(session.bus_names(PREFIX + "vlc")) > 0, True, "it was not asked")
			self.assertEqual(program.close(), 0)

	def test_without_any_player_it_lives_on(self):
		with Session() as session:
			self.titles = titles = make_titles(session)
			session.environment["XDG_DATA_DIRS"] = os.path.join(session.root, "nothing")
			program = self.start(session, titles, "none")
			self.next(session, program, 0)
			program.wait_for_text(f"[open][xdg-open '{titles[0]}' &]\n")
			program.wait_for_text("xdg-open: ")
			self.assertEqual(session.bus_names(PREFIX), [])
			self.assertIsNone(program.process.poll())
			self.assertEqual(program.close(), 0)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
