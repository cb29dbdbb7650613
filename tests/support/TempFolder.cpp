// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdlib.h>


namespace test {

TempFolder::TempFolder()
{
	std::string pattern = std::filesystem::temp_directory_path() / "vinyloh-test-XXXXXX";
	if (mkdtemp(pattern.data()) == nullptr)
		abort();
	fPath = pattern;
}


TempFolder::~TempFolder()
{
	std::error_code error;
	std::filesystem::remove_all(fPath, error);
}


std::string
TempFolder::Write(const std::string& name, const std::string& contents) const
{
	const std::filesystem::path path = std::filesystem::path(fPath) / name;
	std::filesystem::create_directories(path.parent_path());
	std::ofstream(path, std::ios::binary) << contents;
	return path;
}


std::string
TempFolder::MakeFolder(const std::string& name) const
{
	const std::filesystem::path path = std::filesystem::path(fPath) / name;
	std::filesystem::create_directories(path);
	return path;
}


std::string
ReadFile(const std::string& path)
{
	std::ifstream file(path, std::ios::binary);
	return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace test
