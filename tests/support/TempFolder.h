// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TEMP_FOLDER_H
#define TEMP_FOLDER_H

#include <string>


namespace test {

/*!	A fresh folder that is removed with everything in it.

	It lies under the test process's own folder, on the file system of the temporary files.
*/
class TempFolder {
public:
	TempFolder();
	~TempFolder();
	TempFolder(const TempFolder&) = delete;
	TempFolder& operator=(const TempFolder&) = delete;

	const std::string& Path() const { return fPath; }
	// The path of a name in the folder, which need not exist.
	std::string operator/(const std::string& name) const { return fPath + "/" + name; }

	// Writes a file, with its parent folders, and returns its path.
	std::string Write(const std::string& name, const std::string& contents) const;
	// Makes a folder, with its parents, and returns its path.
	std::string MakeFolder(const std::string& name) const;

private:
	std::string fPath;
};

// The whole contents of a file; empty if it cannot be read.
std::string ReadFile(const std::string& path);

} // namespace test

#endif // TEMP_FOLDER_H
