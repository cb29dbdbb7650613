// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef REMOTE_COMMANDS_H
#define REMOTE_COMMANDS_H

#include <Messenger.h>
#include <Point.h>
#include <String.h>
#include <SupportDefs.h>

class BButton;
class BList;
class BMessage;
class BStringView;
class BTextView;
class BView;
class BWindow;
struct app_info;


/*!	Steers other running applications: players, the file manager, whatever is in front.

	The calls wait for other applications: up to four seconds for each question and ten while a
	player starts, so that none may be made in a window's thread. They are for one thread at a time.
	What fails is printed; key numbers are those of a remote control's keys, RemoteKeys.h has them.
*/


// Players.

// The commands of DoCommand().
enum : uint32 {
	kCommandPlay = 'play',
	kCommandStop = 'stop',
	kCommandNext = 'next',
	kCommandPrevious = 'prev',
	kCommandLouder = 'vol+',
	kCommandSofter = 'vol-',
	kCommandMute = 'mute',
};

static_assert(kCommandPlay == 0x706C6179 && kCommandMute == 0x6D757465,
	"codes are read high byte first");

// The first audio player's object for that track list; an invalid messenger if there is none, or if
// the player does not answer in time.
BMessenger RemoteTrack(long index);

// Does a command with every track list of the first audio player. "play" starts it before if need
// be. Unknown commands do nothing.
void DoCommand(long command);

// Pass a key on to the running player; a few keys start one if none runs.
void IAudioApps(long key);
void IVideoApps(long key);
// Starts the text editor, the terminal or the office program.
void IAnyApps(long key);


// The sound system.

// Toggles the mute of the master volume, or only looks if it is not to be changed. The button,
// which may be null, is shown while the sound is off.
void IMuteSound(bool toggle, BButton* button);


// The application in front: its keys, its windows, the pointer.

// Moves a window by a step. It is locked here.
void IMoveWindow(long key, BWindow* window);
/*!	Moves the pointer by a step from that point, which is in the view's coordinates if there is a
	view, or clicks there. name shows which application is in front; window is the caller's own,
	and what lies in its frame is not clicked. All three may be null.
*/
void IMoveMouse(BPoint where, long key, BView* view, BStringView* name, BWindow* window);
void IAltPlusMinus(long key);
void IPageUpDown(long key);
void IKeypress2App(long key);
// Opens the Deskbar's menu.
void IJumpMenu();
void IJumpWorkSpace(long key);
// Passes the message on to the last active application, and brings the media player to the front.
void CheckIt(BMessage* message);
// Asks the active application to close its front window.
void ICloseThisFAW();
// With false, windows do not follow the pointer until the next call with true. The operations that
// send keys use it while they send.
void FollowMousFocus(bool follow);


// Applications and the file manager's windows.

// A window of another application.
struct RemoteWindow {
	BString title;
	BMessenger messenger;
};

/*!	Switches to the application behind the current one. All three may be null: name shows the new
	one, current is the one to begin with and becomes the new one, list shows all of them.
*/
void IStrgTab(BStringView* name, app_info* current, BTextView* list);
// Prints all applications and the file manager's windows, and brings the first of these to the
// front if asked to.
void AskTrackerWins(bool activate);
void ActivAppB5(const char* signature);
void WinMessengers();
// Adds a new RemoteWindow for each window of the file manager, and prints them if asked to. The
// caller deletes them.
void LookForTrackerWins(bool print, BList* windows);
void AskTracker4Info();


// Files.

/*!	Opens an address with the browser. Only "http:" and "file:/" are taken; line ends are removed
	from the text itself. A browser that runs already comes to the front if asked to.
*/
void IOpenThisUrl(char* url, bool activate);
// Prints the audio files of the boot volume.
void ISearchTypes();
// Saves a query as a file, with its condition and the text that the user began with. A path without
// folder means the user's folder of queries.
void CreateQuery(const char* path, const char* condition, const char* initial);

#endif // REMOTE_COMMANDS_H
