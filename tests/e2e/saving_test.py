"""The user's list: whatever happens at its saving, the old or the new one is there, whole."""

import os
import shutil
import signal
import sys
import time
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program  # noqa: E402
from session import Session, make_title, wait_for, with_small_disk  # noqa: E402

SMALL_DISK = with_small_disk()
OLD = ["/music/old one.mp3", "/music/old two.mp3"]


def text_of(path):
	with open(path, encoding="utf-8") as file:
		return file.read()


def lines(paths):
	return "".join(path + "\n" for path in paths)


class Saving(unittest.TestCase):
	def prepare(self, session):
		"""A list in its file, and a title to add to it."""
		self.playlist = os.path.join(session.home, "_koru_media_list")
		with open(self.playlist, "w", encoding="utf-8") as file:
			file.write(lines(OLD))
		self.title = os.path.join(session.home, "new.mp3")
		make_title(self.title, 1, "New", "Somebody", 1)
		self.new = lines(OLD + [self.title])

	def start(self, session, name, title=None):
		program = Program(session, os.path.join(session.root, name + ".log"))
		self.assertEqual(program.drop([title or self.title]), 0)
		program.wait_for_text(" add to mflist\n")
		return program

	def close_and_read_alert(self, session, program, how):
		"""Closes the window; the program waits for the answer to its alert, then ends."""
		def opened():
			# A key that is pressed before the window has the focus is lost.
			how()
			try:
				return session.window("KORU_Alert", limit=6)
			except AssertionError:
				return None
		alert = wait_for(opened, "the alert", 30)
		self.assertIsNone(program.process.poll())
		self.assertEqual(program.count("_koru_media_list' OpenError!\n"), 1)
		wait_for(lambda: session.run(["xdotool", "windowactivate", "--sync", alert]) == 0, "the alert")
		session.key("Return")
		wait_for(lambda: program.process.poll() is not None, "the end of the program")
		self.assertEqual(program.process.returncode, 0)

	def test_a_list_that_cannot_be_saved_is_told_before_the_end(self):
		with Session() as session:
			self.prepare(session)
			os.chmod(self.playlist, 0o444)
			program = self.start(session, "key")
			self.close_and_read_alert(session, program, lambda: (program.focus(), session.key("alt+F4")))
			program = self.start(session, "menu")
			self.close_and_read_alert(session, program, lambda: program.menu("Up", "Return"))
			self.assertEqual(text_of(self.playlist), lines(OLD))

			os.chmod(self.playlist, 0o644)
			os.chmod(session.home, 0o555)
			program = self.start(session, "folder")
			self.close_and_read_alert(session, program, lambda: (program.focus(), session.key("alt+F4")))
			os.chmod(session.home, 0o755)
			self.assertEqual(text_of(self.playlist), lines(OLD))

	@unittest.skipIf(SMALL_DISK is None, "no file system may be mounted here")
	def test_a_full_disk_behind_a_link_keeps_the_old_list(self):
		with Session() as session:
			self.prepare(session)
			target = os.path.join(SMALL_DISK, "list")
			shutil.move(self.playlist, target)
			os.symlink(target, self.playlist)
			program = self.start(session, "full")
			ballast = os.path.join(SMALL_DISK, "ballast")
			with open(ballast, "wb", buffering=0) as file, self.assertRaises(OSError):
				while True:
					file.write(b"x" * 4096)
			self.close_and_read_alert(session, program, lambda: (program.focus(), session.key("alt+F4")))
			self.assertEqual(text_of(target), lines(OLD))
			self.assertEqual(sorted(os.listdir(SMALL_DISK)), ["ballast", "list"])

			os.remove(ballast)
			program = self.start(session, "room")
			self.assertEqual(program.close(), 0)
			self.assertEqual(os.readlink(self.playlist), target)
			self.assertEqual(text_of(target), self.new)
			os.remove(target)

	def test_a_session_that_ends_saves_the_list(self):
		with Session() as session:
			self.prepare(session)
			program = self.start(session, "ended")
			program.process.send_signal(signal.SIGTERM)
			self.assertEqual(program.process.wait(20), 0)
			self.assertEqual(text_of(self.playlist), self.new)

	def test_a_display_that_goes_away_saves_the_list(self):
		with Session() as session:
			self.prepare(session)
			program = self.start(session, "lost")
			display, = (process for name, process in session.processes if name == "Xvfb")
			display.kill()
			self.assertGreaterEqual(program.process.wait(20), 0, "ended by a signal")
			self.assertEqual(text_of(self.playlist), self.new)

	def test_a_program_that_is_killed_leaves_a_whole_list(self):
		with Session() as session:
			self.prepare(session)
			for number, delay in enumerate([0, 0.002, 0.005, 0.01, 0.03]):
				program = self.start(session, f"killed {number}")
				program.process.send_signal(signal.SIGTERM)
				time.sleep(delay)
				program.process.kill()
				program.process.wait()
				self.assertIn(text_of(self.playlist), [lines(OLD), self.new])
				with open(self.playlist, "w", encoding="utf-8") as file:
					file.write(lines(OLD))

	def test_of_two_copies_the_one_that_is_closed_last_wins(self):
		with Session() as session:
			self.prepare(session)
			other = os.path.join(session.home, "other.mp3")
			shutil.copyfile(self.title, other)
			first = self.start(session, "first")
			second = self.start(session, "second", other)
			for program in [first, second]:
				program.process.send_signal(signal.SIGTERM)
				self.assertEqual(program.process.wait(20), 0)
				self.assertEqual(text_of(self.playlist),
					lines(OLD + [self.title if program is first else other]))


if __name__ == "__main__":
	unittest.main(verbosity=2)
