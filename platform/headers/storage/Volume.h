// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VOLUME_H
#define VOLUME_H

#include <StorageDefs.h>
#include <SupportDefs.h>

class BDirectory;


class BVolume {
public:
	BVolume();
	BVolume(dev_t device);
	BVolume(const BVolume& volume);
	virtual ~BVolume();

	status_t InitCheck() const;
	status_t SetTo(dev_t device);
	void Unset();

	dev_t Device() const;
	status_t GetRootDirectory(BDirectory* directory) const;
	off_t Capacity() const;
	off_t FreeBytes() const;
	// The buffer has room for B_FILE_NAME_LENGTH bytes.
	status_t GetName(char* name) const;

	bool IsReadOnly() const;
	bool KnowsMime() const;
	bool KnowsAttr() const;
	bool KnowsQuery() const;

	bool operator==(const BVolume& volume) const;
	bool operator!=(const BVolume& volume) const;
	BVolume& operator=(const BVolume& volume);

private:
	dev_t fDevice;
	status_t fCStatus;
};

#endif // VOLUME_H
