// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef NODE_H
#define NODE_H

#include <Statable.h>
#include <StorageDefs.h>
#include <TypeConstants.h>
#include <fs_attr.h>
#include <string>
#include <vector>

class BDirectory;
class BEntry;
class BString;
struct entry_ref;


struct node_ref {
	node_ref();
	node_ref(dev_t device, ino_t node);
	node_ref(const node_ref& ref);

	bool operator==(const node_ref& ref) const;
	bool operator!=(const node_ref& ref) const;
	bool operator<(const node_ref& ref) const;
	node_ref& operator=(const node_ref& ref);

	dev_t device;
	ino_t node;
};


/*!	A file, a directory or a symbolic link, whatever its contents, with its attributes.

	A link is not followed. The object keeps the node open, so that it stays the same node when the
	file is renamed or replaced.
*/
class BNode : public BStatable {
public:
	BNode();
	BNode(const entry_ref* ref);
	BNode(const BEntry* entry);
	BNode(const char* path);
	BNode(const BDirectory* directory, const char* path);
	BNode(const BNode& node);
	~BNode() override;

	status_t InitCheck() const;
	status_t GetStat(struct stat* stat) const override;

	status_t SetTo(const entry_ref* ref);
	status_t SetTo(const BEntry* entry);
	status_t SetTo(const char* path);
	status_t SetTo(const BDirectory* directory, const char* path);
	void Unset();

	// An advisory lock that keeps other lockers out. B_BUSY if somebody has it.
	status_t Lock();
	status_t Unlock();
	status_t Sync();

	ssize_t WriteAttr(const char* name, type_code type, off_t offset, const void* buffer,
		size_t length);
	ssize_t ReadAttr(const char* name, type_code type, off_t offset, void* buffer,
		size_t length) const;
	status_t RemoveAttr(const char* name);
	status_t RenameAttr(const char* oldName, const char* newName);
	status_t GetAttrInfo(const char* name, struct attr_info* info) const;
	// The buffer has room for B_ATTR_NAME_LENGTH bytes.
	status_t GetNextAttrName(char* buffer);
	status_t RewindAttrs();
	status_t WriteAttrString(const char* name, const BString* data);
	status_t ReadAttrString(const char* name, BString* result) const;

	BNode& operator=(const BNode& node);
	bool operator==(const BNode& node) const;
	bool operator!=(const BNode& node) const;

	// A descriptor of the caller's own, or an error.
	int Dup();

protected:
	// Takes a descriptor over and gives the former one up.
	status_t _Adopt(int fd, status_t status);
	int _Descriptor() const { return fFd; }

private:
	friend class BDirectory;

	status_t _NodePath(std::string* path, bool* follow) const override;
	status_t _SetTo(int folder, const char* path);

private:
	int fFd = -1;
	status_t fCStatus;
	std::vector<std::string> fAttributeNames;
	size_t fNextAttribute = 0;
	bool fAttributesListed = false;
};

#endif // NODE_H
