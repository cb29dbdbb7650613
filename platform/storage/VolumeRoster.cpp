// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <VolumeRoster.h>

#include <Volume.h>
#include <sys/stat.h>

#include "platform/storage/Mounts.h"
#include "platform/support/Errno.h"


BVolumeRoster::BVolumeRoster() = default;


BVolumeRoster::~BVolumeRoster() = default;


status_t
BVolumeRoster::GetNextVolume(BVolume* volume)
{
	if (volume == nullptr)
		return B_BAD_VALUE;
	if (!fListed) {
		fDevices.clear();
		for (const hosted::Mount& mount : hosted::ListMounts())
			fDevices.push_back(mount.device);
		fListed = true;
		fNext = 0;
	}
	// One that was unmounted meanwhile is passed over.
	while (fNext < fDevices.size()) {
		if (volume->SetTo(fDevices[fNext++]) == B_OK)
			return B_OK;
	}
	volume->Unset();
	return B_BAD_VALUE;
}


void
BVolumeRoster::Rewind()
{
	fListed = false;
}


status_t
BVolumeRoster::GetBootVolume(BVolume* volume)
{
	if (volume == nullptr)
		return B_BAD_VALUE;
	struct stat status;
	if (stat("/", &status) != 0) {
		volume->Unset();
		return hosted::LastStatus();
	}
	return volume->SetTo(status.st_dev);
}
