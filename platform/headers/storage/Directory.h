// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef DIRECTORY_H
#define DIRECTORY_H

#include <EntryList.h>
#include <Node.h>
#include <StorageDefs.h>
#include <dirent.h>
#include <limits.h>
#include <memory>

class BFile;
class BSymLink;
struct entry_ref;

namespace hosted {
class Folder;
}


// A directory. Its entries come in ascending order of their names' bytes.
class BDirectory : public BNode, public BEntryList {
public:
	BDirectory();
	BDirectory(const BDirectory& directory);
	BDirectory(const entry_ref* ref);
	BDirectory(const node_ref* ref);
	BDirectory(const BEntry* entry);
	BDirectory(const char* path);
	BDirectory(const BDirectory* directory, const char* path);
	~BDirectory() override;

	status_t SetTo(const entry_ref* ref);
	status_t SetTo(const node_ref* ref);
	status_t SetTo(const BEntry* entry);
	status_t SetTo(const char* path);
	status_t SetTo(const BDirectory* directory, const char* path);

	status_t GetEntry(BEntry* entry) const;
	bool IsRootDirectory() const;
	status_t FindEntry(const char* path, BEntry* entry, bool traverse = false) const;
	bool Contains(const char* path, int32 nodeFlags = B_ANY_NODE) const;
	bool Contains(const BEntry* entry, int32 nodeFlags = B_ANY_NODE) const;
	status_t GetStatFor(const char* path, struct stat* stat) const;

	status_t GetNextEntry(BEntry* entry, bool traverse = false) override;
	status_t GetNextRef(entry_ref* ref) override;
	virtual int32 GetNextDirents(struct dirent* buffer, size_t bufferSize, int32 count = INT_MAX);
	status_t Rewind() override;
	int32 CountEntries() override;

	status_t CreateDirectory(const char* path, BDirectory* directory);
	status_t CreateFile(const char* path, BFile* file, bool failIfExists = false);
	status_t CreateSymLink(const char* path, const char* linkToPath, BSymLink* link);

	BDirectory& operator=(const BDirectory& directory);

private:
	friend class BEntry;
	friend class BFile;
	friend class BNode;
	friend class BPath;
	friend class BSymLink;

	status_t _SetTo(int folder, const char* path);
	status_t _ReadEntries();
	// The next name that is not "." or ".." into name, or an error.
	status_t _NextName(std::string* name);

private:
	struct Entries;
	std::unique_ptr<Entries> fEntries;
};

status_t create_directory(const char* path, mode_t mode);

#endif // DIRECTORY_H
