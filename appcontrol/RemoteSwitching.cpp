// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// From one application or window to another.
#include "appcontrol/RemoteCommands.h"

#include <array>

#include <stdio.h>
#include <string.h>

#include <AppDefs.h>
#include <List.h>
#include <Message.h>
#include <Roster.h>
#include <StringView.h>
#include <TextView.h>

#include "appcontrol/RemoteApplications.h"
#include "appcontrol/RemoteKeys.h"
#include "appcontrol/RemotePlayers.h"
#include "appcontrol/RemoteViews.h"


namespace {

// What nobody switches to.
constexpr std::array<const char*, 6> kHidden
	= {"_server", "_daemon", "Deskbar", "registrar", "wstitle", "device_watcher"};

// Applications that are not asked to close a window, besides this one.
constexpr std::array<const char*, 4> kKeptApplications = {"application/x-vnd.Be-TSKB",
	"application/x-vnd.Be-SHEL", "application/x-vnd.Haiku-Terminal", "application/x-vnd.Be-WORK"};
constexpr std::array<const char*, 2> kKeptWindows = {"Tracker Status", "/boot/home/Desktop"};

// An application, or one of the file manager's windows.
struct Choice {
	BString name;
	team_id team = -1;
	RemoteWindow window;
	bool isWindow = false;
};

} // namespace


static bool
is_hidden(const app_info& application)
{
	for (const char* part : kHidden) {
		if (strstr(application.ref.name, part) != nullptr
			|| strstr(application.signature, part) != nullptr)
			return true;
	}
	return false;
}


static std::vector<Choice>
choices()
{
	std::vector<Choice> all;
	for (const app_info& application : RunningApplications()) {
		if (application.ref.name == nullptr || is_hidden(application))
			continue;
		Choice choice;
		choice.name = application.ref.name;
		choice.team = application.team;
		all.push_back(choice);
	}

	BList windows;
	LookForTrackerWins(false, &windows);
	for (int32 index = 0; index < windows.CountItems(); index++) {
		RemoteWindow* const window = static_cast<RemoteWindow*>(windows.ItemAt(index));
		Choice choice;
		choice.name = window->title;
		choice.team = window->messenger.Team();
		choice.window = *window;
		choice.isWindow = true;
		all.push_back(choice);
		delete window;
	}
	return all;
}


// The choice that is the current one, by its name if its application has several; -1 if none is.
static int32
find_current(const std::vector<Choice>& all, const app_info& current)
{
	int32 found = -1;
	for (size_t index = 0; index < all.size(); index++) {
		if (all[index].team != current.team)
			continue;
		if (current.ref.name != nullptr && all[index].name == current.ref.name)
			return static_cast<int32>(index);
		if (found < 0)
			found = static_cast<int32>(index);
	}
	return found;
}


static void
activate(const Choice& choice)
{
	if (choice.isWindow)
		ActivateWindow(choice.window);
	else
		be_roster->ActivateApp(choice.team);
}


void
IStrgTab(BStringView* name, app_info* current, BTextView* list)
{
	static app_info sLast;
	if (current == nullptr)
		current = &sLast;
	if (current->team < 0)
		be_roster->GetActiveAppInfo(current);

	const std::vector<Choice> all = choices();
	BString lines;
	for (const Choice& choice : all)
		lines << choice.name << "\n";
	WithView(list, [&lines](BTextView& view) { view.SetText(lines.String()); });
	if (all.empty())
		return;

	const size_t index = static_cast<size_t>(find_current(all, *current) + 1) % all.size();
	const Choice& next = all[index];
	printf("Will activate %2ld %s\n", static_cast<long>(index), next.name.String());
	activate(next);
	WithView(name, [&next](BStringView& view) { view.SetText(next.name.String()); });

	// The name tells the file manager's windows from each other the next time.
	app_info chosen;
	if (be_roster->GetRunningAppInfo(next.team, &chosen) == B_OK)
		*current = chosen;
	current->team = next.team;
	current->ref.set_name(next.name.String());
}


void
AskTrackerWins(bool activateOne)
{
	for (const app_info& application : RunningApplications())
		printf("Team: %ld %s\n", static_cast<long>(application.team), application.signature);
	BList windows;
	LookForTrackerWins(true, &windows);
	for (int32 index = 0; index < windows.CountItems(); index++) {
		RemoteWindow* const window = static_cast<RemoteWindow*>(windows.ItemAt(index));
		if (activateOne && index == 0)
			ActivateWindow(*window);
		delete window;
	}
}


void
ActivAppB5(const char* signature)
{
	const BMessenger messenger(signature);
	if (!messenger.IsValid()) {
		printf(" B5M: oops - bad messenger '%s'\n", signature != nullptr ? signature : "");
		return;
	}
	be_roster->ActivateApp(messenger.Team());
}


void
WinMessengers()
{
	const BMessenger fileManager = FileManager();
	if (!fileManager.IsValid()) {
		printf(" no file manager\n");
		return;
	}
	for (const RemoteWindow& window : WindowsOf(fileManager)) {
		printf(" messenger [Team: %ld] is %s\n", static_cast<long>(window.messenger.Team()),
			window.messenger.IsValid() ? "valid" : "bad");
	}
}


void
LookForTrackerWins(bool print, BList* windows)
{
	if (windows == nullptr)
		return;
	for (const RemoteWindow& window : WindowsOf(FileManager())) {
		if (print)
			printf("Window: %s\n", window.title.String());
		windows->AddItem(new RemoteWindow(window));
	}
}


void
AskTracker4Info()
{
	const BMessenger fileManager = FileManager();
	if (!fileManager.IsValid()) {
		printf(" no file manager\n");
		return;
	}
	for (const RemoteWindow& window : WindowsOf(fileManager)) {
		printf("Messenger: %s [Team: %ld]\n", window.title.String(),
			static_cast<long>(window.messenger.Team()));
	}
}


static bool
may_close(const char* text, const char* const* kept, size_t count)
{
	for (size_t index = 0; index < count; index++) {
		if (strcmp(text, kept[index]) == 0) {
			printf(" .. don't quit '%s'\n", text);
			return false;
		}
	}
	return true;
}


void
ICloseThisFAW()
{
	app_info active;
	if (be_roster->GetActiveAppInfo(&active) != B_OK) {
		printf(" oops - no active application\n");
		return;
	}
	if (IsSelf(active.signature, active.team)) {
		printf(" .. don't quit myself\n");
		return;
	}
	if (!may_close(active.signature, kKeptApplications.data(), kKeptApplications.size()))
		return;

	const std::vector<RemoteWindow> windows = WindowsOf(BMessenger(active.signature, active.team));
	const RemoteWindow* const front = FindActiveWindow(windows);
	if (front == nullptr) {
		printf(" oops - no front window\n");
		return;
	}
	if (may_close(front->title.String(), kKeptWindows.data(), kKeptWindows.size())) {
		BMessage request(B_QUIT_REQUESTED);
		front->messenger.SendMessage(&request, static_cast<BHandler*>(nullptr), kDeliveryLimit);
	}
}
