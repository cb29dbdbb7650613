// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ATTRIBUTES_H
#define ATTRIBUTES_H

#include <SupportDefs.h>
#include <fs_attr.h>
#include <string>
#include <vector>


namespace hosted {

/*!	The attributes of an open node, wherever they are kept.

	Reading asks the file system, then the user's database, then what can be told of the file
	itself. Writing goes to the database only where the file system refuses. From any thread.
*/
ssize_t ReadAttribute(int fd, const char* name, off_t offset, void* buffer, size_t length);
ssize_t WriteAttribute(int fd, const char* name, type_code type, off_t offset, const void* buffer,
	size_t length);
status_t RemoveAttribute(int fd, const char* name);
status_t StatAttribute(int fd, const char* name, attr_info* info);
// The whole value with its type.
status_t GetAttribute(int fd, const char* name, type_code* type, std::string* value);
// Only what is stored.
status_t ListAttributes(int fd, std::vector<std::string>* names);

} // namespace hosted

#endif // ATTRIBUTES_H
