// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef FUZZ_FOLDER_H
#define FUZZ_FOLDER_H

#include <string>
#include <vector>

#include <stdint.h>


/*!	A home folder that lasts as long as the process, for what is tried with arbitrary bytes.

	The first call gives the process the folder, the off-screen display and no standard output; the
	fuzzer itself reports on standard error.
*/
const std::string& FuzzFolder();

/*!	Writes the seeds to a folder and adds that to the fuzzer's arguments, unless they name folders
	or files already.
*/
void AddSeeds(int* argc, char*** argv, const std::vector<std::string>& seeds);

void WriteBytes(const std::string& path, const uint8_t* data, size_t size);

// Ends the process, which the fuzzer counts as a find.
void Require(bool condition, const char* what);

#endif // FUZZ_FOLDER_H
