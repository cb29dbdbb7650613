// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_WINDOW_FIXTURE_H
#define MEDIA_WINDOW_FIXTURE_H

#include <functional>
#include <string>
#include <vector>

#include <Message.h>
#include <gtest/gtest.h>

#include "tests/support/TempFolder.h"

class BList;
class MEDIA_Window;


/*!	A media window that is never shown, with a home folder of its own and a file manager that only
	notes what it is asked to open.
*/
class MediaWindowFixture : public testing::Test {
protected:
	MediaWindowFixture();
	~MediaWindowFixture() override;

	// The window is made with the first call; its playlist may be written before.
	MEDIA_Window& Window();
	void CloseWindow();

	// Hands the message to the window as its own thread would, and returns what it prints.
	std::string Send(BMessage message);
	std::string Send(uint32 what);
	std::string Play(int32 number);
	// Runs an MF_ operation and returns what it prints.
	std::string Do(int32 operation, const std::string& path = "", int32 number = -1);

	// Makes a file of that type; "audio/mpeg" unless another is named. Returns its path.
	std::string MakeTitle(const std::string& name, const char* type = "audio/mpeg");
	void SetTrack(const std::string& path, int32 number);
	std::string WritePlaylist(const std::vector<std::string>& paths);
	std::string PlaylistPath() const;
	BMessage Drop(const std::vector<std::string>& paths);

	// The paths of one of the window's lists.
	std::vector<std::string> PathsOf(const BList* list);

	// Whether a player of whoever runs the tests runs, which must not be closed.
	static bool IsPlayerRunning();

	// What the file manager was asked to open, one path a line, when there are that many.
	std::string Opened(int count);

	test::TempFolder fFolder;

private:
	std::string fOldHome;
	std::string fOldConfiguration;
	std::string fOldPath;
	std::string fHome;
	MEDIA_Window* fWindow = nullptr;
};

using Paths = std::vector<std::string>;

#endif // MEDIA_WINDOW_FIXTURE_H
