// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef EXTENDED_ATTRIBUTES_H
#define EXTENDED_ATTRIBUTES_H

#include <SupportDefs.h>
#include <string>
#include <vector>


namespace hosted {

// What a value may be long at most.
constexpr size_t kMaxAttributeSize = 40960;

/*!	Attributes where the file system keeps them: as extended attributes of the system.

	The name gets a prefix and the value is led by its type. Calls answer the system's error
	numbers, 0 for success.
*/
struct ExtendedAttributes {
	static int Read(int fd, const char* name, type_code* type, std::string* value);
	static int Write(int fd, const char* name, type_code type, const std::string& value);
	static int Remove(int fd, const char* name);
	static int List(int fd, std::vector<std::string>* names);

	// Whether the error says that the file system does not take this, not that it may not be done.
	static bool IsRefusal(int fd, int error);

	// The name as the system knows it, and back. Decode is false for names of other origin.
	static std::string EncodeName(const char* name);
	static bool DecodeName(const std::string& encoded, std::string* name);

	// For tests: every call fails with this error until it is set to 0.
	static void SetRefusal(int error);
};

} // namespace hosted

#endif // EXTENDED_ATTRIBUTES_H
