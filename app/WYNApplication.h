// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef WYN_APPLICATION_H
#define WYN_APPLICATION_H

#include <Application.h>

class MEDIA_Window;


/*!	The application object: makes the media window and relays commands to it.

	The window is reached only by message; the pointer is read and written in the application's
	thread alone.
*/
class WYNApplication : public BApplication {
public:
	WYNApplication();

	void MessageReceived(BMessage* message) override;

	// Null once the window has said that it is gone. It deletes itself.
	MEDIA_Window* fWindow = nullptr;

private:
	void _Forward(BMessage* message);
	void _ForgetWindow();
	void _HandleUnknown(BMessage* message);
};

#endif // WYN_APPLICATION_H
