// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FILE_TEXT_H
#define FILE_TEXT_H

#include <string>


namespace hosted {

// The bytes of a small file, as far as they can be read: files of the process table may vanish
// while they are read, and then C++'s streams throw.
std::string FileText(const std::string& path);

} // namespace hosted

#endif // FILE_TEXT_H
