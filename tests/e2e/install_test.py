"""The installed program: where everything lies, that it starts from there, and its package."""

import os
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from program import Program  # noqa: E402
from session import Session, as_ordinary_user  # noqa: E402

LIST_OF_PACKAGES = os.path.join(os.path.dirname(os.path.abspath(__file__)),
	"../../packaging/linux/packages.txt")


class Install(unittest.TestCase):
	def test_the_installed_program_finds_its_languages_and_its_icon(self):
		prefix = os.environ["INSTALLED"]
		entry = os.path.join(prefix, "share/applications/VinyloH.desktop")
		subprocess.run(["desktop-file-validate", entry], check=True)
		self.assertTrue(os.path.isfile(
			os.path.join(prefix, "share/icons/hicolor/scalable/apps/VinyloH.svg")))
		command = os.path.join(prefix, "bin/VinyloH")
		languages = os.path.join(os.path.dirname(os.path.realpath(command)),
			"Language/Dictionaries")
		self.assertIn("KORU-Haiku.deDE", os.listdir(languages))
		with Session() as session:
			program = Program(session, os.path.join(session.root, "log"), command)
			# The desktop entry is found by the window's class.
			self.assertIn('"VinyloH"',
				session.output(["xprop", "-id", program.window, "WM_CLASS"]))
			self.assertEqual(program.close(), 0)
			for name in os.listdir(languages):
				self.assertIn(f": '{os.path.join(languages, name)}'  ", program.text())

	def test_the_package_holds_the_program_and_names_all_that_it_needs(self):
		folder = os.environ["PACKAGES"]
		package = max((os.path.join(folder, name) for name in os.listdir(folder)
			if name.endswith(".deb")), key=os.path.getmtime)
		depends = subprocess.check_output(["dpkg-deb", "-f", package, "Depends"], text=True)
		with open(LIST_OF_PACKAGES, encoding="ascii") as file:
			rows = [line.split() for line in file if line.strip() and line[0] != "#"]
		self.assertEqual(depends.strip().split(", "), [name for name, kind in rows if kind == "run"])
		with tempfile.TemporaryDirectory() as root:
			subprocess.run(["dpkg-deb", "-x", package, root], check=True)
			share = os.path.join(root, "usr/share")
			self.assertTrue(os.access(os.path.join(root, "usr/bin/VinyloH"), os.X_OK))
			self.assertTrue(os.path.isfile(os.path.join(share, "doc/vinyloh/copyright")))
			# Without a domain there is no name that a domain's owner could vouch for.
			subprocess.run(["appstreamcli", "validate", "--no-net",
				"--override=cid-desktopapp-is-not-rdns=info",
				os.path.join(share, "metainfo/VinyloH.metainfo.xml")],
				check=True, stdout=subprocess.DEVNULL)


if __name__ == "__main__":
	as_ordinary_user()
	unittest.main(verbosity=2)
