"""The program where something is missing: the display, the session bus, the home folder."""

import os
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program  # noqa: E402
from session import Session, as_ordinary_user, make_title, wait_for  # noqa: E402

# A user of no name and no home folder.
STRANGER = ["unshare", "--user", "--map-user=54321"]


class Hardship(unittest.TestCase):
	def test_without_a_display_it_says_so_and_ends(self):
		with tempfile.TemporaryDirectory() as home:
			environment = {"HOME": home, "PATH": os.environ["PATH"]}
			done = subprocess.run([os.environ["VINYLOH"]], env=environment, timeout=30,
				stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
			self.assertIn("display", done.stdout)
			self.assertGreaterEqual(done.returncode, 0, "ended by a signal")
			self.assertEqual(os.listdir(home), [], "nothing is written")

	def test_with_a_display_that_does_not_answer_it_says_so_and_ends(self):
		with tempfile.TemporaryDirectory() as home:
			environment = {"HOME": home, "PATH": os.environ["PATH"], "DISPLAY": ":9973"}
			done = subprocess.run([os.environ["VINYLOH"]], env=environment, timeout=30,
				stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
			self.assertIn("display", done.stdout)
			self.assertGreaterEqual(done.returncode, 0, "ended by a signal")

	def test_without_a_session_bus_it_works_alone(self):
		with Session() as session:
			del session.environment["DBUS_SESSION_BUS_ADDRESS"]
			path = os.path.join(session.home, "one.mp3")
			make_title(path, 1, "One", "Nobody", 1)
			program = Program(session, os.path.join(session.root, "log"))
			self.assertEqual(program.drop([path]), 0)
			program.wait_for_text(" add to mflist")
			self.assertEqual(program.count("session bus"), 1)
			self.assertEqual(program.close(), 0)
			with open(os.path.join(session.home, "_koru_media_list"), encoding="utf-8") as file:
				self.assertEqual(file.read(), path + "\n")

	def test_with_a_list_of_100000_lines_it_starts_and_loses_none(self):
		with Session() as session:
			lines = "".join(f"/nowhere/album {number // 12}/title {number}.mp3\n"
				for number in range(100000))
			playlist = os.path.join(session.home, "_koru_media_list")
			with open(playlist, "w", encoding="utf-8") as file:
				file.write(lines)
			path = os.path.join(session.home, "one.mp3")
			make_title(path, 1, "One", "Nobody", 1)
			program = Program(session, os.path.join(session.root, "log"), limit=90)
			self.assertEqual(program.drop([path]), 0)
			program.wait_for_text(" add to mflist", limit=60)
			self.assertEqual(program.close(limit=60), 0)
			with open(playlist, encoding="utf-8") as file:
				self.assertEqual(file.read(), lines + path + "\n")

	@unittest.skipIf(subprocess.run(STRANGER + ["true"], stderr=subprocess.DEVNULL).returncode != 0,
		"nobody can be a user whom the system does not know")
	def test_without_any_home_the_list_is_where_haiku_has_it(self):
		environment = {name: value for name, value in os.environ.items()
			if name == "PATH" or name.endswith("SAN_OPTIONS")}
		environment["QT_QPA_PLATFORM"] = "offscreen"
		with tempfile.TemporaryFile("w+") as output:
			process = subprocess.Popen(STRANGER + ["stdbuf", "-oL", os.environ["VINYLOH"]],
				env=environment, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT)

			def text():
				output.seek(0)
				return output.read()
			try:
				wait_for(lambda: " stop.. " in text(), "the window's pulse")
				process.terminate()
				self.assertEqual(process.wait(15), 0)
			finally:
				process.kill()
				process.wait()
			self.assertIn(" oops-> better /boot/home \n"
				"U_playlist_PATH    : /boot/home/_koru_media_list (", text())

	def test_without_a_home_folder_it_opens_and_closes(self):
		with Session() as session:
			missing = "/nonexistent/home"
			for name in ["HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"]:
				session.environment[name] = missing
			path = os.path.join(session.home, "one.mp3")
			make_title(path, 1, "One", "Nobody", 1)
			program = Program(session, os.path.join(session.root, "log"))
			self.assertEqual(program.drop([path]), 0)
			program.wait_for_text(" add to mflist")
			program.wait_for_text(" stop.. ")
			self.assertIsNone(program.process.poll())


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
