// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SYM_LINK_H
#define SYM_LINK_H

#include <Node.h>
#include <StorageDefs.h>

class BPath;


class BSymLink : public BNode {
public:
	BSymLink();
	BSymLink(const entry_ref* ref);
	BSymLink(const BEntry* entry);
	BSymLink(const char* path);
	BSymLink(const BDirectory* directory, const char* path);
	~BSymLink() override;

	// The length of the link's text; what fits of it, always terminated, comes into the buffer.
	ssize_t ReadLink(char* buffer, size_t size);
	ssize_t MakeLinkedPath(const char* directory, BPath* path);
	ssize_t MakeLinkedPath(const BDirectory* directory, BPath* path);
	bool IsAbsolute();
};

#endif // SYM_LINK_H
