// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PATH_H
#define PATH_H

#include <Entry.h>
#include <Flattenable.h>
#include <Message.h>

class BDirectory;


/*!	An absolute path.

	A clean absolute path is taken as it is, whether or not anything is there; every other one is
	brought into that form with the help of the file system.
*/
class BPath : public BFlattenable {
public:
	BPath();
	BPath(const BPath& path);
	BPath(const entry_ref* ref);
	BPath(const BEntry* entry);
	BPath(const char* directory, const char* leaf = NULL, bool normalize = false);
	BPath(const BDirectory* directory, const char* leaf = NULL, bool normalize = false);
	~BPath() override;

	status_t InitCheck() const;

	status_t SetTo(const entry_ref* ref);
	status_t SetTo(const BEntry* entry);
	status_t SetTo(const char* path, const char* leaf = NULL, bool normalize = false);
	status_t SetTo(const BDirectory* directory, const char* leaf = NULL, bool normalize = false);
	void Unset();

	status_t Append(const char* path, bool normalize = false);

	// NULL unless the object is initialized.
	const char* Path() const;
	const char* Leaf() const;
	status_t GetParent(BPath* path) const;
	bool IsAbsolute() const;

	bool operator==(const BPath& item) const;
	bool operator==(const char* path) const;
	bool operator!=(const BPath& item) const;
	bool operator!=(const char* path) const;
	BPath& operator=(const BPath& item);
	BPath& operator=(const char* path);

	bool IsFixedSize() const override;
	type_code TypeCode() const override;
	ssize_t FlattenedSize() const override;
	status_t Flatten(void* buffer, ssize_t size) const override;
	bool AllowsTypeCode(type_code code) const override;
	status_t Unflatten(type_code code, const void* buffer, ssize_t size) override;

private:
	status_t _Fail(status_t status);

private:
	char* fName = nullptr;
	status_t fCStatus;
};

#endif // PATH_H
