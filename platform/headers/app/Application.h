// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef APPLICATION_H
#define APPLICATION_H

#include <stddef.h>

#include <Looper.h>
#include <Messenger.h>
#include <OS.h>
#include <SupportDefs.h>

class BMessageRunner;
class BWindow;
struct app_info;


class BApplication : public BLooper {
public:
	BApplication(const char* signature);
	BApplication(const char* signature, status_t* error);
	~BApplication() override;

	status_t InitCheck() const;

	thread_id Run() override;
	void Quit() override;
	bool QuitRequested() override;
	virtual void Pulse();
	virtual void ReadyToRun();
	void MessageReceived(BMessage* message) override;
	virtual void ArgvReceived(int32 argc, char** argv);
	virtual void AppActivated(bool active);
	virtual void RefsReceived(BMessage* message);
	virtual void AboutRequested();

	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override;

	int32 CountWindows() const;
	BWindow* WindowAt(int32 index) const;
	int32 CountLoopers() const;
	BLooper* LooperAt(int32 index) const;

	bool IsLaunching() const;
	const char* Signature() const;
	status_t GetAppInfo(app_info* info) const;

	void SetPulseRate(bigtime_t rate);

	void DispatchMessage(BMessage* message, BHandler* handler) override;
	status_t GetSupportedSuites(BMessage* data) override;

private:
	status_t _Init(const char* signature);
	void _QueueStartMessages();
	void _ArgvReceived(BMessage* message);
	bool _QuitAllWindows(bool force);

private:
	char* fSignature = NULL;
	bool fReadyToRunCalled = false;
	bool fRegistered = false;
	bigtime_t fPulseRate = 0;
	BMessageRunner* fPulseRunner = NULL;
	// Last, because it is made of what the others are for.
	status_t fInitStatus;
};

extern BApplication* be_app;
extern BMessenger be_app_messenger;

#endif // APPLICATION_H
