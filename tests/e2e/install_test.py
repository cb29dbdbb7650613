"""The installed program: where everything lies, and that it starts from there."""

import os
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program  # noqa: E402
from session import Session, as_ordinary_user  # noqa: E402


class Install(unittest.TestCase):
	def test_the_installed_program_finds_its_languages_and_its_icon(self):
		with Session() as session:
			prefix = os.path.join(session.root, "usr")
			subprocess.run(["cmake", "--install", os.path.dirname(os.environ["VINYLOH"]),
				"--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
			entry = os.path.join(prefix, "share/applications/VinyloH.desktop")
			subprocess.run(["desktop-file-validate", entry], check=True)
			self.assertTrue(os.path.isfile(
				os.path.join(prefix, "share/icons/hicolor/scalable/apps/VinyloH.svg")))

			command = os.path.join(prefix, "bin/VinyloH")
			languages = os.path.join(os.path.dirname(os.path.realpath(command)),
				"Language/Dictionaries")
			self.assertIn("KORU-Haiku.deDE", os.listdir(languages))
			program = Program(session, os.path.join(session.root, "log"), command)
			# The desktop entry is found by the window's class.
			self.assertIn('"VinyloH"',
				session.output(["xprop", "-id", program.window, "WM_CLASS"]))
			self.assertEqual(program.close(), 0)
			for name in os.listdir(languages):
				self.assertIn(f": '{os.path.join(languages, name)}'  ", program.text())


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
