// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/Mounts.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <stdlib.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/sysmacros.h>


namespace hosted {

namespace {

// File systems that stand for something else than files.
constexpr std::array kOtherSystems = {
	std::string_view("proc"),
	std::string_view("sysfs"),
	std::string_view("devtmpfs"),
	std::string_view("devpts"),
	std::string_view("cgroup"),
	std::string_view("cgroup2"),
	std::string_view("securityfs"),
	std::string_view("debugfs"),
	std::string_view("tracefs"),
	std::string_view("configfs"),
	std::string_view("fusectl"),
	std::string_view("pstore"),
	std::string_view("bpf"),
	std::string_view("mqueue"),
	std::string_view("hugetlbfs"),
	std::string_view("autofs"),
	std::string_view("efivarfs"),
	std::string_view("binfmt_misc"),
	std::string_view("rpc_pipefs"),
	std::string_view("nsfs"),
	std::string_view("fuse.portal"),
	std::string_view("fuse.gvfsd-fuse"),
};


// Blanks and the like are written as a backslash and three octal digits.
std::string
unescaped(const std::string& text)
{
	std::string result;
	for (size_t index = 0; index < text.size(); index++) {
		if (text[index] == '\\' && index + 3 < text.size()) {
			result += static_cast<char>(strtol(text.substr(index + 1, 3).c_str(), nullptr, 8));
			index += 3;
		} else
			result += text[index];
	}
	return result;
}


bool
parse(const std::string& line, Mount* mount)
{
	std::istringstream fields(line);
	std::string number;
	std::string parent;
	std::string device;
	std::string root;
	std::string path;
	std::string field;
	fields >> number >> parent >> device >> root >> path;
	while (fields >> field && field != "-") {
	}
	std::string type;
	fields >> type;
	const size_t colon = device.find(':');
	if (!fields || colon == std::string::npos
		|| std::find(kOtherSystems.begin(), kOtherSystems.end(), type) != kOtherSystems.end()) {
		return false;
	}
	mount->path = unescaped(path);
	mount->device = makedev(static_cast<unsigned>(strtoul(device.c_str(), nullptr, 10)),
		static_cast<unsigned>(strtoul(device.c_str() + colon + 1, nullptr, 10)));
	// Parts of one pool have numbers of their own, which are not those listed. Only there it is
	// safe to look: a share that is gone would keep the caller waiting.
	struct stat status;
	if (type == "btrfs" && stat(mount->path.c_str(), &status) == 0)
		mount->device = status.st_dev;
	return true;
}

} // namespace


std::vector<Mount>
ListMounts()
{
	std::vector<Mount> mounts;
	// Where another folder was made the root, the system's list leaves out what it is on.
	struct stat status;
	if (stat("/", &status) == 0)
		mounts.push_back({status.st_dev, "/"});
	std::ifstream file("/proc/self/mountinfo");
	std::string line;
	while (std::getline(file, line)) {
		Mount mount;
		const auto isSame = [&](const Mount& other) { return other.device == mount.device; };
		if (parse(line, &mount) && std::none_of(mounts.begin(), mounts.end(), isSame))
			mounts.push_back(mount);
	}
	return mounts;
}

} // namespace hosted
