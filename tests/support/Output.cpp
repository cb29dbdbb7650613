// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Output.h"

#include <stdio.h>
#include <unistd.h>


namespace test {

std::string
OutputOf(const std::function<void()>& function)
{
	fflush(stdout);
	FILE* file = tmpfile();
	const int before = dup(STDOUT_FILENO);
	dup2(fileno(file), STDOUT_FILENO);
	function();
	fflush(stdout);
	dup2(before, STDOUT_FILENO);
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

} // namespace test
