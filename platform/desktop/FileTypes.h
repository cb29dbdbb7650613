// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILE_TYPES_H
#define FILE_TYPES_H

#include <string>
#include <string_view>


namespace hosted {

/*!	The type of what is at that path, under Haiku's name; empty for what has none (a device, a
	socket, nothing at all).

	A link is a link, whatever it points to. Most files are known by their extension, and then no
	file is opened; the others are looked into, at a few places of bounded size. Callable from any
	thread.
*/
std::string FileType(const std::string& path);

// What the name alone tells, "application/octet-stream" if nothing.
std::string FileTypeOfName(const std::string& leaf);

// Haiku's name of a type of the desktop's database, and the other way round. A type that is called
// the same on both is returned as it is.
std::string HaikuTypeName(std::string_view desktopType);
std::string DesktopTypeName(std::string_view haikuType);

} // namespace hosted

#endif // FILE_TYPES_H
