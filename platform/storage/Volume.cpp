// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Volume.h>

#include <Directory.h>
#include <string.h>
#include <string>
#include <sys/statvfs.h>

#include "platform/storage/Mounts.h"
#include "platform/support/Errno.h"


namespace {

// Where a device is mounted; empty if it is not.
std::string
root_of(dev_t device)
{
	for (const hosted::Mount& mount : hosted::ListMounts()) {
		if (mount.device == device)
			return mount.path;
	}
	return {};
}


bool
stat_volume(dev_t device, struct statvfs* info)
{
	const std::string root = root_of(device);
	return !root.empty() && statvfs(root.c_str(), info) == 0;
}

} // namespace


BVolume::BVolume()
{
	Unset();
}


BVolume::BVolume(dev_t device)
{
	SetTo(device);
}


BVolume::BVolume(const BVolume& volume) = default;


BVolume::~BVolume() = default;


BVolume& BVolume::operator=(const BVolume& volume) = default;


status_t
BVolume::InitCheck() const
{
	return fCStatus;
}


status_t
BVolume::SetTo(dev_t device)
{
	Unset();
	if (root_of(device).empty())
		return fCStatus = B_BAD_VALUE;
	fDevice = device;
	return fCStatus = B_OK;
}


void
BVolume::Unset()
{
	fDevice = static_cast<dev_t>(-1);
	fCStatus = B_NO_INIT;
}


dev_t
BVolume::Device() const
{
	return fDevice;
}


status_t
BVolume::GetRootDirectory(BDirectory* directory) const
{
	if (directory == nullptr)
		return B_BAD_VALUE;
	if (fCStatus != B_OK)
		return B_NO_INIT;
	return directory->SetTo(root_of(fDevice).c_str());
}


off_t
BVolume::Capacity() const
{
	struct statvfs info;
	if (fCStatus != B_OK || !stat_volume(fDevice, &info))
		return B_NO_INIT;
	return static_cast<off_t>(info.f_blocks * info.f_frsize);
}


off_t
BVolume::FreeBytes() const
{
	struct statvfs info;
	if (fCStatus != B_OK || !stat_volume(fDevice, &info))
		return B_NO_INIT;
	return static_cast<off_t>(info.f_bavail * info.f_frsize);
}


status_t
BVolume::GetName(char* name) const
{
	if (name == nullptr)
		return B_BAD_VALUE;
	if (fCStatus != B_OK)
		return B_NO_INIT;
	const std::string root = root_of(fDevice);
	const std::string leaf = root == "/" ? root : root.substr(root.rfind('/') + 1);
	name[leaf.copy(name, B_FILE_NAME_LENGTH - 1)] = '\0';
	return B_OK;
}


bool
BVolume::IsReadOnly() const
{
	struct statvfs info;
	return fCStatus == B_OK && stat_volume(fDevice, &info) && (info.f_flag & ST_RDONLY) != 0;
}


// Types, attributes and queries are the kit's own, whatever the file system.
bool
BVolume::KnowsMime() const
{
	return fCStatus == B_OK;
}


bool
BVolume::KnowsAttr() const
{
	return fCStatus == B_OK;
}


bool
BVolume::KnowsQuery() const
{
	return fCStatus == B_OK;
}


bool
BVolume::operator==(const BVolume& volume) const
{
	return fDevice == volume.fDevice && fCStatus == volume.fCStatus;
}


bool
BVolume::operator!=(const BVolume& volume) const
{
	return !(*this == volume);
}
