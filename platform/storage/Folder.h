// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FOLDER_H
#define FOLDER_H

#include <SupportDefs.h>
#include <memory>
#include <string>
#include <sys/types.h>


namespace hosted {

/*!	A directory held open, which all entries in it share.

	Whoever holds it keeps the directory itself, not its path: it may be renamed meanwhile. Usable
	from any thread.
*/
class Folder {
public:
	~Folder();
	Folder(const Folder&) = delete;
	Folder& operator=(const Folder&) = delete;

	// A path relative to an open directory, or to the current one with AT_FDCWD.
	static status_t Open(int base, const char* path, std::shared_ptr<Folder>* folder);
	// A directory by its numbers, as references name it. Found if this process holds it, or if a
	// reference to it was made here and it still lies where it was or was renamed in its place.
	static status_t Open(dev_t device, ino_t node, std::shared_ptr<Folder>* folder);

	int Descriptor() const { return fFd; }
	dev_t Device() const { return fDevice; }
	ino_t Node() const { return fNode; }

	status_t GetPath(std::string* path) const;
	bool IsRoot() const;

	// To be called before the directory's numbers are handed out, so that they find it again.
	void Remember() const;

private:
	Folder(int fd, dev_t device, ino_t node);

private:
	int fFd;
	dev_t fDevice;
	ino_t fNode;
};

// The same for a directory that is not held: its numbers will lead to this path.
void RememberFolder(dev_t device, ino_t node, const std::string& path);

std::string JoinPath(const std::string& folder, const std::string& leaf);

// Where an open node lies now. B_ENTRY_NOT_FOUND if it was removed.
status_t PathOfDescriptor(int fd, std::string* path);

} // namespace hosted

#endif // FOLDER_H
