// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef COMPUTED_ATTRIBUTES_H
#define COMPUTED_ATTRIBUTES_H

#include <string>

#include <SupportDefs.h>


namespace hosted {

/*!	The value of an attribute that a file answers although nobody stored it: "BEOS:TYPE" from the
	table of file types, "Audio:Artist", "Audio:Title", "Audio:Album" and "Audio:Track" from its
	tags.

	path is absolute and names an existing file or folder. False if the file has no such value; then
	type and value are as they were. The value is as the attribute holds it: texts with their
	terminating zero, the track as an int32. Callable from any thread.
*/
bool ComputeAttribute(const std::string& path, const char* name, type_code* type,
	std::string* value);

} // namespace hosted

#endif // COMPUTED_ATTRIBUTES_H
