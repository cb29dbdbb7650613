// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <SymLink.h>

#include <Directory.h>
#include <Entry.h>
#include <Path.h>
#include <errno.h>
#include <limits.h>
#include <string.h>
#include <unistd.h>

#include "platform/support/Errno.h"


BSymLink::BSymLink() = default;


BSymLink::BSymLink(const entry_ref* ref)
	:
	BNode(ref)
{
}


BSymLink::BSymLink(const BEntry* entry)
	:
	BNode(entry)
{
}


BSymLink::BSymLink(const char* path)
	:
	BNode(path)
{
}


BSymLink::BSymLink(const BDirectory* directory, const char* path)
	:
	BNode(directory, path)
{
}


BSymLink::~BSymLink() = default;


ssize_t
BSymLink::ReadLink(char* buffer, size_t size)
{
	if (buffer == nullptr || size == 0)
		return B_BAD_VALUE;
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	char target[PATH_MAX];
	const ssize_t length = readlinkat(_Descriptor(), "", target, sizeof(target));
	if (length < 0) {
		// How the system tells that an open file is no link.
		return errno == ENOENT ? B_BAD_VALUE : hosted::LastStatus();
	}
	const size_t fitting = std::min(static_cast<size_t>(length), size - 1);
	memcpy(buffer, target, fitting);
	buffer[fitting] = '\0';
	return length;
}


ssize_t
BSymLink::MakeLinkedPath(const char* directory, BPath* path)
{
	if (directory == nullptr || path == nullptr)
		return B_BAD_VALUE;
	char target[PATH_MAX];
	const ssize_t length = ReadLink(target, sizeof(target));
	if (length < 0)
		return length;
	const bool isAbsolute = target[0] == '/';
	const status_t status = isAbsolute ? path->SetTo(target) : path->SetTo(directory, target);
	return status == B_OK ? static_cast<ssize_t>(strlen(path->Path())) : status;
}


ssize_t
BSymLink::MakeLinkedPath(const BDirectory* directory, BPath* path)
{
	BPath folder;
	const status_t status = folder.SetTo(directory);
	return status == B_OK ? MakeLinkedPath(folder.Path(), path) : status;
}


bool
BSymLink::IsAbsolute()
{
	char first[2];
	return ReadLink(first, sizeof(first)) >= 0 && first[0] == '/';
}
