#!/usr/bin/env python3
"""Runs a command in a session of its own: a virtual display with a window manager, a session bus.

Usage: on_display.py <command> [arguments]
"""

import subprocess
import sys

import session


def main():
	session.as_ordinary_user()
	with session.Session() as desktop:
		environment = {**desktop.environment, "QT_QPA_PLATFORM": "xcb"}
		return subprocess.run(sys.argv[1:], env=environment, stdin=subprocess.DEVNULL).returncode


if __name__ == "__main__":
	sys.exit(main())
