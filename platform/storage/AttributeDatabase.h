// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ATTRIBUTE_DATABASE_H
#define ATTRIBUTE_DATABASE_H

#include <SupportDefs.h>
#include <memory>
#include <mutex>
#include <string>
#include <vector>


namespace hosted {

/*!	What makes a file that has no attributes of its own the same file again.

	Its path, and that nothing else was put there: the node's number and the time of its birth.
	Either may be missing or unsteady, depending on the file system.
*/
struct FileIdentity {
	std::string path;
	uint64 node = 0;
	// Nanoseconds; 0 if the file system does not know.
	int64 birth = 0;
	// The file system makes node numbers up anew each time it is mounted.
	bool isNodeUnsteady = false;
};

// B_ENTRY_NOT_FOUND if the open file has no path any more.
status_t IdentifyFile(int fd, FileIdentity* identity);


/*!	The attributes of files whose file system takes none, or is full: one database in the user's
	data folder.

	The file is made by the first write. A damaged one is put aside and begun anew. If there is no
	place for it, reading finds nothing and writing fails with B_NO_INIT. Every call may be made
	from any thread; other programs may use the same database at the same time.
*/
class AttributeDatabase {
public:
	AttributeDatabase();
	~AttributeDatabase();
	AttributeDatabase(const AttributeDatabase&) = delete;
	AttributeDatabase& operator=(const AttributeDatabase&) = delete;

	// The one of this process. Follows the user's data folder should that change.
	static AttributeDatabase& Default();
	// Empty if there is no such folder.
	static std::string DefaultPath();

	// B_ENTRY_NOT_FOUND if the file has no such attribute here.
	status_t Read(const FileIdentity& file, const char* name, type_code* type, std::string* value);
	status_t Write(const FileIdentity& file, const char* name, type_code type,
		const std::string& value);
	status_t Remove(const FileIdentity& file, const char* name);
	status_t List(const FileIdentity& file, std::vector<std::string>* names);

	// Whether there can be anything at all; cheap.
	bool Exists();

	// A file or a folder with everything in it got another path, or is gone.
	void NodeMoved(const std::string& from, const std::string& to);
	void NodeRemoved(const std::string& path);

private:
	class Connection;

	status_t _Open(bool create);
	void _PutAside();
	template <typename Operation>
	status_t _Perform(bool create, Operation operation);

private:
	std::mutex fMutex;
	std::unique_ptr<Connection> fConnection;
};

} // namespace hosted

#endif // ATTRIBUTE_DATABASE_H
