// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Alert.h>

#include <math.h>
#include <mutex>
#include <string>
#include <thread>

#include <Invoker.h>
#include <Message.h>
#include <Messenger.h>
#include <OS.h>

#include "platform/screen/AlertDisplay.h"

using hosted::AlertContents;
using hosted::AlertIcon;
using hosted::NativeAlert;


namespace hosted {

// What an alert shows. Shared with whoever waits for its answer, since the alert may be deleted
// before.
struct AlertBox {
	AlertContents contents;
	alert_type type = B_INFO_ALERT;

	std::mutex mutex;
	std::shared_ptr<NativeAlert> native;
	bool closed = false;

	std::shared_ptr<NativeAlert> Open();
	void Close();
};


std::shared_ptr<NativeAlert>
AlertBox::Open()
{
	std::shared_ptr<NativeAlert> opened = NativeAlert::Open(contents);
	std::lock_guard<std::mutex> lock(mutex);
	native = opened;
	if (closed)
		native->Close();
	return opened;
}


void
AlertBox::Close()
{
	std::lock_guard<std::mutex> lock(mutex);
	closed = true;
	if (native != nullptr)
		native->Close();
}

} // namespace hosted


namespace {

AlertIcon
icon_of(alert_type type)
{
	switch (type) {
		case B_INFO_ALERT:
			return AlertIcon::kInformation;
		case B_IDEA_ALERT:
			return AlertIcon::kIdea;
		case B_WARNING_ALERT:
			return AlertIcon::kWarning;
		case B_STOP_ALERT:
			return AlertIcon::kStop;
		default:
			return AlertIcon::kNone;
	}
}


// The alert is locked by nobody and never runs, so that quitting deletes it. It may be gone: the
// application quits all windows when it ends.
void
delete_alert(const BMessenger& alert)
{
	if (!alert.LockTarget())
		return;
	BLooper* looper;
	alert.Target(&looper);
	looper->Quit();
}


void
invoke(BInvoker* invoker, int32 which)
{
	BMessage* message = invoker->Message();
	if (message == nullptr)
		return;
	message->SetInt32("which", which);
	invoker->Invoke();
}

} // namespace


BAlert::BAlert(const char* title, const char* text, const char* button1, const char* button2,
	const char* button3, button_width width, alert_type type)
	:
	BAlert(title, text, button1, button2, button3, width, B_EVEN_SPACING, type)
{
}


BAlert::BAlert(const char* title, const char* text, const char* button1, const char* button2,
	const char* button3, button_width width, button_spacing spacing, alert_type type)
	:
	BWindow(BRect(0, 0, 299, 99), title, B_MODAL_WINDOW,
		B_NOT_CLOSABLE | B_NOT_RESIZABLE | B_ASYNCHRONOUS_CONTROLS),
	fBox(std::make_shared<hosted::AlertBox>())
{
	fBox->contents.title = title != nullptr ? title : "";
	SetText(text);
	SetType(type);
	SetButtonWidth(width);
	SetButtonSpacing(spacing);
	for (const char* label : {button1, button2, button3}) {
		if (label != nullptr && label[0] != '\0')
			AddButton(label);
	}
}


BAlert::~BAlert()
{
	fBox->Close();
}


void
BAlert::AddButton(const char* label, char key)
{
	fBox->contents.buttons.push_back({label != nullptr ? label : "", key});
}


int32
BAlert::CountButtons() const
{
	return int32(fBox->contents.buttons.size());
}


void
BAlert::SetShortcut(int32 buttonIndex, char key)
{
	if (buttonIndex >= 0 && buttonIndex < CountButtons())
		fBox->contents.buttons[buttonIndex].key = key;
}


char
BAlert::Shortcut(int32 buttonIndex) const
{
	if (buttonIndex < 0 || buttonIndex >= CountButtons())
		return 0;
	return fBox->contents.buttons[buttonIndex].key;
}


void
BAlert::SetText(const char* text)
{
	fBox->contents.text = text != nullptr ? text : "";
}


void
BAlert::SetType(alert_type type)
{
	fBox->type = type;
	fBox->contents.icon = icon_of(type);
}


alert_type
BAlert::Type() const
{
	return fBox->type;
}


void
BAlert::SetButtonWidth(button_width width)
{
	if (width == B_WIDTH_FROM_WIDEST)
		fBox->contents.width = AlertContents::kFromWidest;
	else if (width == B_WIDTH_FROM_LABEL)
		fBox->contents.width = AlertContents::kFromLabel;
	else
		fBox->contents.width = AlertContents::kAsUsual;
}


void
BAlert::SetButtonSpacing(button_spacing spacing)
{
	fBox->contents.offset = spacing == B_OFFSET_SPACING;
}


int32
BAlert::Go()
{
	_PrepareToGo();
	const BMessenger self(this);
	const std::shared_ptr<hosted::AlertBox> box = fBox;
	BWindow* caller = dynamic_cast<BWindow*>(BLooper::LooperForThread(find_thread(nullptr)));
	Unlock();

	const std::shared_ptr<NativeAlert> native = box->Open();
	if (caller == nullptr)
		native->Wait();
	while (caller != nullptr && !native->WaitFor(std::chrono::milliseconds(20)))
		caller->UpdateIfNeeded();
	delete_alert(self);
	return native->Choice();
}


status_t
BAlert::Go(BInvoker* invoker)
{
	_PrepareToGo();
	const BMessenger self(this);
	const std::shared_ptr<hosted::AlertBox> box = fBox;
	Unlock();

	std::thread thread([self, box, invoker]() {
		const std::shared_ptr<NativeAlert> native = box->Open();
		native->Wait();
		if (invoker != nullptr && native->Choice() >= 0)
			invoke(invoker, native->Choice());
		delete_alert(self);
	});
	thread.detach();
	return B_OK;
}


// Reads what other functions of the window have set meanwhile, and where the caller is.
void
BAlert::_PrepareToGo()
{
	AlertContents& contents = fBox->contents;
	contents.title = Title();
	contents.closesOnEscape = (Flags() & B_CLOSE_ON_ESCAPE) != 0;
	const BWindow* caller
		= dynamic_cast<const BWindow*>(BLooper::LooperForThread(find_thread(nullptr)));
	if (caller == nullptr || caller->IsHidden() || caller->IsMinimized())
		return;
	const BRect frame = caller->Frame();
	contents.overLeft = int(floorf(frame.left));
	contents.overTop = int(floorf(frame.top));
	contents.overRight = int(floorf(frame.right));
	contents.overBottom = int(floorf(frame.bottom));
}
