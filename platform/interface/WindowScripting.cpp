// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What other programs may ask of a window and change in it.
#include <Window.h>

#include <AppDefs.h>
#include <Message.h>
#include <PropertyInfo.h>
#include <String.h>

#include "platform/app/Scripting.h"
#include "platform/interface/ViewPrivate.h"
#include "platform/interface/WindowHost.h"


namespace {

property_info sWindowProperties[] = {
	{"Active", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"Feel", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
	{"Flags", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
	{"Frame", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_RECT_TYPE}},
	{"Hidden", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"Look", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
	{"Minimize", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"Title", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_STRING_TYPE}},
	{"Workspaces", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0,
		{B_INT32_TYPE}},
	{"View", {B_COUNT_PROPERTIES}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
	{"View", {}, {B_INDEX_SPECIFIER, B_REVERSE_INDEX_SPECIFIER, B_NAME_SPECIFIER}, nullptr, 0, {}},
	{nullptr, {}, {}, nullptr, 0, {}}};

// The rows of the table.
enum {
	kActive,
	kFeel,
	kFlags,
	kFrame,
	kHidden,
	kLook,
	kMinimize,
	kTitle,
	kWorkspaces,
	kViewCount,
	kView
};


void
add_property(const BWindow& window, int32 property, BMessage& reply)
{
	switch (property) {
		case kActive:
			reply.AddBool("result", window.IsActive());
			break;
		case kFeel:
			reply.AddInt32("result", window.Feel());
			break;
		case kFlags:
			reply.AddInt32("result", static_cast<int32>(window.Flags()));
			break;
		case kFrame:
			reply.AddRect("result", window.Frame());
			break;
		case kHidden:
			reply.AddBool("result", window.IsHidden());
			break;
		case kLook:
			reply.AddInt32("result", window.Look());
			break;
		case kMinimize:
			reply.AddBool("result", window.IsMinimized());
			break;
		case kTitle:
			reply.AddString("result", window.Title());
			break;
		case kWorkspaces:
			reply.AddInt32("result", static_cast<int32>(window.Workspaces()));
			break;
		case kViewCount:
			reply.AddInt32("result", window.CountChildren());
			break;
	}
}


status_t
set_frame(BWindow& window, const BMessage& message)
{
	BRect frame;
	const status_t status = hosted::FindFrame(message, &frame);
	if (status != B_OK)
		return status;
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
set_title(BWindow& window, const BMessage& message)
{
	BString title;
	const status_t status = message.FindString("data", &title);
	if (status == B_OK)
		window.SetTitle(title.String());
	return status;
}


status_t
set_bool(BWindow& window, int32 property, const BMessage& message)
{
	bool value;
	const status_t status = message.FindBool("data", &value);
	if (status != B_OK)
		return status;
	if (property == kHidden)
		return set_hidden(window, value);
	if (property == kMinimize)
		window.Minimize(value);
	else
		window.Activate(value);
	return B_OK;
}


status_t
set_number(BWindow& window, int32 property, const BMessage& message)
{
	int32 value;
	const status_t status = message.FindInt32("data", &value);
	if (status != B_OK)
		return status;
	switch (property) {
		case kFeel:
			return window.SetFeel(static_cast<window_feel>(value));
		case kLook:
			return window.SetLook(static_cast<window_look>(value));
		case kFlags:
			return window.SetFlags(static_cast<uint32>(value));
		default:
			window.SetWorkspaces(static_cast<uint32>(value));
			return B_OK;
	}
}


status_t
set_property(BWindow& window, int32 property, const BMessage& message)
{
	switch (property) {
		case kFrame:
			return set_frame(window, message);
		case kTitle:
			return set_title(window, message);
		case kFeel:
		case kFlags:
		case kLook:
		case kWorkspaces:
			return set_number(window, property, message);
		default:
			return set_bool(window, property, message);
	}
}

} // namespace


BHandler*
BWindow::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	const BPropertyInfo properties(sWindowProperties);
	const int32 match = properties.FindMatch(message, index, specifier, what, property);
	if (match == kView)
		return hosted::ResolveChild(fHost->Root(), message, *specifier);
	if (match >= 0)
		return this;
	return BLooper::ResolveSpecifier(message, index, specifier, what, property);
}


bool
BWindow::_AnswerProperty(BMessage* message)
{
	if (!message->HasSpecifiers())
		return false;
	const int32 property = hosted::MatchProperty(sWindowProperties, message);
	if (property < 0 || property == kView)
		return false;

	BMessage reply(B_REPLY);
	if (message->what == B_SET_PROPERTY)
		reply.AddInt32("error", set_property(*this, property, *message));
	else
		add_property(*this, property, reply);
	message->SendReply(&reply);
	return true;
}
