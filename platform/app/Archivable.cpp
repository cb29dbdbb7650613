// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Archivable.h>

#include <cxxabi.h>
#include <stdlib.h>
#include <typeinfo>

#include <Errors.h>
#include <Message.h>


BArchivable::BArchivable()
{
}


BArchivable::BArchivable(BMessage* from)
{
	(void)from;
}


BArchivable::~BArchivable()
{
}


status_t
BArchivable::Archive(BMessage* into, bool deep) const
{
	(void)deep;
	if (into == nullptr)
		return B_BAD_VALUE;
	int status;
	char* name = abi::__cxa_demangle(typeid(*this).name(), nullptr, nullptr, &status);
	const status_t result = into->AddString("class", name != nullptr ? name : typeid(*this).name());
	free(name);
	return result;
}


status_t
BArchivable::Perform(perform_code code, void* argument)
{
	(void)code;
	(void)argument;
	return B_NAME_NOT_FOUND;
}
