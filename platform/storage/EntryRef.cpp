// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// entry_ref: a directory's numbers and a name.
#include <Entry.h>

#include <stdlib.h>
#include <string.h>
#include <utility>


namespace {

int
compare_names(const char* a, const char* b)
{
	if (a == nullptr || b == nullptr)
		return static_cast<int>(a != nullptr) - static_cast<int>(b != nullptr);
	return strcmp(a, b);
}

} // namespace


entry_ref::entry_ref()
	:
	device(static_cast<dev_t>(-1)),
	directory(static_cast<ino_t>(-1)),
	name(nullptr)
{
}


entry_ref::entry_ref(dev_t device, ino_t directory, const char* name)
	:
	device(device),
	directory(directory),
	name(nullptr)
{
	set_name(name);
}


entry_ref::entry_ref(const entry_ref& ref)
	:
	entry_ref(ref.device, ref.directory, ref.name)
{
}


entry_ref::~entry_ref()
{
	free(name);
}


status_t
entry_ref::set_name(const char* newName)
{
	// The new name may be the old one.
	char* copy = newName != nullptr ? strdup(newName) : nullptr;
	if (newName != nullptr && copy == nullptr)
		return B_NO_MEMORY;
	free(name);
	name = copy;
	return B_OK;
}


bool
entry_ref::operator==(const entry_ref& ref) const
{
	return device == ref.device && directory == ref.directory && compare_names(name, ref.name) == 0;
}


bool
entry_ref::operator!=(const entry_ref& ref) const
{
	return !(*this == ref);
}


entry_ref&
entry_ref::operator=(const entry_ref& ref)
{
	device = ref.device;
	directory = ref.directory;
	if (this != &ref)
		set_name(ref.name);
	return *this;
}


bool
operator<(const entry_ref& a, const entry_ref& b)
{
	if (a.device != b.device)
		return a.device < b.device;
	if (a.directory != b.directory)
		return a.directory < b.directory;
	return compare_names(a.name, b.name) < 0;
}


status_t
get_ref_for_path(const char* path, entry_ref* ref)
{
	if (path == nullptr || ref == nullptr)
		return B_BAD_VALUE;
	const BEntry entry(path);
	const status_t status = entry.InitCheck();
	return status == B_OK ? entry.GetRef(ref) : status;
}
