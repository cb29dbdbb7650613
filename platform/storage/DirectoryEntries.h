// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DIRECTORY_ENTRIES_H
#define DIRECTORY_ENTRIES_H

#include <Directory.h>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>


// The names in a directory as they were at the first question, in order, and how far they were
// given.
struct BDirectory::Entries {
	struct Item {
		std::string name;
		ino_t node;
		unsigned char type;
	};

	std::vector<Item> items;
	size_t next = 0;
	std::shared_ptr<hosted::Folder> folder;
	bool isRemembered = false;
};

#endif // DIRECTORY_ENTRIES_H
