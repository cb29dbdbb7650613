// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MIME_TYPE_H
#define MIME_TYPE_H

#include <string>

#include <StorageDefs.h>
#include <SupportDefs.h>

class BBitmap;
class BMessage;
struct entry_ref;


enum icon_size {
	B_LARGE_ICON = 32,
	B_MINI_ICON = 16,
};

enum app_verb {
	B_OPEN = 0,
};

extern const char* B_APP_MIME_TYPE; // application/x-vnd.Be-elfexecutable
extern const char* B_FILE_MIME_TYPE; // application/octet-stream


/*!	The name of a kind of file, and what the system knows about that kind.

	The knowledge is the desktop's: its shared database of types, its icons and its installed
	programs, under the names that Haiku has for them.
*/
class BMimeType {
public:
	BMimeType();
	explicit BMimeType(const char* type);
	virtual ~BMimeType();
	BMimeType(const BMimeType&) = delete;
	BMimeType& operator=(const BMimeType&) = delete;

	status_t SetTo(const char* type);
	void Unset();
	status_t InitCheck() const;

	const char* Type() const;
	bool IsValid() const;
	static bool IsValid(const char* type);
	bool IsSupertypeOnly() const;
	status_t GetSupertype(BMimeType* supertype) const;
	bool Contains(const BMimeType* type) const;
	bool operator==(const BMimeType& type) const;
	bool operator==(const char* type) const;

	bool IsInstalled() const;
	status_t GetIcon(BBitmap* icon, icon_size size) const;
	status_t GetPreferredApp(char* signature, app_verb verb = B_OPEN) const;
	status_t GetShortDescription(char* description) const;
	status_t GetSupportingApps(BMessage* signatures) const;

	static status_t GuessMimeType(const entry_ref* file, BMimeType* result);
	static status_t GuessMimeType(const char* filename, BMimeType* result);

private:
	std::string fType;
	status_t fStatus = B_NO_INIT;
};

#endif // MIME_TYPE_H
