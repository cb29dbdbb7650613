// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "tests/window/MediaWindowFixture.h"

#include <algorithm>
#include <filesystem>

#include <stdlib.h>
#include <sys/stat.h>

#include <Autolock.h>
#include <Entry.h>
#include <Node.h>
#include <NodeInfo.h>
#include <Roster.h>
#include <TypeConstants.h>

#include "entryview/MEView.h"
#include "listview/MxView.h"
#include "settings/Locations.h"
#include "settings/Prefs.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Output.h"
#include "tests/support/Wait.h"
#include "window/MediaWindow.h"
#include "window/PathLists.h"


MediaWindowFixture::MediaWindowFixture()
	:
	fOldHome(getenv("HOME")),
	fOldConfiguration(getenv("XDG_CONFIG_HOME")),
	fOldPath(getenv("PATH")),
	fHome(fFolder.MakeFolder("home"))
{
	test::TheApplication();
	Prefs::DeleteMe();
	MEView::mPrefs = nullptr;
	setenv("HOME", fHome.c_str(), 1);
	setenv("XDG_CONFIG_HOME", fFolder.MakeFolder("home/.config").c_str(), 1);

	const std::string tool = fFolder.Write(std::string("tools/") + kFileManager,
		"#!/bin/sh\necho \"$*\" >> '" + (fFolder / "opened") + "'\n");
	chmod(tool.c_str(), 0755);
	setenv("PATH", ((fFolder / "tools") + ":" + fOldPath).c_str(), 1);
}


MediaWindowFixture::~MediaWindowFixture()
{
	CloseWindow();
	Prefs::DeleteMe();
	MEView::mPrefs = nullptr;
	setenv("HOME", fOldHome.c_str(), 1);
	setenv("XDG_CONFIG_HOME", fOldConfiguration.c_str(), 1);
	setenv("PATH", fOldPath.c_str(), 1);
}


MEDIA_Window&
MediaWindowFixture::Window()
{
	// A window that was never shown is its maker's; alerts wait until it is unlocked.
	if (fWindow == nullptr) {
		fWindow = new MEDIA_Window(BRect(260, 40, 660, 600));
		fWindow->Unlock();
	}
	return *fWindow;
}


void
MediaWindowFixture::CloseWindow()
{
	if (fWindow != nullptr && fWindow->Lock())
		fWindow->Quit();
	fWindow = nullptr;
	MxView::MedListChecked = false;
	MxView::SingleAlbum = false;
}


std::string
MediaWindowFixture::Send(BMessage message)
{
	MEDIA_Window& window = Window();
	const BAutolock lock(&window);
	return test::OutputOf([&] { window.MessageReceived(&message); });
}


std::string
MediaWindowFixture::Send(uint32 what)
{
	return Send(BMessage(what));
}


std::string
MediaWindowFixture::Play(int32 number)
{
	BMessage message('MWpl');
	message.AddInt32("ml_nr", number);
	return Send(message);
}


std::string
MediaWindowFixture::Do(int32 operation, const std::string& path, int32 number)
{
	MEDIA_Window& window = Window();
	const BAutolock lock(&window);
	return test::OutputOf(
		[&] { window.DoWithMediaFiles(operation, path.empty() ? nullptr : path.c_str(), number); });
}


std::string
MediaWindowFixture::MakeTitle(const std::string& name, const char* type)
{
	const std::string path = fFolder.Write(name, "");
	BNode node(path.c_str());
	EXPECT_EQ(BNodeInfo(&node).SetType(type), B_OK);
	return path;
}


void
MediaWindowFixture::SetTrack(const std::string& path, int32 number)
{
	BNode(path.c_str()).WriteAttr("Audio:Track", B_INT32_TYPE, 0, &number, sizeof(number));
}


std::string
MediaWindowFixture::WritePlaylist(const std::vector<std::string>& paths)
{
	std::string contents;
	for (const std::string& path : paths)
		contents += path + "\n";
	return fFolder.Write("home/_koru_media_list", contents);
}


std::string
MediaWindowFixture::PlaylistPath() const
{
	return fHome + "/_koru_media_list";
}


BMessage
MediaWindowFixture::Drop(const std::vector<std::string>& paths)
{
	BMessage message(B_SIMPLE_DATA);
	for (const std::string& path : paths) {
		entry_ref ref;
		EXPECT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
		message.AddRef("refs", &ref);
	}
	return message;
}


std::vector<std::string>
MediaWindowFixture::PathsOf(const BList* list)
{
	std::vector<std::string> paths;
	for (int32 index = 0; list != nullptr && index < list->CountItems(); index++)
		paths.push_back(PathAt(list, index)->Path());
	return paths;
}


bool
MediaWindowFixture::IsPlayerRunning()
{
	for (const char* signature : {"application/x-vnd.marcone-soundplay",
			 "application/x-vnd.RMC.Zenebona", "application/x-vnd.yT-MediaPlayer",
			 "application/x-vnd.Be.MediaPlayer", "application/x-vnd.YT-MediaPlayer",
			 "application/x-vnd.yT-AudioTagger", "application/x-vnd.Haiku-MediaPlayer",
			 "application/x-vnd.videolan-vlc", "application/x-vnd.Me.stampTV"}) {
		if (be_roster->IsRunning(signature))
			return true;
	}
	return false;
}


std::string
MediaWindowFixture::Opened(int count)
{
	std::string opened;
	test::WaitFor([&] {
		opened = test::ReadFile(fFolder / "opened");
		return std::count(opened.begin(), opened.end(), '\n') >= count;
	});
	return opened;
}
