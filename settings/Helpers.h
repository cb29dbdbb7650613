// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef HELPERS_H
#define HELPERS_H

#include <Entry.h>
#include <GraphicsDefs.h>
#include <Messenger.h>
#include <Node.h>
#include <String.h>

class BBitmap;
class BMessage;
class BView;


// Pictures and media files.

// Decodes a picture file; null if it cannot be read or is no picture. The caller owns the bitmap.
BBitmap* GetImage(const char* path);

// The length in whole seconds, of sound or picture, whichever is longer; 0 if it is unknown.
void GetMediaDuration(const entry_ref* ref, long* seconds);

// Whether the file's type contains that part.
bool IsNodeTypeOk(const char* path, const char* part);


// Colors and views.

/*!	With four ints, and only then, this one is chosen, and not the platform's of the same name. Each
	number is cut to a byte.
*/
rgb_color make_color(int red, int green, int blue, int alpha);

// The color that a drop carries, itself or in the file it names, or the given one.
rgb_color HasMsgColor(BMessage* message, rgb_color deflt);

// Gives the known kinds of controls among the direct children their parent's color.
void ColorToChilds(BView* parent);

// Tool tips are not shown.
void AddToolTip(BView* view, const char* text);


// Other applications.

/*!	Remembers the application of a launch, quit or activation notice, unless it belongs to the
	system or is this one, and returns a messenger to the application remembered. With a null
	message nothing changes. signature may be null.
*/
BMessenger GetLastRosterMessenger(BMessage* message, BString* signature);

// Shows a text to the user, without waiting for him, or prints it.
void AnyAlert(const char* text, bool toConsole);

// Shows a text and returns when the user has read it. For what must be told at the end of the
// program, which would take any other alert with it.
void AnyAlertAndWait(const char* text);

// Two hexadecimal digits, upper case, after an optional "$"; any other character counts as 0.
int hex2int(const char* text);

/*!	The text of a four-character code. It stands in a buffer that the next call overwrites. Codes of
	fewer than eight hexadecimal digits give shifted text.
*/
char* long2asc(unsigned long code);

// Copies the attribute "IR!OWN_FILE" to "KORU_TYPE", if the file has it.
void ChangeKoruFiletype(BNode node);

// Prints the version that a program carries, and writes the restart script.
void GetAnyAppVersion(const char* path);

// Writes the script that restarts the input server and the companion program; with run, the file
// manager is asked to open it.
void MakeRestartScript(bool run);

#endif // HELPERS_H
