// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MOUNTS_H
#define MOUNTS_H

#include <string>
#include <sys/types.h>
#include <vector>


namespace hosted {

struct Mount {
	dev_t device;
	// Where its topmost directory appears.
	std::string path;
};

// What is mounted that holds files: disks, shares and file systems in memory, each device once,
// what the root is on first.
std::vector<Mount> ListMounts();

} // namespace hosted

#endif // MOUNTS_H
