// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILE_TYPE_TABLES_H
#define FILE_TYPE_TABLES_H

#include <string_view>


namespace hosted {

// What has to be looked into before the type is certain.
enum class LookInto {
	kNothing,
	kOgg,
	kMatroska,
	kMpeg4,
	kTransportStream,
};

// The type that an extension stands for, and what may change it.
struct ExtensionType {
	std::string_view extension;
	const char* type;
	LookInto lookInto = LookInto::kNothing;
};

// The extension in lower case, without its dot; null for one that the table does not have.
const ExtensionType* FindExtension(std::string_view extension);

} // namespace hosted

#endif // FILE_TYPE_TABLES_H
