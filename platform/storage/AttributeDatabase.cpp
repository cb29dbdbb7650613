// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/storage/AttributeDatabase.h"

#include <FindDirectory.h>
#include <Path.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/storage/AttributeConnection.h"


namespace hosted {

namespace {

status_t
status_of(int result)
{
	switch (result & 0xff) {
		case SQLITE_OK:
			return B_OK;
		case SQLITE_NOTFOUND:
			return B_ENTRY_NOT_FOUND;
		case SQLITE_BUSY:
		case SQLITE_LOCKED:
			return B_BUSY;
		case SQLITE_FULL:
			return B_DEVICE_FULL;
		case SQLITE_READONLY:
		case SQLITE_PERM:
			return B_PERMISSION_DENIED;
		case SQLITE_NOMEM:
			return B_NO_MEMORY;
		case SQLITE_CANTOPEN:
			return B_NO_INIT;
		default:
			return B_IO_ERROR;
	}
}


bool
is_damage(int result)
{
	const int kind = result & 0xff;
	return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB;
}


// Makes a folder and those above it, for the user alone.
void
make_folder(const std::string& path)
{
	for (size_t slash = path.find('/', 1); slash != std::string::npos;
		 slash = path.find('/', slash + 1)) {
		mkdir(path.substr(0, slash).c_str(), 0700);
	}
	mkdir(path.c_str(), 0700);
}

} // namespace


AttributeDatabase::AttributeDatabase() = default;


AttributeDatabase::~AttributeDatabase() = default;


AttributeDatabase&
AttributeDatabase::Default()
{
	// Never destroyed: threads may still write when main() is over.
	static AttributeDatabase* const sDefault = new AttributeDatabase;
	return *sDefault;
}


std::string
AttributeDatabase::DefaultPath()
{
	BPath path;
	if (find_directory(B_USER_DATA_DIRECTORY, &path) != B_OK)
		return {};
	return std::string(path.Path()) + "/haiku-attributes/attributes.db";
}


bool
AttributeDatabase::Exists()
{
	const std::string path = DefaultPath();
	return !path.empty() && access(path.c_str(), F_OK) == 0;
}


// Opens the database unless it is open already. B_ENTRY_NOT_FOUND if it is not there and is not to
// be made.
status_t
AttributeDatabase::_Open(bool create)
{
	const std::string path = DefaultPath();
	if (path.empty())
		return create ? B_NO_INIT : B_ENTRY_NOT_FOUND;
	if (fConnection != nullptr && fConnection->Path() == path && fConnection->IsCurrent())
		return B_OK;

	fConnection.reset();
	if (access(path.c_str(), F_OK) != 0) {
		if (!create)
			return B_ENTRY_NOT_FOUND;
		make_folder(path.substr(0, path.rfind('/')));
	}
	auto connection = std::make_unique<Connection>();
	int result = connection->Open(path, create);
	// Here a plain error means tables that are not ours.
	if (is_damage(result) || result == SQLITE_ERROR) {
		connection.reset();
		_PutAside();
		if (!create)
			return B_ENTRY_NOT_FOUND;
		connection = std::make_unique<Connection>();
		result = connection->Open(path, create);
	}
	if (result != SQLITE_OK)
		return status_of(result);
	fConnection = std::move(connection);
	return B_OK;
}


void
AttributeDatabase::_PutAside()
{
	fConnection.reset();
	const std::string path = DefaultPath();
	fprintf(stderr, "The attributes in %s cannot be read; they are put aside.\n", path.c_str());
	rename(path.c_str(), (path + ".damaged").c_str());
	unlink((path + "-wal").c_str());
	unlink((path + "-shm").c_str());
}


template <typename Operation>
status_t
AttributeDatabase::_Perform(bool create, Operation operation)
{
	std::lock_guard<std::mutex> guard(fMutex);
	status_t status = _Open(create);
	if (status != B_OK)
		return status;
	int result = operation(*fConnection);
	if (is_damage(result)) {
		_PutAside();
		status = _Open(create);
		if (status != B_OK)
			return status;
		result = operation(*fConnection);
	}
	return status_of(result);
}


status_t
AttributeDatabase::Read(const FileIdentity& file, const char* name, type_code* type,
	std::string* value)
{
	const status_t status = _Perform(false,
		[&](Connection& connection) { return connection.Read(file, name, type, value); });
	// A database that may not be opened holds nothing.
	return status == B_NO_INIT || status == B_PERMISSION_DENIED ? B_ENTRY_NOT_FOUND : status;
}


status_t
AttributeDatabase::Write(const FileIdentity& file, const char* name, type_code type,
	const std::string& value)
{
	return _Perform(true,
		[&](Connection& connection) { return connection.Write(file, name, type, value); });
}


status_t
AttributeDatabase::Remove(const FileIdentity& file, const char* name)
{
	const status_t status
		= _Perform(false, [&](Connection& connection) { return connection.Remove(file, name); });
	return status == B_NO_INIT ? B_ENTRY_NOT_FOUND : status;
}


status_t
AttributeDatabase::List(const FileIdentity& file, std::vector<std::string>* names)
{
	names->clear();
	const status_t status = _Perform(false, [&](Connection& connection) {
		names->clear();
		return connection.List(file, names);
	});
	return status == B_ENTRY_NOT_FOUND || status == B_NO_INIT || status == B_PERMISSION_DENIED
		? B_OK
		: status;
}


void
AttributeDatabase::NodeMoved(const std::string& from, const std::string& to)
{
	if (Exists()) {
		_Perform(false, [&](Connection& connection) { return connection.Move(from, to); });
	}
}


void
AttributeDatabase::NodeRemoved(const std::string& path)
{
	if (Exists())
		_Perform(false, [&](Connection& connection) { return connection.RemoveNode(path); });
}

} // namespace hosted
