"""The same program under a Wayland compositor without a screen: it starts, plays and ends."""

import os
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import prefer_player, set_attribute  # noqa: E402
from session import Session, as_ordinary_user, make_album, wait_for  # noqa: E402

ENTER = "69"
PREFIX = "org.mpris.MediaPlayer2.mpv"


class Wayland(unittest.TestCase):
	def command(self, *words):
		"""Nothing can press a key there, so it is told what a remote control tells it."""
		done = subprocess.run([os.environ["REMOTE_CONTROL"], *words], stdin=subprocess.DEVNULL,
			env={**self.session.environment, "QT_QPA_PLATFORM": "offscreen"}, timeout=60)
		self.assertEqual(done.returncode, 0)

	def test_it_starts_plays_and_ends(self):
		with Session() as self.session:
			session = self.session
			titles = make_album(os.path.join(session.home, "Musik"))
			for title in titles:
				set_attribute(title, "Audio:Length", "CSTR", b"00:04\0")
			with open(os.path.join(session.home, "_koru_media_list"), "w", encoding="utf-8") as file:
				file.write("".join(title + "\n" for title in titles))
			prefer_player(session, "/usr/bin/mpv")
			session.start("weston", ["weston", "--backend=headless-backend.so", "--socket=wayland-test",
				"--width=1280", "--height=900", "--idle-time=0"])
			socket = os.path.join(session.environment["XDG_RUNTIME_DIR"], "wayland-test")
			wait_for(lambda: os.path.exists(socket), "the compositor")
			log = os.path.join(session.root, "log")
			# No way leads to the X server, which a program might fall back to. What Qt's plug-in leaks
			# cannot be told apart, as it is unloaded before the sanitizer's report.
			program = session.start("VinyloH", ["stdbuf", "-oL", os.environ["VINYLOH"]], log=log,
				WAYLAND_DISPLAY="wayland-test", QT_QPA_PLATFORM="wayland", DISPLAY=":9973",
				ASAN_OPTIONS="detect_leaks=0")

			def text():
				with open(log, encoding="utf-8", errors="surrogateescape") as file:
					return file.read()

			wait_for(lambda: " xRTime 0 stop.. " in text(), "the first pulse", 30)
			self.command("MWse", ENTER)
			wait_for(lambda: session.playing_path(PREFIX) == titles[0], "the first title", 30)
			wait_for(lambda: session.playing_path(PREFIX) == titles[1], "the second title", 30)
			self.command("MW_C")
			wait_for(lambda: program.poll() is not None, "the end of the program", 30)
			self.assertEqual(program.returncode, 0, text()[-4000:])
			self.assertIn("\n-WYN end-\n", text())
			self.assertNotIn("qt.qpa", text())


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
