// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
//
// Specifiers: what of the target a scripting message means. The last one added counts first.
#include <Message.h>

#include "platform/app/Envelope.h"


namespace {

const char* const kSpecifiersField = "specifiers";
const char* const kPropertyField = "property";

} // namespace


status_t
BMessage::AddSpecifier(const char* property)
{
	BMessage specifier(B_DIRECT_SPECIFIER);
	const status_t status = specifier.AddString(kPropertyField, property);
	return status == B_OK ? AddSpecifier(&specifier) : status;
}


status_t
BMessage::AddSpecifier(const char* property, int32 index)
{
	BMessage specifier(B_INDEX_SPECIFIER);
	const status_t status = specifier.AddString(kPropertyField, property);
	if (status != B_OK)
		return status;
	specifier.AddInt32("index", index);
	return AddSpecifier(&specifier);
}


status_t
BMessage::AddSpecifier(const char* property, int32 index, int32 range)
{
	if (range < 0)
		return B_BAD_VALUE;
	BMessage specifier(B_RANGE_SPECIFIER);
	const status_t status = specifier.AddString(kPropertyField, property);
	if (status != B_OK)
		return status;
	specifier.AddInt32("index", index);
	specifier.AddInt32("range", range);
	return AddSpecifier(&specifier);
}


status_t
BMessage::AddSpecifier(const char* property, const char* name)
{
	BMessage specifier(B_NAME_SPECIFIER);
	status_t status = specifier.AddString(kPropertyField, property);
	if (status == B_OK)
		status = specifier.AddString("name", name);
	return status == B_OK ? AddSpecifier(&specifier) : status;
}


status_t
BMessage::AddSpecifier(const BMessage* specifier)
{
	const status_t status = AddMessage(kSpecifiersField, specifier);
	if (status != B_OK)
		return status;
	fEnvelope->currentSpecifier++;
	fEnvelope->hasSpecifiers = true;
	return B_OK;
}


status_t
BMessage::SetCurrentSpecifier(int32 index)
{
	if (index < 0 || !HasMessage(kSpecifiersField, index))
		return B_BAD_INDEX;
	fEnvelope->currentSpecifier = index;
	fEnvelope->hasSpecifiers = true;
	return B_OK;
}


status_t
BMessage::GetCurrentSpecifier(int32* index, BMessage* specifier, int32* what,
	const char** property) const
{
	if (index != nullptr)
		*index = fEnvelope->currentSpecifier;
	if (!WasDelivered() || fEnvelope->currentSpecifier < 0)
		return B_BAD_SCRIPT_SYNTAX;
	if (specifier == nullptr)
		return B_OK;

	if (FindMessage(kSpecifiersField, fEnvelope->currentSpecifier, specifier) != B_OK)
		return B_BAD_SCRIPT_SYNTAX;
	if (what != nullptr)
		*what = static_cast<int32>(specifier->what);
	if (property != nullptr && specifier->FindString(kPropertyField, property) != B_OK)
		return B_BAD_SCRIPT_SYNTAX;
	return B_OK;
}


bool
BMessage::HasSpecifiers() const
{
	return fEnvelope->hasSpecifiers;
}


status_t
BMessage::PopSpecifier()
{
	if (!WasDelivered() || fEnvelope->currentSpecifier < 0)
		return B_BAD_VALUE;
	fEnvelope->currentSpecifier--;
	return B_OK;
}
