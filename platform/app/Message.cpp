// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// A message's life, and what can be asked about it as a whole.
#include <Message.h>

#include <Errors.h>
#include <Messenger.h>

#include "platform/app/Delivery.h"
#include "platform/app/Envelope.h"


using hosted::Envelope;
using hosted::Field;
using hosted::FieldList;


BMessage::BMessage()
	:
	what(0),
	fFields(new FieldList),
	fEnvelope(new Envelope)
{
}


BMessage::BMessage(uint32 what)
	:
	what(what),
	fFields(new FieldList),
	fEnvelope(new Envelope)
{
}


BMessage::BMessage(const BMessage& other)
	:
	what(0),
	fFields(new FieldList),
	fEnvelope(new Envelope)
{
	*this = other;
}


BMessage::~BMessage()
{
	hosted::AnswerUnanswered(*this);
	delete fEnvelope;
	delete fFields;
}


BMessage&
BMessage::operator=(const BMessage& other)
{
	if (this == &other)
		return *this;

	MakeEmpty();
	what = other.what;
	*fFields = *other.fFields;
	fEnvelope->replyTo = other.fEnvelope->replyTo;
	fEnvelope->dropped = other.fEnvelope->dropped;
	fEnvelope->hasSpecifiers = other.fEnvelope->hasSpecifiers;
	fEnvelope->currentSpecifier = other.fEnvelope->currentSpecifier;
	return *this;
}


status_t
BMessage::MakeEmpty()
{
	hosted::AnswerUnanswered(*this);
	*fEnvelope = Envelope();
	fFields->MakeEmpty();
	return B_OK;
}


status_t
BMessage::GetInfo(type_code type, int32 index, char** name, type_code* typeFound,
	int32* count) const
{
	if (index < 0)
		return B_BAD_INDEX;
	int32 found = 0;
	for (const Field& field : fFields->Fields()) {
		if (type != B_ANY_TYPE && type != field.Type())
			continue;
		if (found++ < index)
			continue;
		if (name != nullptr)
			*name = const_cast<char*>(field.Name().c_str());
		if (typeFound != nullptr)
			*typeFound = field.Type();
		if (count != nullptr)
			*count = field.CountValues();
		return B_OK;
	}
	if (count != nullptr)
		*count = 0;
	return found == 0 && type != B_ANY_TYPE ? B_BAD_TYPE : B_BAD_INDEX;
}


status_t
BMessage::GetInfo(const char* name, type_code* typeFound, int32* count) const
{
	if (count != nullptr)
		*count = 0;
	const Field* field;
	const status_t status = fFields->Find(name, B_ANY_TYPE, &field);
	if (status != B_OK)
		return status;
	if (typeFound != nullptr)
		*typeFound = field->Type();
	if (count != nullptr)
		*count = field->CountValues();
	return B_OK;
}


status_t
BMessage::GetInfo(const char* name, type_code* typeFound, bool* fixedSize) const
{
	const Field* field;
	const status_t status = fFields->Find(name, B_ANY_TYPE, &field);
	if (status != B_OK)
		return status;
	if (typeFound != nullptr)
		*typeFound = field->Type();
	if (fixedSize != nullptr)
		*fixedSize = field->IsFixedSize();
	return B_OK;
}


int32
BMessage::CountNames(type_code type) const
{
	int32 count = 0;
	for (const Field& field : fFields->Fields()) {
		if (type == B_ANY_TYPE || type == field.Type())
			count++;
	}
	return count;
}


bool
BMessage::IsEmpty() const
{
	return fFields->Fields().empty();
}


bool
BMessage::IsSystem() const
{
	const int a = static_cast<int>(what >> 24 & 0xff);
	const int b = static_cast<int>(what >> 16 & 0xff);
	const int c = static_cast<int>(what >> 8 & 0xff);
	const int d = static_cast<int>(what & 0xff);
	return a == '_' && b >= 'A' && b <= 'Z' && c >= 'A' && c <= 'Z' && d >= 'A' && d <= 'Z';
}


status_t
BMessage::Rename(const char* oldName, const char* newName)
{
	return fFields->Rename(oldName, newName);
}


status_t
BMessage::Append(const BMessage& message)
{
	// A copy, because a message may be appended to itself.
	const FieldList fields = *message.fFields;
	for (const Field& field : fields.Fields()) {
		for (int32 i = 0; i < field.CountValues(); i++) {
			uint32 size;
			const char* value = field.ValueAt(i, &size);
			const status_t status = fFields->Add(field.Name().c_str(), field.Type(), value, size,
				field.IsFixedSize());
			if (status != B_OK)
				return status;
		}
	}
	return B_OK;
}


status_t
BMessage::RemoveData(const char* name, int32 index)
{
	return fFields->RemoveValue(name, index);
}


status_t
BMessage::RemoveName(const char* name)
{
	return fFields->RemoveName(name);
}


bool
BMessage::WasDelivered() const
{
	return fEnvelope->delivered;
}


bool
BMessage::IsReply() const
{
	return fEnvelope->isReply;
}


bool
BMessage::IsSourceWaiting() const
{
	return fEnvelope->replyRequired && !fEnvelope->replyDone;
}


bool
BMessage::IsSourceRemote() const
{
	return fEnvelope->delivered && fEnvelope->remote;
}


bool
BMessage::WasDropped() const
{
	return fEnvelope->dropped;
}


BPoint
BMessage::DropPoint(BPoint* offset) const
{
	if (offset != nullptr)
		*offset = FindPoint("_drop_offset_");
	return FindPoint("_drop_point_");
}
