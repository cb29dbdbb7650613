// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// What other programs may ask of a view and change in it.
#include <View.h>

#include <math.h>

#include <AppDefs.h>
#include <Errors.h>
#include <Message.h>
#include <PropertyInfo.h>

#include "platform/app/Scripting.h"
#include "platform/interface/ViewPrivate.h"


namespace {

property_info sViewProperties[] = {
	{"Frame", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_RECT_TYPE}},
	{"Hidden", {B_GET_PROPERTY, B_SET_PROPERTY}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_BOOL_TYPE}},
	{"View", {B_COUNT_PROPERTIES}, {B_DIRECT_SPECIFIER}, nullptr, 0, {B_INT32_TYPE}},
	{"View", {}, {B_INDEX_SPECIFIER, B_REVERSE_INDEX_SPECIFIER, B_NAME_SPECIFIER}, nullptr, 0, {}},
	{nullptr, {}, {}, nullptr, 0, {}}};

enum { kFrame, kHidden, kChildCount, kChild };

// Frames beyond it are taken for nonsense.
constexpr float kFarthestEdge = 100000;


void
add_property(const BView& view, int32 property, BMessage& reply)
{
	switch (property) {
		case kFrame:
			reply.AddRect("result", view.Frame());
			break;
		case kHidden:
			reply.AddBool("result", view.IsHidden(&view));
			break;
		case kChildCount:
			reply.AddInt32("result", view.CountChildren());
			break;
	}
}


status_t
set_property(BView& view, int32 property, const BMessage& message)
{
	if (property == kFrame) {
		BRect frame;
		const status_t status = hosted::FindFrame(message, &frame);
		if (status == B_OK) {
			view.MoveTo(frame.LeftTop());
			view.ResizeTo(frame.Width(), frame.Height());
		}
		return status;
	}

	bool hide;
	const status_t status = message.FindBool("data", &hide);
	if (status != B_OK)
		return status;
	if (hide && !view.IsHidden(&view))
		view.Hide();
	else if (!hide && view.IsHidden(&view))
		view.Show();
	return B_OK;
}

} // namespace


BHandler*
BView::ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
	const char* property)
{
	const BPropertyInfo properties(sViewProperties);
	const int32 match = properties.FindMatch(message, index, specifier, what, property);
	if (match < 0)
		return BHandler::ResolveSpecifier(message, index, specifier, what, property);
	return match == kChild ? hosted::ResolveChild(*this, message, *specifier) : this;
}


// Success goes without an error code in the answer.
bool
BView::_AnswerProperty(BMessage* message)
{
	if (!message->HasSpecifiers())
		return false;
	const int32 property = hosted::MatchProperty(sViewProperties, message);
	if (property < 0 || property == kChild)
		return false;

	BMessage reply(B_REPLY);
	if (message->what == B_SET_PROPERTY) {
		const status_t status = set_property(*this, property, *message);
		if (status != B_OK) {
			hosted::ReplyNotUnderstood(message, status, "The value was not taken");
			return true;
		}
	} else
		add_property(*this, property, reply);
	message->SendReply(&reply);
	return true;
}


namespace hosted {

BHandler*
ResolveChild(BView& parent, BMessage* message, const BMessage& specifier)
{
	BView* child = nullptr;
	if (specifier.what == B_NAME_SPECIFIER) {
		const BString name(specifier.GetString("name", ""));
		for (int32 i = 0; child == nullptr && i < parent.CountChildren(); i++) {
			if (name == parent.ChildAt(i)->Name())
				child = parent.ChildAt(i);
		}
	} else {
		int32 index = specifier.GetInt32("index", -1);
		if (specifier.what == B_REVERSE_INDEX_SPECIFIER)
			index = index < 0 ? -1 : parent.CountChildren() - index;
		child = index < 0 ? nullptr : parent.ChildAt(index);
	}
	if (child == nullptr) {
		ReplyNotUnderstood(message, B_BAD_INDEX, "There is no such view");
		return nullptr;
	}
	message->PopSpecifier();
	return child;
}


status_t
FindFrame(const BMessage& message, BRect* frame)
{
	const status_t status = message.FindRect("data", frame);
	if (status != B_OK)
		return status;
	for (const float edge : {frame->left, frame->top, frame->right, frame->bottom}) {
		if (!isfinite(edge) || fabsf(edge) > kFarthestEdge)
			return B_BAD_VALUE;
	}
	return B_OK;
}

} // namespace hosted
