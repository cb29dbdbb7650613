// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/fuzz/FuzzFolder.h"

#include <filesystem>

#include <stdio.h>
#include <stdlib.h>

#include "platform/screen/DisplayThread.h"


namespace {

class Folder {
public:
	Folder()
	{
		std::string pattern = std::filesystem::temp_directory_path() / "vinyloh-fuzz-XXXXXX";
		Require(mkdtemp(pattern.data()) != nullptr, "a temporary folder");
		path = pattern;
		setenv("HOME", path.c_str(), 1);
		for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
			const std::string folder = path + "/" + name;
			std::filesystem::create_directory(folder);
			setenv(name, folder.c_str(), 1);
		}
		setenv("QT_QPA_PLATFORM", "offscreen", 1);
		setenv("LC_ALL", "C.UTF-8", 1);
		Require(freopen("/dev/null", "w", stdout) != nullptr, "a place for the output");
	}
	~Folder()
	{
		hosted::DisplayThread::Stop();
		std::error_code error;
		std::filesystem::remove_all(path, error);
	}

	std::string path;
};

} // namespace


const std::string&
FuzzFolder()
{
	static Folder sFolder;
	return sFolder.path;
}


void
AddSeeds(int* argc, char*** argv, const std::vector<std::string>& seeds)
{
	const std::string folder = FuzzFolder() + "/seeds";
	for (int index = 1; index < *argc; index++) {
		if ((*argv)[index][0] != '-')
			return;
	}

	std::filesystem::create_directory(folder);
	for (size_t index = 0; index < seeds.size(); index++) {
		WriteBytes(folder + "/" + std::to_string(index),
			reinterpret_cast<const uint8_t*>(seeds[index].data()), seeds[index].size());
	}

	// The fuzzer keeps the arguments as long as the process lives.
	static std::string sFolder;
	static std::vector<char*> sArguments;
	sFolder = folder;
	sArguments.assign(*argv, *argv + *argc);
	sArguments.push_back(sFolder.data());
	sArguments.push_back(nullptr);
	*argv = sArguments.data();
	(*argc)++;
}


void
WriteBytes(const std::string& path, const uint8_t* data, size_t size)
{
	FILE* const file = fopen(path.c_str(), "wb");
	Require(file != nullptr, "a file to write");
	fwrite(data, 1, size, file);
	fclose(file);
}


void
Require(bool condition, const char* what)
{
	if (condition)
		return;
	fprintf(stderr, "missing: %s\n", what);
	abort();
}
