// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/desktop/FileText.h"

#include <fcntl.h>
#include <unistd.h>


namespace hosted {

std::string
FileText(const std::string& path)
{
	constexpr size_t kMaxSize = 1024 * 1024;
	std::string text;
	const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
	if (file < 0)
		return text;
	char buffer[4096];
	ssize_t count;
	do {
		count = read(file, buffer, sizeof(buffer));
		if (count > 0)
			text.append(buffer, static_cast<size_t>(count));
	} while (count > 0 && text.size() < kMaxSize);
	close(file);
	return text;
}

} // namespace hosted
