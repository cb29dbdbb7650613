// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DATA_IO_H
#define DATA_IO_H

#include <SupportDefs.h>


class BDataIO {
public:
	BDataIO();
	virtual ~BDataIO();
	BDataIO(const BDataIO&) = delete;
	BDataIO& operator=(const BDataIO&) = delete;

	virtual ssize_t Read(void* buffer, size_t size);
	virtual ssize_t Write(const void* buffer, size_t size);
	virtual status_t Flush();

	// These return an error unless the whole buffer was moved.
	status_t ReadExactly(void* buffer, size_t size, size_t* _bytesRead = NULL);
	status_t WriteExactly(const void* buffer, size_t size, size_t* _bytesWritten = NULL);
};


class BPositionIO : public BDataIO {
public:
	BPositionIO();
	~BPositionIO() override;

	ssize_t Read(void* buffer, size_t size) override;
	ssize_t Write(const void* buffer, size_t size) override;

	virtual ssize_t ReadAt(off_t position, void* buffer, size_t size) = 0;
	virtual ssize_t WriteAt(off_t position, const void* buffer, size_t size) = 0;

	status_t ReadAtExactly(off_t position, void* buffer, size_t size, size_t* _bytesRead = NULL);
	status_t WriteAtExactly(off_t position, const void* buffer, size_t size,
		size_t* _bytesWritten = NULL);

	virtual off_t Seek(off_t position, uint32 seekMode) = 0;
	virtual off_t Position() const = 0;
	virtual status_t SetSize(off_t size);
	virtual status_t GetSize(off_t* size) const;
};


// Reads and writes memory that somebody else owns. Its size never exceeds the size given.
class BMemoryIO : public BPositionIO {
public:
	BMemoryIO(void* data, size_t length);
	BMemoryIO(const void* data, size_t length);
	~BMemoryIO() override;

	ssize_t ReadAt(off_t position, void* buffer, size_t size) override;
	ssize_t WriteAt(off_t position, const void* buffer, size_t size) override;

	off_t Seek(off_t position, uint32 seekMode) override;
	off_t Position() const override;
	status_t SetSize(off_t size) override;

private:
	bool fReadOnly;
	char* fBuffer;
	size_t fLength;
	size_t fBufferSize;
	off_t fPosition = 0;
};


// Memory of its own, which grows as needed.
class BMallocIO : public BPositionIO {
public:
	BMallocIO();
	~BMallocIO() override;

	ssize_t ReadAt(off_t position, void* buffer, size_t size) override;
	ssize_t WriteAt(off_t position, const void* buffer, size_t size) override;

	off_t Seek(off_t position, uint32 seekMode) override;
	off_t Position() const override;
	status_t SetSize(off_t size) override;

	void SetBlockSize(size_t blockSize);
	const void* Buffer() const;
	size_t BufferLength() const;

private:
	size_t fBlockSize = 256;
	size_t fMallocSize = 0;
	size_t fLength = 0;
	char* fData = nullptr;
	off_t fPosition = 0;
};

#endif // DATA_IO_H
