// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Output.h"

#include <stdio.h>
#include <unistd.h>


namespace test {

namespace {

std::string
written_to(FILE* stream, const std::function<void()>& function)
{
	fflush(stream);
	FILE* file = tmpfile();
	const int before = dup(fileno(stream));
	dup2(fileno(file), fileno(stream));
	function();
	fflush(stream);
	dup2(before, fileno(stream));
	close(before);

	rewind(file);
	std::string output;
	char buffer[4096];
	size_t count;
	do {
		count = fread(buffer, 1, sizeof(buffer), file);
		output.append(buffer, count);
	} while (count > 0);
	fclose(file);
	return output;
}

} // namespace


std::string
OutputOf(const std::function<void()>& function)
{
	return written_to(stdout, function);
}


std::string
ErrorsOf(const std::function<void()>& function)
{
	return written_to(stderr, function);
}

} // namespace test
