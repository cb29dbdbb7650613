// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ATTRIBUTE_CONNECTION_H
#define ATTRIBUTE_CONNECTION_H

#include <memory>
#include <sqlite3.h>
#include <string>
#include <vector>

#include "platform/storage/AttributeDatabase.h"


namespace hosted {

/*!	The open database: its statements and what they mean.

	Not guarded; the database's lock does that. Calls answer SQLite's codes, SQLITE_NOTFOUND for
	what is not there.
*/
class AttributeDatabase::Connection {
public:
	Connection() = default;
	~Connection();
	Connection(const Connection&) = delete;
	Connection& operator=(const Connection&) = delete;

	int Open(const std::string& path, bool create);
	const std::string& Path() const { return fPath; }
	// Whether the file is still the one that was opened.
	bool IsCurrent() const;

	int Read(const FileIdentity& file, const char* name, type_code* type, std::string* value);
	int Write(const FileIdentity& file, const char* name, type_code type, const std::string& value);
	int Remove(const FileIdentity& file, const char* name);
	int List(const FileIdentity& file, std::vector<std::string>* names);
	int Move(const std::string& from, const std::string& to);
	int RemoveNode(const std::string& path);

private:
	class Statement;

	int _Prepare();
	int _FindByNumber(const FileIdentity& file, int64* id);
	int _FindNode(const FileIdentity& file, int64* id, bool* hasMoved);
	int _MakeNode(const FileIdentity& file, int64* id);
	int _DeleteNode(int64 id);
	int _Store(const FileIdentity& file, const char* name, type_code type,
		const std::string& value);

private:
	struct Finalizer {
		void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
	};
	using StatementPointer = std::unique_ptr<sqlite3_stmt, Finalizer>;

	int _Prepare(const char* text, StatementPointer* statement);

	std::string fPath;
	uint64 fFileNode = 0;
	sqlite3* fHandle = nullptr;
	StatementPointer fNodeByPath;
	StatementPointer fNodeByNumber;
	StatementPointer fValueByPath;
	StatementPointer fValue;
	StatementPointer fNames;
	StatementPointer fSetNode;
	StatementPointer fSetPath;
	StatementPointer fSetValue;
	StatementPointer fDeleteValue;
	StatementPointer fDeleteValues;
	StatementPointer fDeleteNode;
	StatementPointer fNodesBelow;
};

} // namespace hosted

#endif // ATTRIBUTE_CONNECTION_H
