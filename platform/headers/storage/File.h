// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILE_H
#define FILE_H

#include <DataIO.h>
#include <Node.h>


class BFile : public BNode, public BPositionIO {
public:
	BFile();
	BFile(const BFile& file);
	BFile(const entry_ref* ref, uint32 openMode);
	BFile(const BEntry* entry, uint32 openMode);
	BFile(const char* path, uint32 openMode);
	BFile(const BDirectory* directory, const char* path, uint32 openMode);
	~BFile() override;

	status_t SetTo(const entry_ref* ref, uint32 openMode);
	status_t SetTo(const BEntry* entry, uint32 openMode);
	status_t SetTo(const char* path, uint32 openMode);
	status_t SetTo(const BDirectory* directory, const char* path, uint32 openMode);

	bool IsReadable() const;
	bool IsWritable() const;

	ssize_t Read(void* buffer, size_t size) override;
	ssize_t ReadAt(off_t location, void* buffer, size_t size) override;
	ssize_t Write(const void* buffer, size_t size) override;
	ssize_t WriteAt(off_t location, const void* buffer, size_t size) override;

	off_t Seek(off_t offset, uint32 seekMode) override;
	off_t Position() const override;

	status_t SetSize(off_t size) override;
	status_t GetSize(off_t* size) const override;

	BFile& operator=(const BFile& file);

private:
	friend class BDirectory;

	status_t _SetTo(int folder, const char* path, uint32 openMode);

private:
	uint32 fMode = 0;
};

#endif // FILE_H
