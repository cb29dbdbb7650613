// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What other programs may ask of a window and change in it.
#include <Window.h>

#include <math.h>

#include <AppDefs.h>
#include <Message.h>
#include <PropertyInfo.h>
#include <String.h>

#include "platform/app/Scripting.h"


namespace {

property_info sWindowProperties[] = {
	{"Active", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"Frame", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_RECT_TYPE}},
	{"Hidden", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"Title", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_STRING_TYPE}},
	{nullptr, {}, {}, nullptr, 0, {}}};

enum { kActive, kFrame, kHidden, kTitle };


void
add_property(const BWindow& window, int32 property, BMessage& reply)
{
	switch (property) {
		case kActive:
			reply.AddBool("result", window.IsActive());
			break;
		case kFrame:
			reply.AddRect("result", window.Frame());
			break;
		case kHidden:
			reply.AddBool("result", window.IsHidden());
			break;
		case kTitle:
			reply.AddString("result", window.Title());
			break;
	}
}


status_t
set_frame(BWindow& window, const BMessage& message)
{
	BRect frame;
	const status_t status = message.FindRect("data", &frame);
	if (status != B_OK)
		return status;
	for (const float edge : {frame.left, frame.top, frame.right, frame.bottom}) {
		if (!isfinite(edge) || fabsf(edge) > 100000)
			return B_BAD_VALUE;
	}
	window.MoveTo(frame.LeftTop());
	window.ResizeTo(frame.Width(), frame.Height());
	return B_OK;
}


status_t
set_hidden(BWindow& window, bool hide)
{
	if (hide && !window.IsHidden())
		window.Hide();
	else if (!hide && window.IsHidden())
		window.Show();
	return B_OK;
}


status_t
set_property(BWindow& window, int32 property, const BMessage& message)
{
	if (property == kFrame)
		return set_frame(window, message);
	if (property == kTitle) {
		BString title;
		const status_t status = message.FindString("data", &title);
		if (status == B_OK)
			window.SetTitle(title.String());
		return status;
	}

	bool value;
	const status_t status = message.FindBool("data", &value);
	if (status != B_OK)
		return status;
	if (property == kHidden)
		return set_hidden(window, value);
	window.Activate(value);
	return B_OK;
}

} // namespace


BHandler*
BWindow::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	const BPropertyInfo properties(sWindowProperties);
	if (properties.FindMatch(message, index, specifier, what, property) >= 0)
		return this;
	return BLooper::ResolveSpecifier(message, index, specifier, what, property);
}


bool
BWindow::_AnswerProperty(BMessage* message)
{
	if (!message->HasSpecifiers())
		return false;
	const int32 property = hosted::MatchProperty(sWindowProperties, message);
	if (property < 0)
		return false;

	BMessage reply(B_REPLY);
	if (message->what == B_SET_PROPERTY)
		reply.AddInt32("error", set_property(*this, property, *message));
	else
		add_property(*this, property, reply);
	message->SendReply(&reply);
	return true;
}
