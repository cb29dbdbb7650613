// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_H
#define MEDIA_H

#include <string>


namespace test {

// Makes a file with ffmpeg, whose arguments before the output's name are given as for a shell.
// Records a failure of the running test if that is not possible. Returns the path.
std::string MakeMedia(const std::string& path, const std::string& arguments);

// Arguments for some seconds of tone, and of a small moving picture.
std::string Tone(double seconds);
std::string Pattern(double seconds);

// What a command prints, without its last line end.
std::string OutputOfCommand(const std::string& command);

} // namespace test

#endif // MEDIA_H
