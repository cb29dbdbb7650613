// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Node.h>

#include <Directory.h>
#include <Entry.h>
#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


node_ref::node_ref()
	:
	device(static_cast<dev_t>(-1)),
	node(static_cast<ino_t>(-1))
{
}


node_ref::node_ref(dev_t device, ino_t node)
	:
	device(device),
	node(node)
{
}


node_ref::node_ref(const node_ref& ref) = default;


node_ref& node_ref::operator=(const node_ref& ref) = default;


bool
node_ref::operator==(const node_ref& ref) const
{
	return device == ref.device && node == ref.node;
}


bool
node_ref::operator!=(const node_ref& ref) const
{
	return !(*this == ref);
}


bool
node_ref::operator<(const node_ref& ref) const
{
	return device != ref.device ? device < ref.device : node < ref.node;
}


BNode::BNode()
	:
	fCStatus(B_NO_INIT)
{
}


BNode::BNode(const entry_ref* ref)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(ref);
}


BNode::BNode(const BEntry* entry)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(entry);
}


BNode::BNode(const char* path)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(path);
}


BNode::BNode(const BDirectory* directory, const char* path)
	:
	fCStatus(B_NO_INIT)
{
	SetTo(directory, path);
}


BNode::BNode(const BNode& node)
	:
	BStatable(),
	fCStatus(B_NO_INIT)
{
	*this = node;
}


BNode::~BNode()
{
	BNode::Unset();
}


BNode&
BNode::operator=(const BNode& node)
{
	if (this == &node)
		return *this;
	if (node.fCStatus != B_OK) {
		_Adopt(-1, node.fCStatus);
		return *this;
	}
	const int fd = fcntl(node.fFd, F_DUPFD_CLOEXEC, 0);
	_Adopt(fd, fd >= 0 ? B_OK : hosted::LastStatus());
	return *this;
}


status_t
BNode::InitCheck() const
{
	return fCStatus;
}


status_t
BNode::GetStat(struct stat* stat) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	if (stat == nullptr)
		return B_BAD_VALUE;
	return fstat(fFd, stat) == 0 ? B_OK : hosted::LastStatus();
}


status_t
BNode::SetTo(const entry_ref* ref)
{
	BEntry entry;
	const status_t status = entry.SetTo(ref);
	return status == B_OK ? SetTo(&entry) : _Adopt(-1, status);
}


status_t
BNode::SetTo(const BEntry* entry)
{
	if (entry == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	if (entry->InitCheck() != B_OK)
		return _Adopt(-1, entry->InitCheck());
	return _SetTo(entry->fFolder->Descriptor(), entry->Name());
}


status_t
BNode::SetTo(const char* path)
{
	return _SetTo(AT_FDCWD, path);
}


status_t
BNode::SetTo(const BDirectory* directory, const char* path)
{
	if (directory == nullptr || directory->InitCheck() != B_OK)
		return _Adopt(-1, B_BAD_VALUE);
	return _SetTo(directory->_Descriptor(), path);
}


// Reading is all that attributes need of a descriptor, and one for writing would make everybody who
// watches the folder believe that the file was changed.
status_t
BNode::_SetTo(int folder, const char* path)
{
	if (path == nullptr)
		return _Adopt(-1, B_BAD_VALUE);
	int fd = openat(folder, path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
	// A link or a socket, which has attributes, but nothing to open.
	if (fd < 0 && (errno == ELOOP || errno == ENXIO))
		fd = openat(folder, path, O_PATH | O_NOFOLLOW | O_CLOEXEC);
	return _Adopt(fd, fd >= 0 ? B_OK : hosted::LastStatus());
}


void
BNode::Unset()
{
	_Adopt(-1, B_NO_INIT);
}


status_t
BNode::_Adopt(int fd, status_t status)
{
	if (fFd >= 0)
		close(fFd);
	fFd = fd;
	fAttributesListed = false;
	fAttributeNames.clear();
	return fCStatus = status;
}


status_t
BNode::Lock()
{
	if (fCStatus != B_OK)
		return B_FILE_ERROR;
	if (flock(fFd, LOCK_EX | LOCK_NB) == 0)
		return B_OK;
	return errno == EWOULDBLOCK ? B_BUSY : hosted::LastStatus();
}


status_t
BNode::Unlock()
{
	if (fCStatus != B_OK)
		return B_FILE_ERROR;
	return flock(fFd, LOCK_UN) == 0 ? B_OK : hosted::LastStatus();
}


status_t
BNode::Sync()
{
	if (fCStatus != B_OK)
		return B_FILE_ERROR;
	return fsync(fFd) == 0 ? B_OK : hosted::LastStatus();
}


bool
BNode::operator==(const BNode& node) const
{
	if (fCStatus != B_OK || node.fCStatus != B_OK)
		return fCStatus != B_OK && node.fCStatus != B_OK;
	struct stat own;
	struct stat other;
	return GetStat(&own) == B_OK && node.GetStat(&other) == B_OK && own.st_dev == other.st_dev
		&& own.st_ino == other.st_ino;
}


bool
BNode::operator!=(const BNode& node) const
{
	return !(*this == node);
}


int
BNode::Dup()
{
	if (fCStatus != B_OK)
		return B_FILE_ERROR;
	const int fd = fcntl(fFd, F_DUPFD_CLOEXEC, 0);
	return fd >= 0 ? fd : hosted::LastStatus();
}


status_t
BNode::_NodePath(std::string* path, bool* follow) const
{
	if (fCStatus != B_OK)
		return B_NO_INIT;
	*path = "/proc/self/fd/" + std::to_string(fFd);
	*follow = true;
	return B_OK;
}
