// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Sends the running VinyloH a command of four characters, with a key number of the remote control
// if one is given: remote-control MWse 69
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include <Application.h>
#include <Message.h>
#include <Messenger.h>


int
main(int argc, char** argv)
{
	if (argc < 2 || strlen(argv[1]) != 4) {
		fprintf(stderr, "usage: remote-control CODE [KEY]\n");
		return 2;
	}
	BApplication application("application/x-vnd.VinyloH-remote-control");
	uint32 code = 0;
	for (int index = 0; index < 4; index++)
		code = code << 8 | static_cast<uint8>(argv[1][index]);
	BMessage command(code);
	if (argc > 2)
		command.AddInt32("korukey", atoi(argv[2]));
	const status_t status = BMessenger("application/x-vnd.kv-VinyloH").SendMessage(&command);
	if (status != B_OK)
		fprintf(stderr, "%s\n", strerror(status));
	return status == B_OK ? 0 : 1;
}
