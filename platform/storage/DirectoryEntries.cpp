// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// BDirectory: going through its entries.
#include "platform/storage/DirectoryEntries.h"

#include <Entry.h>
#include <algorithm>
#include <errno.h>
#include <fcntl.h>
#include <string.h>
#include <unistd.h>

#include "platform/storage/Folder.h"
#include "platform/support/Errno.h"


namespace {

bool
is_dots(const std::string& name)
{
	return name == "." || name == "..";
}

} // namespace


// Reads all names at once: the system gives them in no order, and may repeat or leave out some if
// the directory changes meanwhile.
status_t
BDirectory::_ReadEntries()
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	if (fEntries != nullptr)
		return B_OK;

	const int fd = openat(_Descriptor(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
	DIR* directory = fd >= 0 ? fdopendir(fd) : nullptr;
	if (directory == nullptr) {
		const status_t status = hosted::LastStatus();
		if (fd >= 0)
			close(fd);
		return status;
	}
	auto entries = std::make_unique<Entries>();
	errno = 0;
	const dirent* entry = readdir(directory);
	for (; entry != nullptr; entry = readdir(directory))
		entries->items.push_back({entry->d_name, entry->d_ino, entry->d_type});
	const int error = errno;
	closedir(directory);
	if (error != 0)
		return hosted::StatusFromErrno(error);

	const status_t status = hosted::Folder::Open(_Descriptor(), ".", &entries->folder);
	if (status != B_OK)
		return status;
	// Byte by byte: char_traits compares as unsigned.
	std::sort(entries->items.begin(), entries->items.end(),
		[](const Entries::Item& a, const Entries::Item& b) { return a.name < b.name; });
	fEntries = std::move(entries);
	return B_OK;
}


status_t
BDirectory::_NextName(std::string* name)
{
	const status_t status = _ReadEntries();
	if (status != B_OK)
		return status;
	while (fEntries->next < fEntries->items.size()) {
		*name = fEntries->items[fEntries->next++].name;
		if (!is_dots(*name))
			return B_OK;
	}
	return B_ENTRY_NOT_FOUND;
}


status_t
BDirectory::GetNextEntry(BEntry* entry, bool traverse)
{
	if (entry == nullptr)
		return B_BAD_VALUE;
	std::string name;
	const status_t status = _NextName(&name);
	if (status != B_OK) {
		entry->Unset();
		return status;
	}
	entry->_Assign(fEntries->folder, name);
	return traverse ? entry->_Follow(B_MAX_SYMLINKS) : B_OK;
}


status_t
BDirectory::GetNextRef(entry_ref* ref)
{
	if (ref == nullptr)
		return B_BAD_VALUE;
	std::string name;
	const status_t status = _NextName(&name);
	if (status != B_OK)
		return status;
	if (!fEntries->isRemembered)
		fEntries->folder->Remember();
	fEntries->isRemembered = true;
	ref->device = fEntries->folder->Device();
	ref->directory = fEntries->folder->Node();
	return ref->set_name(name.c_str());
}


int32
BDirectory::GetNextDirents(struct dirent* buffer, size_t bufferSize, int32 count)
{
	if (buffer == nullptr)
		return B_BAD_VALUE;
	const status_t status = _ReadEntries();
	if (status != B_OK)
		return status;

	char* target = reinterpret_cast<char*>(buffer);
	int32 done = 0;
	for (; done < count && fEntries->next < fEntries->items.size(); done++) {
		const Entries::Item& item = fEntries->items[fEntries->next];
		constexpr size_t kAlignment = alignof(dirent);
		size_t length = offsetof(dirent, d_name) + item.name.size() + 1;
		length = (length + kAlignment - 1) / kAlignment * kAlignment;
		if (length > bufferSize)
			return done > 0 ? done : B_BUFFER_OVERFLOW;

		dirent* entry = reinterpret_cast<dirent*>(target);
		entry->d_ino = item.node;
		entry->d_off = static_cast<off_t>(++fEntries->next);
		entry->d_reclen = static_cast<unsigned short>(length);
		entry->d_type = item.type;
		memcpy(target + offsetof(dirent, d_name), item.name.c_str(), item.name.size() + 1);
		target += length;
		bufferSize -= length;
	}
	return done;
}


status_t
BDirectory::Rewind()
{
	if (InitCheck() != B_OK)
		return B_FILE_ERROR;
	fEntries.reset();
	return B_OK;
}


int32
BDirectory::CountEntries()
{
	status_t status = Rewind();
	if (status == B_OK)
		status = _ReadEntries();
	if (status != B_OK)
		return status;
	return static_cast<int32>(std::count_if(fEntries->items.begin(), fEntries->items.end(),
		[](const Entries::Item& item) { return !is_dots(item.name); }));
}
