// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VOLUME_ROSTER_H
#define VOLUME_ROSTER_H

#include <SupportDefs.h>
#include <sys/types.h>
#include <vector>

class BVolume;


class BVolumeRoster {
public:
	BVolumeRoster();
	virtual ~BVolumeRoster();

	status_t GetNextVolume(BVolume* volume);
	void Rewind();
	status_t GetBootVolume(BVolume* volume);

private:
	std::vector<dev_t> fDevices;
	size_t fNext = 0;
	bool fListed = false;
};

#endif // VOLUME_ROSTER_H
