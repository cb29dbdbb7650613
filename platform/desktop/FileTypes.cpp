// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The order in which a file's type is looked for: its kind, its extension, its contents, and last
// the desktop's own database.
#include "platform/desktop/FileTypes.h"

#include <ctype.h>
#include <sys/stat.h>

#include <gio/gio.h>

#include "platform/desktop/FileContents.h"


namespace hosted {

namespace {

constexpr const char* kUnknownType = "application/octet-stream";


// What follows the last dot in lower case; a leading dot only hides a file.
std::string
extension_of(const std::string& leaf)
{
	const size_t dot = leaf.rfind('.');
	if (dot == std::string::npos || dot == 0)
		return "";
	std::string extension = leaf.substr(dot + 1);
	for (char& letter : extension)
		letter = static_cast<char>(tolower(static_cast<unsigned char>(letter)));
	return extension;
}


std::string
desktop_type(const std::string& leaf, const std::string& start)
{
	char* const type = g_content_type_guess(leaf.c_str(),
		reinterpret_cast<const guchar*>(start.data()), start.size(), nullptr);
	const std::string name = type != nullptr ? HaikuTypeName(type) : "";
	g_free(type);
	return name.empty() ? kUnknownType : name;
}


std::string
type_of_plain_file(const std::string& path)
{
	constexpr size_t kStart = 4096;
	const std::string leaf = path.substr(path.rfind('/') + 1);
	const ExtensionType* const known = FindExtension(extension_of(leaf));
	if (known != nullptr && known->lookInto == LookInto::kNothing)
		return known->type;

	const FileContents contents(path);
	if (!contents.IsOpen())
		return FileTypeOfName(leaf);
	const char* type = known != nullptr ? RefineType(contents, *known) : SniffType(contents);
	return type != nullptr ? type : desktop_type(leaf, contents.Read(0, kStart));
}

} // namespace


std::string
FileTypeOfName(const std::string& leaf)
{
	const ExtensionType* const known = FindExtension(extension_of(leaf));
	if (known != nullptr)
		return known->type;
	char* const type = g_content_type_guess(leaf.c_str(), nullptr, 0, nullptr);
	const std::string name = type != nullptr ? HaikuTypeName(type) : "";
	g_free(type);
	return name.empty() ? kUnknownType : name;
}


std::string
FileType(const std::string& path)
{
	struct stat status;
	if (lstat(path.c_str(), &status) != 0)
		return "";
	switch (status.st_mode & S_IFMT) {
		case S_IFREG:
			return type_of_plain_file(path);
		case S_IFDIR:
			return "application/x-vnd.Be-directory";
		case S_IFLNK:
			return "application/x-vnd.Be-symlink";
		default:
			return "";
	}
}

} // namespace hosted
