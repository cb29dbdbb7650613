// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// The application's life. What it does with its windows is in ApplicationWindows.cpp, its messages
// are in ApplicationMessages.cpp.
#include <Application.h>

#include <fstream>
#include <iterator>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <string>
#include <strings.h>
#include <unistd.h>

#include <Clipboard.h>
#include <Entry.h>
#include <Errors.h>
#include <Message.h>
#include <MessageRunner.h>
#include <Roster.h>
#include <StorageDefs.h>

#include "platform/app/Debugger.h"
#include "platform/app/Delivery.h"
#include "platform/app/LooperCore.h"
#include "platform/app/QueueState.h"
#include "platform/app/QuitSignals.h"
#include "platform/app/Registry.h"
#include "platform/app/Threads.h"
#include "platform/app/Transport.h"
#include "platform/desktop/ProgramFlags.h"
#include "platform/screen/DisplayThread.h"

using hosted::LooperCore;

BApplication* be_app = nullptr;
BMessenger be_app_messenger;


namespace {

std::string
executable_path()
{
	char path[4096];
	const ssize_t length = readlink("/proc/self/exe", path, sizeof(path));
	return length > 0 ? std::string(path, static_cast<size_t>(length)) : std::string();
}


std::string
executable_name()
{
	const std::string path = executable_path();
	return path.substr(path.rfind('/') + 1);
}


status_t
check_signature(const char* signature)
{
	static const char kPrefix[] = "application/";
	const size_t prefixLength = sizeof(kPrefix) - 1;
	const size_t length = signature != nullptr ? strlen(signature) : 0;
	if (length > prefixLength && length < B_MIME_TYPE_LENGTH
		&& strncasecmp(signature, kPrefix, prefixLength) == 0
		&& strpbrk(signature + prefixLength, "/<>@,;:\"()[]?=\\ ") == nullptr)
		return B_OK;
	printf("bad signature (%s), must begin with \"application/\" and can't conflict with existing "
		   "registered mime types inside the \"application\" media type.\n",
		signature != nullptr ? signature : "(null)");
	return B_BAD_VALUE;
}


status_t
open_display()
{
	if (hosted::DisplayThread::Start())
		return B_OK;
	fprintf(stderr, "No display could be opened: set DISPLAY or WAYLAND_DISPLAY.\n");
	return B_ERROR;
}


// The words of the command line as the program was started with.
void
add_arguments(BMessage& message)
{
	std::ifstream file("/proc/self/cmdline", std::ios::binary);
	const std::string words(std::istreambuf_iterator<char>(file), {});
	int32 count = 0;
	for (size_t start = 0; start < words.size(); count++) {
		message.AddString("argv", words.c_str() + start);
		start += strlen(words.c_str() + start) + 1;
	}
	message.AddInt32("argc", count);
}

} // namespace


BApplication::BApplication(const char* signature)
	:
	BLooper(B_DISPLAY_PRIORITY, hosted::kApplicationPort, executable_name().c_str()),
	fInitStatus(_Init(signature))
{
	if (fInitStatus != B_OK)
		exit(0);
}


BApplication::BApplication(const char* signature, status_t* error)
	:
	BLooper(B_DISPLAY_PRIORITY, hosted::kApplicationPort, executable_name().c_str()),
	fInitStatus(_Init(signature))
{
	if (error != nullptr)
		*error = fInitStatus;
	else if (fInitStatus != B_OK)
		exit(0);
}


status_t
BApplication::_Init(const char* signature)
{
	if (be_app != nullptr)
		hosted::Debugger("2 BApplication objects were created. Only one is allowed.");

	status_t status = check_signature(signature);
	if (status != B_OK)
		return status;
	fSignature = strdup(signature);
	fCore->thread = hosted::CurrentThread();

	status = open_display();
	if (status == B_OK)
		status = hosted::RegisterApplication(signature);
	if (status != B_OK) {
		hosted::DisplayThread::Stop();
		return status;
	}
	fRegistered = true;

	be_app = this;
	be_app_messenger = hosted::MessengerAccess::Make(hosted::ApplicationAddress());
	be_clipboard = new BClipboard("system");
	_QueueStartMessages();
	return B_OK;
}


void
BApplication::_QueueStartMessages()
{
	BMessage arguments(B_ARGV_RECEIVED);
	add_arguments(arguments);
	if (arguments.GetInt32("argc", 0) > 1) {
		char* folder = getcwd(nullptr, 0);
		arguments.AddString("cwd", folder != nullptr ? folder : "");
		free(folder);
		PostMessage(&arguments, this);
	}
	PostMessage(B_READY_TO_RUN, this);
}


BApplication::~BApplication()
{
	const std::shared_ptr<LooperCore> core = fCore;
	if (core->running)
		hosted::Debugger("You can't call delete on a BApplication object while it is running.");
	Lock();
	delete fPulseRunner;

	// Nothing is dispatched any more. Who waits for an answer or for the lock must not wait in
	// vain, least of all the windows that are closed now.
	core->BeginDying();
	for (BMessage* message : hosted::QueueAccess::Close(core->queue))
		delete message;
	_QuitAllWindows(true);
	for (const std::shared_ptr<LooperCore>& window : hosted::Registry::Get().WindowThreads())
		window->WaitForEnd();
	hosted::JoinEndedThreads();

	if (fRegistered) {
		delete be_clipboard;
		be_clipboard = nullptr;
		hosted::UnregisterApplication();
		hosted::DisplayThread::Stop();
		be_app = nullptr;
	}
	free(fSignature);
}


status_t
BApplication::InitCheck() const
{
	return fInitStatus;
}


thread_id
BApplication::Run()
{
	if (fInitStatus != B_OK)
		return fInitStatus;
	// Haiku asks programs to quit before the session ends; here the system sends them a signal.
	const hosted::QuitSignals signals([]() { be_app_messenger.SendMessage(B_QUIT_REQUESTED); });
	Loop();
	return Thread();
}


void
BApplication::Quit()
{
	if (!IsLocked()) {
		printf("ERROR - you must Lock the application object before calling Quit(), team=%d, "
			   "looper=%s\n",
			Team(), Name());
	}
	const std::shared_ptr<LooperCore> core = hosted::Registry::Get().LooperFor(this);
	if (core == nullptr)
		return;
	if (!core->running)
		delete this;
	else if (_IsOwnThread())
		fTerminating = true;
	else
		PostMessage(_QUIT_);
}


bool
BApplication::IsLaunching() const
{
	return !fReadyToRunCalled;
}


const char*
BApplication::Signature() const
{
	return fSignature;
}


status_t
BApplication::GetAppInfo(app_info* info) const
{
	if (be_app == nullptr)
		return B_NO_INIT;
	if (info == nullptr)
		return B_BAD_VALUE;
	const std::string path = executable_path();
	info->thread = hosted::CurrentTeam();
	info->team = hosted::CurrentTeam();
	info->port = hosted::kApplicationPort;
	info->flags = hosted::ProgramFlags(path);
	snprintf(info->signature, sizeof(info->signature), "%s", fSignature);
	return get_ref_for_path(path.c_str(), &info->ref);
}


void
BApplication::SetPulseRate(bigtime_t rate)
{
	// The platform's clock ticks in tenths of a second.
	rate = rate > 0 ? rate - rate % 100000 : 0;
	if (!Lock())
		return;
	delete fPulseRunner;
	fPulseRunner = nullptr;
	fPulseRate = rate;
	if (rate > 0)
		fPulseRunner = new BMessageRunner(BMessenger(this), BMessage(B_PULSE), rate);
	Unlock();
}
