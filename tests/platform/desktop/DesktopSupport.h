// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DESKTOP_SUPPORT_H
#define DESKTOP_SUPPORT_H

#include <stdlib.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/support/TempFolder.h"


namespace test {

/*!	A fresh folder of programs, before all others in PATH while it lives. */
class ProgramFolder {
public:
	ProgramFolder() { setenv("PATH", (fFolder.Path() + ":" + fPathBefore).c_str(), 1); }

	~ProgramFolder() { setenv("PATH", fPathBefore.c_str(), 1); }

	// Adds an executable file and returns its path.
	std::string Add(const std::string& name, const std::string& contents) const
	{
		const std::string path = fFolder.Write(name, contents);
		chmod(path.c_str(), 0755);
		return path;
	}

	std::string Link(const std::string& name, const std::string& target) const
	{
		const std::string path = fFolder / name;
		return symlink(target.c_str(), path.c_str()) == 0 ? path : "";
	}

private:
	std::string fPathBefore = getenv("PATH");
	TempFolder fFolder;
};

} // namespace test

#endif // DESKTOP_SUPPORT_H
