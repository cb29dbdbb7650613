// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/AttributeConnection.h"

#include <string.h>
#include <sys/stat.h>
#include <utility>


namespace hosted {

namespace {

constexpr int kBusyMillis = 2000;

// Paths and names are bytes in whatever encoding, hence blobs.
constexpr const char* kSchema = "CREATE TABLE IF NOT EXISTS node ("
								"id INTEGER PRIMARY KEY, path BLOB NOT NULL UNIQUE,"
								"number INTEGER NOT NULL, birth INTEGER NOT NULL);"
								"CREATE INDEX IF NOT EXISTS node_number ON node (number, birth);"
								"CREATE TABLE IF NOT EXISTS attribute ("
								"node INTEGER NOT NULL, name BLOB NOT NULL,"
								"type INTEGER NOT NULL, value BLOB NOT NULL,"
								"PRIMARY KEY (node, name)) WITHOUT ROWID;";


uint64
file_node(const std::string& path)
{
	struct stat status;
	return stat(path.c_str(), &status) == 0 ? status.st_ino : 0;
}


// Whether a row is about this file rather than one that lay at its path before.
bool
is_same_file(const FileIdentity& file, int64 number, int64 birth)
{
	if (birth != 0 && file.birth != 0)
		return birth == file.birth;
	return number == static_cast<int64>(file.node) || file.isNodeUnsteady;
}

} // namespace


// Lends a prepared statement, with its parameters bound in order, and gives it back empty.
class AttributeDatabase::Connection::Statement {
public:
	explicit Statement(const StatementPointer& statement)
		:
		fStatement(statement.get())
	{
	}
	~Statement()
	{
		sqlite3_reset(fStatement);
		sqlite3_clear_bindings(fStatement);
	}
	Statement(const Statement&) = delete;
	Statement& operator=(const Statement&) = delete;

	Statement& Bind(int64 value)
	{
		sqlite3_bind_int64(fStatement, ++fBound, value);
		return *this;
	}
	// The text must outlive the statement's use. An empty one is not NULL.
	Statement& Bind(const char* bytes, size_t length)
	{
		sqlite3_bind_blob64(fStatement, ++fBound, length > 0 ? bytes : "", length, SQLITE_STATIC);
		return *this;
	}
	Statement& Bind(const std::string& bytes) { return Bind(bytes.data(), bytes.size()); }

	int Step() { return sqlite3_step(fStatement); }
	// For one that gives no rows.
	int Run()
	{
		const int result = Step();
		return result == SQLITE_DONE || result == SQLITE_ROW ? SQLITE_OK : result;
	}

	bool IsNull(int column) const { return sqlite3_column_type(fStatement, column) == SQLITE_NULL; }
	int64 Number(int column) const { return sqlite3_column_int64(fStatement, column); }
	std::string Bytes(int column) const
	{
		const char* bytes = static_cast<const char*>(sqlite3_column_blob(fStatement, column));
		const int length = sqlite3_column_bytes(fStatement, column);
		return bytes != nullptr ? std::string(bytes, static_cast<size_t>(length)) : std::string();
	}

private:
	sqlite3_stmt* fStatement;
	int fBound = 0;
};


AttributeDatabase::Connection::~Connection()
{
	fNodeByPath.reset();
	fNodeByNumber.reset();
	fValueByPath.reset();
	fValue.reset();
	fNames.reset();
	fSetNode.reset();
	fSetPath.reset();
	fSetValue.reset();
	fDeleteValue.reset();
	fDeleteValues.reset();
	fDeleteNode.reset();
	fNodesBelow.reset();
	sqlite3_close(fHandle);
}


int
AttributeDatabase::Connection::Open(const std::string& path, bool create)
{
	fPath = path;
	const int flags
		= SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (create ? SQLITE_OPEN_CREATE : 0);
	int result = sqlite3_open_v2(path.c_str(), &fHandle, flags, nullptr);
	if (result != SQLITE_OK)
		return result;
	fFileNode = file_node(path);
	sqlite3_busy_timeout(fHandle, kBusyMillis);
	// A write then costs no wait for the disk; what is lost at a power failure is the last second.
	result = sqlite3_exec(fHandle, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;", nullptr,
		nullptr, nullptr);
	if (result == SQLITE_OK)
		result = sqlite3_exec(fHandle, kSchema, nullptr, nullptr, nullptr);
	return result == SQLITE_OK ? _Prepare() : result;
}


bool
AttributeDatabase::Connection::IsCurrent() const
{
	return fFileNode != 0 && file_node(fPath) == fFileNode;
}


int
AttributeDatabase::Connection::_Prepare(const char* text, StatementPointer* statement)
{
	sqlite3_stmt* prepared = nullptr;
	const int result
		= sqlite3_prepare_v3(fHandle, text, -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
	statement->reset(prepared);
	return result;
}


int
AttributeDatabase::Connection::_Prepare()
{
	const std::pair<const char*, StatementPointer*> kStatements[] = {
		{"SELECT id, number, birth FROM node WHERE path = ?", &fNodeByPath},
		{"SELECT id, path FROM node WHERE number = ? AND birth = ?", &fNodeByNumber},
		{"SELECT node.number, node.birth, attribute.type, attribute.value FROM node"
		 " LEFT JOIN attribute ON attribute.node = node.id AND attribute.name = ?"
		 " WHERE node.path = ?",
			&fValueByPath},
		{"SELECT type, value FROM attribute WHERE node = ? AND name = ?", &fValue},
		{"SELECT name FROM attribute WHERE node = ? ORDER BY name", &fNames},
		{"INSERT INTO node (path, number, birth) VALUES (?, ?, ?)", &fSetNode},
		{"UPDATE node SET path = ?, number = ?, birth = ? WHERE id = ?", &fSetPath},
		{"INSERT OR REPLACE INTO attribute (node, name, type, value) VALUES (?, ?, ?, ?)",
			&fSetValue},
		{"DELETE FROM attribute WHERE node = ? AND name = ?", &fDeleteValue},
		{"DELETE FROM attribute WHERE node = ?", &fDeleteValues},
		{"DELETE FROM node WHERE id = ?", &fDeleteNode},
		{"SELECT id, number, birth, path FROM node WHERE path >= ? AND path < ?", &fNodesBelow},
	};
	for (const auto& [text, statement] : kStatements) {
		const int result = _Prepare(text, statement);
		if (result != SQLITE_OK)
			return result;
	}
	return SQLITE_OK;
}


/*!	Finds a file by its path, if it is still the same one, else by its number, in case it was
	renamed.

	A number alone proves nothing, as it is given out again; together with the time of birth it
	does.
*/
int
AttributeDatabase::Connection::_FindNode(const FileIdentity& file, int64* id, bool* hasMoved)
{
	*hasMoved = false;
	{
		Statement byPath(fNodeByPath);
		const int result = byPath.Bind(file.path).Step();
		if (result == SQLITE_ROW) {
			*id = byPath.Number(0);
			if (is_same_file(file, byPath.Number(1), byPath.Number(2)))
				return SQLITE_OK;
		} else if (result != SQLITE_DONE) {
			return result;
		}
	}
	const int result = _FindByNumber(file, id);
	*hasMoved = result == SQLITE_OK;
	return result;
}


int
AttributeDatabase::Connection::_FindByNumber(const FileIdentity& file, int64* id)
{
	if (file.birth == 0 || file.isNodeUnsteady)
		return SQLITE_NOTFOUND;
	Statement byNumber(fNodeByNumber);
	const int result = byNumber.Bind(static_cast<int64>(file.node)).Bind(file.birth).Step();
	if (result != SQLITE_ROW)
		return result == SQLITE_DONE ? SQLITE_NOTFOUND : result;
	*id = byNumber.Number(0);
	return SQLITE_OK;
}


int
AttributeDatabase::Connection::_DeleteNode(int64 id)
{
	const int result = Statement(fDeleteValues).Bind(id).Run();
	return result == SQLITE_OK ? Statement(fDeleteNode).Bind(id).Run() : result;
}


int
AttributeDatabase::Connection::RemoveNode(const std::string& path)
{
	int64 id;
	{
		Statement byPath(fNodeByPath);
		const int result = byPath.Bind(path).Step();
		if (result != SQLITE_ROW)
			return result == SQLITE_DONE ? SQLITE_NOTFOUND : result;
		id = byPath.Number(0);
	}
	return _DeleteNode(id);
}


// The node's row, brought up to date, or a new one in place of what lay at this path before.
int
AttributeDatabase::Connection::_MakeNode(const FileIdentity& file, int64* id)
{
	const int64 number = static_cast<int64>(file.node);
	bool hasMoved;
	int result = _FindNode(file, id, &hasMoved);
	if (result == SQLITE_OK && !hasMoved)
		return Statement(fSetPath).Bind(file.path).Bind(number).Bind(file.birth).Bind(*id).Run();
	if (result != SQLITE_OK && result != SQLITE_NOTFOUND)
		return result;

	const bool isKnown = result == SQLITE_OK;
	result = RemoveNode(file.path);
	if (result != SQLITE_OK && result != SQLITE_NOTFOUND)
		return result;
	if (isKnown)
		return Statement(fSetPath).Bind(file.path).Bind(number).Bind(file.birth).Bind(*id).Run();
	result = Statement(fSetNode).Bind(file.path).Bind(number).Bind(file.birth).Run();
	*id = sqlite3_last_insert_rowid(fHandle);
	return result;
}


int
AttributeDatabase::Connection::Read(const FileIdentity& file, const char* name, type_code* type,
	std::string* value)
{
	// One question suffices unless the file was renamed.
	{
		Statement byPath(fValueByPath);
		const int result = byPath.Bind(name, strlen(name)).Bind(file.path).Step();
		if (result != SQLITE_ROW && result != SQLITE_DONE)
			return result;
		if (result == SQLITE_ROW && is_same_file(file, byPath.Number(0), byPath.Number(1))) {
			if (byPath.IsNull(2))
				return SQLITE_NOTFOUND;
			*type = static_cast<type_code>(byPath.Number(2));
			*value = byPath.Bytes(3);
			return SQLITE_OK;
		}
	}
	int64 id;
	int result = _FindByNumber(file, &id);
	if (result != SQLITE_OK)
		return result;
	Statement select(fValue);
	result = select.Bind(id).Bind(name, strlen(name)).Step();
	if (result != SQLITE_ROW)
		return result == SQLITE_DONE ? SQLITE_NOTFOUND : result;
	*type = static_cast<type_code>(select.Number(0));
	*value = select.Bytes(1);
	return SQLITE_OK;
}


int
AttributeDatabase::Connection::_Store(const FileIdentity& file, const char* name, type_code type,
	const std::string& value)
{
	int64 id;
	const int result = _MakeNode(file, &id);
	if (result != SQLITE_OK)
		return result;
	return Statement(fSetValue)
		.Bind(id)
		.Bind(name, strlen(name))
		.Bind(static_cast<int64>(type))
		.Bind(value)
		.Run();
}


int
AttributeDatabase::Connection::Write(const FileIdentity& file, const char* name, type_code type,
	const std::string& value)
{
	int result = sqlite3_exec(fHandle, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
	if (result != SQLITE_OK)
		return result;
	result = _Store(file, name, type, value);
	if (result == SQLITE_OK)
		result = sqlite3_exec(fHandle, "COMMIT", nullptr, nullptr, nullptr);
	if (result != SQLITE_OK)
		sqlite3_exec(fHandle, "ROLLBACK", nullptr, nullptr, nullptr);
	return result;
}


int
AttributeDatabase::Connection::Remove(const FileIdentity& file, const char* name)
{
	int64 id;
	bool hasMoved;
	int result = _FindNode(file, &id, &hasMoved);
	if (result != SQLITE_OK)
		return result;
	result = Statement(fDeleteValue).Bind(id).Bind(name, strlen(name)).Run();
	if (result == SQLITE_OK && sqlite3_changes(fHandle) == 0)
		return SQLITE_NOTFOUND;
	return result;
}


int
AttributeDatabase::Connection::List(const FileIdentity& file, std::vector<std::string>* names)
{
	int64 id;
	bool hasMoved;
	int result = _FindNode(file, &id, &hasMoved);
	if (result != SQLITE_OK)
		return result == SQLITE_NOTFOUND ? SQLITE_OK : result;
	Statement select(fNames);
	select.Bind(id);
	for (result = select.Step(); result == SQLITE_ROW; result = select.Step())
		names->push_back(select.Bytes(0));
	return result == SQLITE_DONE ? SQLITE_OK : result;
}


int
AttributeDatabase::Connection::Move(const std::string& from, const std::string& to)
{
	struct Row {
		int64 id;
		int64 number;
		int64 birth;
		std::string path;
	};
	std::vector<Row> rows;
	// The node itself, then what lies below it: all that begins with its path and a slash.
	const std::pair<std::string, std::string> ranges[] = {
		{from, from + std::string(1, '\0')},
		{from + "/", from + "0"},
	};
	for (const auto& [begin, end] : ranges) {
		Statement select(fNodesBelow);
		select.Bind(begin).Bind(end);
		int result;
		for (result = select.Step(); result == SQLITE_ROW; result = select.Step()) {
			const std::string path = to + select.Bytes(3).substr(from.size());
			rows.push_back({select.Number(0), select.Number(1), select.Number(2), path});
		}
		if (result != SQLITE_DONE)
			return result;
	}
	int result = RemoveNode(to);
	for (const Row& row : rows) {
		if (result == SQLITE_OK || result == SQLITE_NOTFOUND)
			result = RemoveNode(row.path);
		if (result != SQLITE_OK && result != SQLITE_NOTFOUND)
			return result;
		result = Statement(fSetPath)
					 .Bind(row.path)
					 .Bind(row.number)
					 .Bind(row.birth)
					 .Bind(row.id)
					 .Run();
	}
	return result;
}

} // namespace hosted
