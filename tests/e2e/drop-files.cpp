// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.

// Drops files on a window as a file manager does, with a whole drag-and-drop exchange of the X
// Window System (XDND, version 5): drop-files WINDOW X Y URI...
// or drops something else, in hexadecimal digits: drop-files WINDOW X Y --as TYPE DIGITS
// X and Y are screen coordinates. Ends with 0 when the target has taken the data and said so, with
// 3 when it refuses them.

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <string.h>
#include <time.h>


namespace {

constexpr int kTimeoutMillis = 10000;
constexpr long kVersion = 5;

struct Drag {
	Display* display = nullptr;
	Window source = 0;
	Window target = 0;
	std::string type = "text/uri-list";
	std::string data;

	Atom Named(const char* name) const { return XInternAtom(display, name, False); }
};


long
now_millis()
{
	timespec now;
	clock_gettime(CLOCK_MONOTONIC, &now);
	return now.tv_sec * 1000 + now.tv_nsec / 1000000;
}


void
send(const Drag& drag, const char* type, long a, long b, long c, long d)
{
	XEvent event;
	memset(&event, 0, sizeof(event));
	event.xclient.type = ClientMessage;
	event.xclient.display = drag.display;
	event.xclient.window = drag.target;
	event.xclient.message_type = drag.Named(type);
	event.xclient.format = 32;
	event.xclient.data.l[0] = static_cast<long>(drag.source);
	event.xclient.data.l[1] = a;
	event.xclient.data.l[2] = b;
	event.xclient.data.l[3] = c;
	event.xclient.data.l[4] = d;
	XSendEvent(drag.display, drag.target, False, NoEventMask, &event);
	XFlush(drag.display);
}


void
serve(const Drag& drag, const XSelectionRequestEvent& request)
{
	XEvent answer;
	memset(&answer, 0, sizeof(answer));
	answer.xselection.type = SelectionNotify;
	answer.xselection.display = drag.display;
	answer.xselection.requestor = request.requestor;
	answer.xselection.selection = request.selection;
	answer.xselection.target = request.target;
	answer.xselection.time = request.time;
	if (request.target == drag.Named(drag.type.c_str())) {
		XChangeProperty(drag.display, request.requestor, request.property, request.target, 8,
			PropModeReplace, reinterpret_cast<const unsigned char*>(drag.data.data()),
			static_cast<int>(drag.data.size()));
		answer.xselection.property = request.property;
	}
	XSendEvent(drag.display, request.requestor, False, NoEventMask, &answer);
	XFlush(drag.display);
}


// Serves the data until a message of that type comes from the target; false after the time limit.
bool
wait_for(const Drag& drag, const char* type, XClientMessageEvent* message)
{
	const Atom wanted = drag.Named(type);
	const long end = now_millis() + kTimeoutMillis;
	while (now_millis() < end) {
		if (XPending(drag.display) == 0) {
			pollfd file = {ConnectionNumber(drag.display), POLLIN, 0};
			poll(&file, 1, 50);
			continue;
		}
		XEvent event;
		XNextEvent(drag.display, &event);
		if (event.type == SelectionRequest) {
			serve(drag, event.xselectionrequest);
		} else if (event.type == ClientMessage && event.xclient.message_type == wanted) {
			*message = event.xclient;
			return true;
		}
	}
	fprintf(stderr, "drop-files: no %s from the target\n", type);
	return false;
}


int
drop(Drag& drag, long x, long y)
{
	const Atom list = drag.Named(drag.type.c_str());
	const Atom copy = drag.Named("XdndActionCopy");
	XSetSelectionOwner(drag.display, drag.Named("XdndSelection"), drag.source, CurrentTime);
	send(drag, "XdndEnter", kVersion << 24, static_cast<long>(list), 0, 0);
	send(drag, "XdndPosition", 0, (x << 16) | y, CurrentTime, static_cast<long>(copy));

	XClientMessageEvent answer;
	if (!wait_for(drag, "XdndStatus", &answer))
		return 1;
	if ((answer.data.l[1] & 1) == 0) {
		send(drag, "XdndLeave", 0, 0, 0, 0);
		fprintf(stderr, "drop-files: the target refuses\n");
		return 3;
	}
	send(drag, "XdndDrop", 0, CurrentTime, 0, 0);
	if (!wait_for(drag, "XdndFinished", &answer))
		return 1;
	return 0;
}


std::string
bytes_of(const std::string& digits)
{
	std::string bytes;
	for (size_t at = 0; at + 1 < digits.size(); at += 2)
		bytes += static_cast<char>(strtol(digits.substr(at, 2).c_str(), nullptr, 16));
	return bytes;
}

} // namespace


int
main(int argc, char** argv)
{
	if (argc < 5) {
		fprintf(stderr, "usage: drop-files WINDOW X Y URI...\n");
		return 2;
	}
	Drag drag;
	drag.display = XOpenDisplay(nullptr);
	if (drag.display == nullptr) {
		fprintf(stderr, "drop-files: no display\n");
		return 2;
	}
	drag.target = strtoul(argv[1], nullptr, 0);
	if (strcmp(argv[4], "--as") == 0 && argc == 7) {
		drag.type = argv[5];
		drag.data = bytes_of(argv[6]);
	} else {
		for (int index = 4; index < argc; index++)
			drag.data += std::string(argv[index]) + "\r\n";
	}
	drag.source = XCreateSimpleWindow(drag.display, DefaultRootWindow(drag.display), -10, -10, 1, 1,
		0, 0, 0);
	const int result = drop(drag, strtol(argv[2], nullptr, 0), strtol(argv[3], nullptr, 0));
	XCloseDisplay(drag.display);
	return result;
}
