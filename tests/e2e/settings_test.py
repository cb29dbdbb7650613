"""The program with settings that are damaged: its window can be seen, and it ends as it should."""

import os
import struct
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program, attribute, set_attribute, settings_file  # noqa: E402
from session import Session, as_ordinary_user  # noqa: E402

SCREEN = (1400, 1000)
NAN = float("nan")


class Settings(unittest.TestCase):
	def run_once(self, session, name):
		"""Starts the program, sees that its window is in view, and closes it. Returns its output."""
		program = Program(session, os.path.join(session.root, name))
		left, top, width, height = session.frame(program.window)
		self.assertGreaterEqual(min(left + width, SCREEN[0]) - max(left, 0), 32, name)
		self.assertGreaterEqual(min(top + height, SCREEN[1]) - max(top, 0), 32, name)
		self.assertEqual(program.close(), 0, name)
		return program.text()

	def test_frames_outside_of_the_screen_are_moved_into_view(self):
		with Session() as session:
			for number, frame in enumerate([(1900, 100, 2600, 500), (-4000, -3000, -3300, -2600),
					(NAN, NAN, NAN, NAN), (1e30, 1e30, 1e31, 1e31), (700, 500, 60, 100)]):
				with open(settings_file(session), "ab"):
					pass
				set_attribute(settings_file(session), "prefs_window_rect", "RECT",
					struct.pack("=4f", *frame))
				self.run_once(session, f"{number}.log")
				# The frame that it had is kept for the next time.
				kept = struct.unpack("=4f", attribute(settings_file(session), "prefs_window_rect")[1])
				self.assertLess(max(abs(edge) for edge in kept), 2000)

	def test_values_of_any_kind_do_no_harm(self):
		with Session() as session:
			with open(settings_file(session), "ab"):
				pass
			for key, code, data in [("LAST_PLAY", "LONG", struct.pack("=i", 2000000000)),
					("LINK_SIZE", "CSTR", b"\xff" * 300), ("PRIORITY", "LONG", b""),
					("pref_AudioApp", "CSTR", b"x" * 1000), ("Audio", "RECT", b"\xff" * 256),
					("mw_ever_topped", "BOOL", b"\xff"), ("altWinBackCol", "RGBC", b"\1\2")]:
				set_attribute(settings_file(session), key, code, data)
			self.assertIn("Prefs-Save", self.run_once(session, "log"))
			self.assertEqual(len(attribute(settings_file(session), "pref_AudioApp")[1]), 255)

	def test_a_folder_in_place_of_the_file_leaves_the_start_values(self):
		with Session() as session:
			os.makedirs(settings_file(session))
			text = self.run_once(session, "log")
			self.assertIn("Unknown error reading rs232_port:\n", text)
			self.assertIn("Unknown error writing use_splitting:\n", text)
			self.assertTrue(os.path.isdir(settings_file(session)))


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
