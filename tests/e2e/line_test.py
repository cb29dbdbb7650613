"""From a drop to the next title: the program with a real VLC, window manager and session bus."""

import os
import struct
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, attribute, has_length, prefer_player, settings_file  # noqa: E402
from session import Session, as_ordinary_user, make_album, wait_for  # noqa: E402

VLC = "/usr/bin/vlc"


class Line(unittest.TestCase):
	def fill(self, program, titles):
		self.assertEqual(program.drop(titles), 0)
		program.wait_for_text(" add to mflist", len(titles))
		self.assertTrue(program.text().startswith("-WYN begin-\n"))
		program.menu("Down", "Down", "Down", "Return")
		for title, length in zip(titles, ["00:05", "00:04", "00:07", "00:06"]):
			wait_for(lambda: has_length(title), f"the length of {title}")
			self.assertEqual(attribute(title, "Audio:Length"), ("CSTR", length.encode() + b"\0"))

	def test_from_a_drop_to_the_next_title_with_vlc(self):
		with Session() as session:
			titles = make_album(os.path.join(session.home, "Musik", "Hör proben"))
			prefer_player(session, VLC)
			calls = os.path.join(session.root, "calls")
			session.start("dbus-monitor", ["dbus-monitor", "--session",
				"interface='org.mpris.MediaPlayer2'"], log=calls)
			program = Program(session, os.path.join(session.root, "first.log"))
			self.fill(program, titles)
			self.play(session, program, titles, calls)
			frame = session.frame(program.window)
			self.assertEqual(program.close(), 0)
			# A player writes to the same log, and may do so later.
			self.assertIn("\n-WYN end-\n", program.text())
			self.check_saved(session, titles)
			self.check_second_start(session, titles, frame)

	def play(self, session, program, titles, calls):
		program.play_first()
		first = wait_for(lambda: session.playing_path("org.mpris.MediaPlayer2.vlc"), "VLC")
		self.assertEqual(first, titles[0])
		with open(calls, encoding="utf-8") as file:
			self.assertNotIn("member=Quit", file.read())
		wait_for(lambda: session.playing_path("org.mpris.MediaPlayer2.vlc") == titles[1],
			"the second title in VLC", 20)
		with open(calls, encoding="utf-8") as file:
			self.assertEqual(file.read().count("member=Quit"), 1)
		self.assertIn(" 'application/x-vnd.videolan-vlc'  STOP", program.text())
		# The window is told who comes and goes.
		for notice in ["BRAS", "BRAQ"]:
			program.wait_for_text(f"##GetLastRosterMessenger()  '{notice}'")
		keep = os.environ.get("SCREENSHOTS")
		if keep:
			session.screenshot(os.path.join(keep, "line.png"))

	def check_saved(self, session, titles):
		playlist = os.path.join(session.home, "_koru_media_list")
		with open(playlist, encoding="utf-8") as file:
			self.assertEqual(file.read(), "".join(title + "\n" for title in titles))
		self.assertEqual(attribute(playlist, "BEOS:TYPE"), ("MIMS", b"text/x-playlist\0"))
		settings = settings_file(session)
		self.assertEqual(attribute(settings, "LAST_PLAY"), ("LONG", struct.pack("=i", 1)))
		self.assertEqual(attribute(settings, "LINK_SIZE"), ("LONG", struct.pack("=i", 1)))
		self.assertEqual(attribute(settings, "mw_ever_topped"), ("BOOL", b"\1"))
		self.assertEqual(attribute(settings, "pref_AudioApp"), ("CSTR", VLC.encode() + b"\0"))
		kind, data = attribute(settings, "prefs_window_rect")
		self.assertEqual((kind, len(data)), ("RECT", 16))

	def check_second_start(self, session, titles, frame):
		before = session.playing_path("org.mpris.MediaPlayer2.vlc")
		program = Program(session, os.path.join(session.root, "second.log"))
		self.assertEqual(session.frame(program.window), frame)
		self.assertIn(" last_top_media   1", program.text())
		program.wait_for_text(" stop.. ", 2)
		self.assertNotIn("[open][", program.text())
		# On a slow machine the title is over by now.
		self.assertIn(session.playing_path("org.mpris.MediaPlayer2.vlc"), [before, None])
		self.assertEqual(program.close(), 0)
		with open(os.path.join(session.home, "_koru_media_list"), encoding="utf-8") as file:
			self.assertEqual(file.read().split("\n")[:-1], titles)

	def test_without_a_player_the_program_says_so_and_lives_on(self):
		with Session() as session:
			titles = make_album(os.path.join(session.home, "Musik", "Hör proben"))
			prefer_player(session, "/usr/bin/no-such-player")
			program = Program(session, os.path.join(session.root, "first.log"))
			self.fill(program, titles)
			program.play_first()
			program.wait_for_text(f"[open][/usr/bin/no-such-player '{titles[0]}' &]")
			program.wait_for_text("no-such-player: not found")
			program.wait_for_text(f"[open][/usr/bin/no-such-player '{titles[1]}' &]")
			self.assertIsNone(program.process.poll())
			self.assertEqual(program.close(), 0)
			with open(os.path.join(session.home, "_koru_media_list"), encoding="utf-8") as file:
				self.assertEqual(file.read().split("\n")[:-1], titles)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
