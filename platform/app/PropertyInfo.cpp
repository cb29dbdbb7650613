// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <PropertyInfo.h>

#include <stdio.h>
#include <string.h>

#include <AppDefs.h>
#include <Message.h>

#include "platform/app/Scripting.h"


namespace {

// An empty list means all.
bool
lists(const uint32* list, uint32 wanted)
{
	if (list[0] == 0)
		return true;
	for (int i = 0; i < 10 && list[i] != 0; i++) {
		if (list[i] == wanted)
			return true;
	}
	return false;
}


void
print_list(const uint32* list)
{
	for (int i = 0; i < 10 && list[i] != 0; i++)
		printf(" '%c%c%c%c'", static_cast<int>(list[i] >> 24),
			static_cast<int>(list[i] >> 16 & 0xff), static_cast<int>(list[i] >> 8 & 0xff),
			static_cast<int>(list[i] & 0xff));
}

} // namespace


BPropertyInfo::BPropertyInfo(property_info* properties, bool freeOnDelete)
	:
	fProperties(properties),
	fOwnsProperties(freeOnDelete)
{
}


BPropertyInfo::~BPropertyInfo()
{
	if (fOwnsProperties)
		delete[] fProperties;
}


int32
BPropertyInfo::FindMatch(BMessage* message, int32 index, BMessage* specifier, int32 form,
	const char* property, void* data) const
{
	(void)specifier;
	if (fProperties == nullptr || message == nullptr || property == nullptr)
		return B_ERROR;
	for (int32 i = 0; fProperties[i].name != nullptr; i++) {
		const property_info& info = fProperties[i];
		if (strcmp(info.name, property) != 0 || !lists(info.specifiers, static_cast<uint32>(form)))
			continue;
		// What is to be done concerns the innermost object; on the way to it only names count.
		if (info.commands[0] != 0 && (index != 0 || !lists(info.commands, message->what)))
			continue;
		if (data != nullptr)
			*static_cast<uint32*>(data) = info.extra_data;
		return i;
	}
	return B_ERROR;
}


const property_info*
BPropertyInfo::Properties() const
{
	return fProperties;
}


int32
BPropertyInfo::CountProperties() const
{
	int32 count = 0;
	while (fProperties != nullptr && fProperties[count].name != nullptr)
		count++;
	return count;
}


void
BPropertyInfo::PrintToStream() const
{
	for (int32 i = 0; i < CountProperties(); i++) {
		printf("%s:", fProperties[i].name);
		print_list(fProperties[i].commands);
		printf("\n");
	}
}


namespace hosted {

int32
MatchProperty(property_info* properties, BMessage* message)
{
	int32 index;
	BMessage specifier;
	int32 form;
	const char* name;
	if (message->GetCurrentSpecifier(&index, &specifier, &form, &name) != B_OK)
		return B_ERROR;
	return BPropertyInfo(properties).FindMatch(message, index, &specifier, form, name);
}


void
ReplyNotUnderstood(BMessage* message, status_t error, const char* text)
{
	BMessage reply(B_MESSAGE_NOT_UNDERSTOOD);
	reply.AddInt32("error", error);
	reply.AddString("message", text);
	message->SendReply(&reply);
}

} // namespace hosted
