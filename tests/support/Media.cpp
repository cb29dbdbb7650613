// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/support/Media.h"

#include <stdio.h>
#include <sys/wait.h>

#include <gtest/gtest.h>


namespace test {

std::string
OutputOfCommand(const std::string& command)
{
	std::string output;
	FILE* const pipe = popen(command.c_str(), "r");
	if (pipe == nullptr)
		return output;
	char buffer[4096];
	size_t count;
	do {
		count = fread(buffer, 1, sizeof(buffer), pipe);
		output.append(buffer, count);
	} while (count > 0);
	const int status = pclose(pipe);
	EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << command << "\n" << output;
	while (!output.empty() && output.back() == '\n')
		output.pop_back();
	return output;
}


std::string
MakeMedia(const std::string& path, const std::string& arguments)
{
	OutputOfCommand("ffmpeg -nostdin -v error -y " + arguments + " '" + path + "' 2>&1");
	return path;
}


std::string
Tone(double seconds)
{
	return " -f lavfi -i sine=frequency=440:sample_rate=44100:duration=" + std::to_string(seconds);
}


std::string
Pattern(double seconds)
{
	return " -f lavfi -i testsrc=size=64x48:rate=10:duration=" + std::to_string(seconds);
}

} // namespace test
