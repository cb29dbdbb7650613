// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef EXTERNAL_PLAYER_H
#define EXTERNAL_PLAYER_H


/*!	Hands a file to the preferred player, if it is audio and there is one, else to the file manager.

	Blocks for 60 ms, and for 400 ms more where a running player was to end first; it does not wait
	for what is started. alert shows an alert if the file cannot be read.
*/
void IOpenThisFile(const char* path, bool alert);

// Asks the first running player that is known to quit, and does not wait until it has.
void ICloseMediaApp();

/*!	Runs a shell command in which the path stands between single quotes. A path that would end its
	quotes is not run. Returns what system() returned, or -1.
*/
int RunQuoted(const char* command, const char* path);

#endif // EXTERNAL_PLAYER_H
