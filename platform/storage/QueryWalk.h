// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef QUERY_WALK_H
#define QUERY_WALK_H

#include <Directory.h>
#include <Entry.h>
#include <memory>
#include <string>
#include <vector>

#include "platform/storage/Predicate.h"


namespace hosted {

/*!	Goes through a folder and those in it, one match at a time.

	Hidden folders and other volumes are left out, links are not followed. How deep and how far it
	goes is limited.
*/
class QueryWalk {
public:
	explicit QueryWalk(const std::string& root);

	// B_ENTRY_NOT_FOUND at the end.
	status_t Next(const Predicate& predicate, entry_ref* ref);

private:
	void _Enter(const entry_ref& ref, const struct stat& status);
	static bool _Matches(const Predicate& predicate, const entry_ref& ref);

private:
	std::vector<std::unique_ptr<BDirectory>> fFolders;
	dev_t fDevice = 0;
	size_t fVisited = 0;
};

} // namespace hosted

#endif // QUERY_WALK_H
