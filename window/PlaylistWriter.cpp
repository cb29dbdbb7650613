// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Writing of playlist files.
#include "window/PlaylistFile.h"

#include <string>
#include <vector>

#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

#include <List.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Path.h>
#include <StorageDefs.h>
#include <fs_attr.h>


namespace {

struct Attribute {
	std::string name;
	uint32 type;
	std::vector<char> data;
};

} // namespace


static constexpr char kPlaylistType[] = "text/x-playlist";
static constexpr int kMaxLinks = 16;
static constexpr int kMaxAttempts = 100;


static std::string
folder_of(const std::string& path)
{
	return path.substr(0, path.rfind('/') + 1);
}


// The file that is to be written: behind all links, which may lead to what does not exist yet, but
// not in a circle, for which the result is empty.
static std::string
behind_links(std::string path)
{
	for (int count = 0; count < kMaxLinks; count++) {
		char target[PATH_MAX];
		const ssize_t length = readlink(path.c_str(), target, sizeof(target) - 1);
		if (length < 0)
			return path;
		target[length] = '\0';
		path = target[0] == '/' ? std::string(target) : folder_of(path) + target;
	}
	return std::string();
}


static bool
write_lines(FILE* file, const BList& list, bool withPrefix)
{
	for (int32 index = 0; index <= list.CountItems(); index++) {
		const BPath* const entry = static_cast<const BPath*>(list.ItemAt(index));
		if (entry != nullptr && entry->Path() != nullptr)
			fprintf(file, "%s%s\n", withPrefix ? "file://" : "", entry->Path());
	}
	return fflush(file) == 0 && ferror(file) == 0;
}


// Closes the descriptor in any case.
static bool
write_to(int descriptor, const BList& list, bool withPrefix)
{
	FILE* const file = fdopen(descriptor, "w");
	if (file == nullptr) {
		close(descriptor);
		return false;
	}
	bool written = write_lines(file, list, withPrefix);
	// What is no file on a disk cannot be synced.
	if (written && fsync(descriptor) != 0)
		written = errno == EINVAL || errno == ENOTSUP;
	return fclose(file) == 0 && written;
}


static std::vector<Attribute>
attributes_of(const std::string& path)
{
	std::vector<Attribute> found;
	BNode node(path.c_str());
	char name[B_ATTR_NAME_LENGTH];
	while (node.InitCheck() == B_OK && node.GetNextAttrName(name) == B_OK) {
		attr_info info;
		if (node.GetAttrInfo(name, &info) != B_OK)
			continue;
		Attribute attribute = {name, info.type, std::vector<char>(static_cast<size_t>(info.size))};
		if (node.ReadAttr(name, info.type, 0, attribute.data.data(), attribute.data.size())
			== static_cast<ssize_t>(attribute.data.size()))
			found.push_back(attribute);
	}
	return found;
}


static void
set_attributes(const std::string& path, const std::vector<Attribute>& attributes)
{
	BNode node(path.c_str());
	for (const Attribute& attribute : attributes) {
		node.WriteAttr(attribute.name.c_str(), attribute.type, 0, attribute.data.data(),
			attribute.data.size());
	}
	BNodeInfo(&node).SetType(kPlaylistType);
}


// Opens a new file in the folder.
static int
open_beside(const std::string& folder, std::string* path)
{
	for (int attempt = 0; attempt < kMaxAttempts; attempt++) {
		*path = folder + ".playlist-" + std::to_string(getpid()) + "-" + std::to_string(attempt);
		const int descriptor = open(path->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
		if (descriptor >= 0 || errno != EEXIST)
			return descriptor;
	}
	return -1;
}


static void
sync_folder(const std::string& folder)
{
	const int descriptor = open(folder.c_str(), O_RDONLY | O_CLOEXEC);
	if (descriptor < 0)
		return;
	fsync(descriptor);
	close(descriptor);
}


static bool
replace_file(const std::string& target, const struct stat* old, const BList& list, bool withPrefix)
{
	const std::string folder = folder_of(target);
	std::string fresh;
	const int descriptor = open_beside(folder, &fresh);
	if (descriptor < 0)
		return false;

	if (old != nullptr) {
		// Only the superuser can give a file away; for all others it is theirs already.
		if (fchown(descriptor, old->st_uid, old->st_gid) != 0)
			errno = 0;
		fchmod(descriptor, old->st_mode & 07777);
	}
	// With its attributes, so that the program may end at any moment and leave one file or the
	// other. They are written first: they are part of what is synced.
	const std::vector<Attribute> attributes = attributes_of(target);
	set_attributes(fresh, attributes);
	if (!write_to(descriptor, list, withPrefix) || rename(fresh.c_str(), target.c_str()) != 0) {
		unlink(fresh.c_str());
		return false;
	}
	// Where attributes belong to a path, they have not come along.
	set_attributes(target, attributes);
	sync_folder(folder);
	return true;
}


bool
WritePlaylist(const char* path, const BList& list, bool withPrefix)
{
	if (path == nullptr)
		return false;
	const std::string target = behind_links(path);
	if (target.empty())
		return false;
	struct stat status;
	if (stat(target.c_str(), &status) != 0)
		return replace_file(target, nullptr, list, withPrefix);

	// A file that may not be written is not replaced either, though its folder would allow it; nor
	// one that cannot be read, since what it holds was never in the list.
	const bool isFile = S_ISREG(status.st_mode);
	const int descriptor
		= open(target.c_str(), (isFile ? O_RDWR : O_WRONLY) | O_NONBLOCK | O_CLOEXEC);
	if (descriptor < 0)
		return false;
	// A device is written itself.
	if (!isFile)
		return write_to(descriptor, list, withPrefix);
	close(descriptor);
	return replace_file(target, &status, list, withPrefix);
}
