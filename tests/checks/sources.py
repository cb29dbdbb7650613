"""The C++ sources of the project."""

import os

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def sources():
	"""Their paths from the root. What builds leave and what tools hide is not looked into."""
	found = []
	for folder, folders, names in os.walk(ROOT):
		folders[:] = [name for name in folders if name != "build" and not name.startswith(".")]
		found += [os.path.relpath(os.path.join(folder, name), ROOT)
			for name in names if name.endswith((".cpp", ".h"))]
	return sorted(found)
