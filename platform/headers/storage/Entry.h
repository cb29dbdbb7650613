// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ENTRY_H
#define ENTRY_H

#include <Statable.h>
#include <StorageDefs.h>
#include <SupportDefs.h>
#include <memory>
#include <string>

class BDirectory;
class BPath;

namespace hosted {
class Folder;
}


// A name in a directory. There need not be such an entry.
struct entry_ref {
	entry_ref();
	entry_ref(dev_t device, ino_t directory, const char* name);
	entry_ref(const entry_ref& ref);
	~entry_ref();

	status_t set_name(const char* name);

	bool operator==(const entry_ref& ref) const;
	bool operator!=(const entry_ref& ref) const;
	entry_ref& operator=(const entry_ref& ref);

	dev_t device;
	// The node of the directory that has the entry.
	ino_t directory;
	char* name;
};


/*!	A place in a directory, whether or not something is there.

	It holds on to the directory rather than to its path, and so follows it when it is renamed.
*/
class BEntry : public BStatable {
public:
	BEntry();
	BEntry(const BDirectory* directory, const char* path, bool traverse = false);
	BEntry(const entry_ref* ref, bool traverse = false);
	BEntry(const char* path, bool traverse = false);
	BEntry(const BEntry& entry);
	~BEntry() override;

	status_t InitCheck() const;
	bool Exists() const;
	const char* Name() const;

	status_t GetStat(struct stat* stat) const override;

	status_t SetTo(const BDirectory* directory, const char* path, bool traverse = false);
	status_t SetTo(const entry_ref* ref, bool traverse = false);
	status_t SetTo(const char* path, bool traverse = false);
	void Unset();

	status_t GetRef(entry_ref* ref) const;
	status_t GetPath(BPath* path) const;
	status_t GetParent(BEntry* entry) const;
	status_t GetParent(BDirectory* directory) const;
	status_t GetName(char* buffer) const;

	status_t Rename(const char* path, bool clobber = false);
	status_t MoveTo(BDirectory* directory, const char* path = NULL, bool clobber = false);
	status_t Remove();

	bool operator==(const BEntry& other) const;
	bool operator!=(const BEntry& other) const;
	BEntry& operator=(const BEntry& other);

private:
	friend class BDirectory;
	friend class BFile;
	friend class BNode;
	friend class BPath;
	friend class BSymLink;

	status_t _NodePath(std::string* path, bool* follow) const override;
	status_t _Assign(std::shared_ptr<hosted::Folder> folder, std::string name);
	status_t _Resolve(std::shared_ptr<hosted::Folder> base, const char* path, bool traverse,
		int linksLeft);
	status_t _ResolveDots(int base, const std::string& path);
	status_t _Follow(int linksLeft);
	status_t _Rename(const std::shared_ptr<hosted::Folder>& base, const char* path, bool clobber);

private:
	std::shared_ptr<hosted::Folder> fFolder;
	std::string fName;
	status_t fCStatus;
};

status_t get_ref_for_path(const char* path, entry_ref* ref);
bool operator<(const entry_ref& a, const entry_ref& b);

#endif // ENTRY_H
