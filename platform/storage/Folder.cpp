// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/Folder.h"

#include <dirent.h>
#include <fcntl.h>
#include <limits.h>
#include <mutex>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>

#include "platform/support/Errno.h"


namespace hosted {

namespace {

struct Key {
	dev_t device;
	ino_t node;

	bool operator==(const Key& other) const { return device == other.device && node == other.node; }
};


struct KeyHash {
	size_t operator()(const Key& key) const
	{
		return std::hash<ino_t>()(key.node) ^ (std::hash<dev_t>()(key.device) << 1);
	}
};


struct Record {
	std::string path;
	Key parent = {};
};


// Where directories were seen, and those that are open. Never destroyed, as folders may be held by
// static objects.
struct Table {
	std::mutex mutex;
	std::unordered_map<Key, Record, KeyHash> records;
	std::unordered_map<Key, std::weak_ptr<Folder>, KeyHash> open;
};


Table&
table()
{
	static Table* const sTable = new Table;
	return *sTable;
}


std::string
parent_of(const std::string& path)
{
	const size_t slash = path.rfind('/');
	return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}


bool
lies_at(const std::string& path, const Key& key)
{
	struct stat status;
	return stat(path.c_str(), &status) == 0 && key == Key{status.st_dev, status.st_ino};
}


// Looks for a directory of the given numbers in another one.
std::string
find_in(const std::string& folder, const Key& key)
{
	std::string found;
	DIR* directory = opendir(folder.c_str());
	if (directory == nullptr)
		return found;
	const dirent* entry = readdir(directory);
	for (; entry != nullptr && found.empty(); entry = readdir(directory)) {
		if (entry->d_ino == key.node && lies_at(JoinPath(folder, entry->d_name), key))
			found = JoinPath(folder, entry->d_name);
	}
	closedir(directory);
	return found;
}


// The path of a directory that was remembered; empty if it is not found any more.
std::string
find_path(const Key& key, int levelsLeft)
{
	Record record;
	{
		std::lock_guard<std::mutex> guard(table().mutex);
		const auto found = table().records.find(key);
		if (found == table().records.end())
			return {};
		record = found->second;
	}
	if (lies_at(record.path, key))
		return record.path;
	if (record.path == "/" || levelsLeft == 0)
		return {};

	// It was renamed, or one of its parents was.
	const std::string parent = find_path(record.parent, levelsLeft - 1);
	if (parent.empty())
		return {};
	std::string path = JoinPath(parent, record.path.substr(record.path.rfind('/') + 1));
	if (!lies_at(path, key))
		path = find_in(parent, key);
	if (!path.empty())
		RememberFolder(key.device, key.node, path);
	return path;
}

} // namespace


Folder::Folder(int fd, dev_t device, ino_t node)
	:
	fFd(fd),
	fDevice(device),
	fNode(node)
{
}


Folder::~Folder()
{
	close(fFd);
	std::lock_guard<std::mutex> guard(table().mutex);
	const auto found = table().open.find(Key{fDevice, fNode});
	// Another one of the same numbers may have come meanwhile.
	if (found != table().open.end() && found->second.expired())
		table().open.erase(found);
}


status_t
Folder::Open(int base, const char* path, std::shared_ptr<Folder>* folder)
{
	const int fd = openat(base, path, O_PATH | O_DIRECTORY | O_CLOEXEC);
	if (fd < 0)
		return LastStatus();
	struct stat status;
	if (fstat(fd, &status) != 0) {
		close(fd);
		return LastStatus();
	}

	// What is released must not be released under the table's lock.
	std::shared_ptr<Folder> fresh(new Folder(fd, status.st_dev, status.st_ino));
	std::shared_ptr<Folder> result;
	{
		std::lock_guard<std::mutex> guard(table().mutex);
		std::weak_ptr<Folder>& known = table().open[Key{status.st_dev, status.st_ino}];
		result = known.lock();
		if (result == nullptr) {
			known = fresh;
			result = fresh;
		}
	}
	*folder = std::move(result);
	return B_OK;
}


status_t
Folder::Open(dev_t device, ino_t node, std::shared_ptr<Folder>* folder)
{
	const Key key = {device, node};
	std::shared_ptr<Folder> result;
	{
		std::lock_guard<std::mutex> guard(table().mutex);
		const auto found = table().open.find(key);
		if (found != table().open.end())
			result = found->second.lock();
	}
	if (result == nullptr) {
		const std::string path = find_path(key, PATH_MAX / 2);
		if (path.empty())
			return B_ENTRY_NOT_FOUND;
		const status_t status = Open(AT_FDCWD, path.c_str(), &result);
		if (status != B_OK)
			return status;
		// Replaced since it was looked at.
		if (!(key == Key{result->fDevice, result->fNode}))
			return B_ENTRY_NOT_FOUND;
	}
	*folder = std::move(result);
	return B_OK;
}


status_t
Folder::GetPath(std::string* path) const
{
	return PathOfDescriptor(fFd, path);
}


bool
Folder::IsRoot() const
{
	struct stat root;
	return stat("/", &root) == 0 && root.st_dev == fDevice && root.st_ino == fNode;
}


void
Folder::Remember() const
{
	std::string path;
	if (GetPath(&path) == B_OK)
		RememberFolder(fDevice, fNode, path);
}


std::string
JoinPath(const std::string& folder, const std::string& leaf)
{
	return folder == "/" ? "/" + leaf : folder + "/" + leaf;
}


void
RememberFolder(dev_t device, ino_t node, const std::string& path)
{
	Key key = {device, node};
	std::string where = path;
	// Its parents are remembered too, up to one that is known to lie there.
	while (true) {
		{
			std::lock_guard<std::mutex> guard(table().mutex);
			const auto found = table().records.find(key);
			if (found != table().records.end() && found->second.path == where)
				return;
		}
		const std::string above = parent_of(where);
		struct stat status;
		if (stat(above.c_str(), &status) != 0)
			return;
		const Key parent = {status.st_dev, status.st_ino};
		{
			std::lock_guard<std::mutex> guard(table().mutex);
			table().records[key] = Record{where, parent};
		}
		if (where == "/")
			return;
		key = parent;
		where = above;
	}
}


status_t
PathOfDescriptor(int fd, std::string* path)
{
	char link[64];
	snprintf(link, sizeof(link), "/proc/self/fd/%d", fd);
	char target[PATH_MAX];
	const ssize_t length = readlink(link, target, sizeof(target) - 1);
	if (length < 0)
		return LastStatus();
	target[length] = '\0';
	struct stat held;
	struct stat there;
	// The path of something that was removed has a remark behind it.
	if (fstat(fd, &held) != 0 || lstat(target, &there) != 0 || held.st_dev != there.st_dev
		|| held.st_ino != there.st_ino) {
		return B_ENTRY_NOT_FOUND;
	}
	path->assign(target, static_cast<size_t>(length));
	return B_OK;
}

} // namespace hosted
