// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MESSAGE_H
#define MESSAGE_H

#include <stddef.h>

#include <AppDefs.h>
#include <GraphicsDefs.h>
#include <OS.h>
#include <Point.h>
#include <Rect.h>
#include <Size.h>
#include <SupportDefs.h>
#include <TypeConstants.h>

class BDataIO;
class BFlattenable;
class BHandler;
class BMessenger;
class BString;
class BStringList;
struct entry_ref;
struct node_ref;

namespace hosted {
class FieldList;
struct Envelope;
class MessageAccess;
} // namespace hosted


// How a specifier names its object.
enum {
	B_NO_SPECIFIER = 0,
	B_DIRECT_SPECIFIER = 1,
	B_INDEX_SPECIFIER,
	B_REVERSE_INDEX_SPECIFIER,
	B_RANGE_SPECIFIER,
	B_REVERSE_RANGE_SPECIFIER,
	B_NAME_SPECIFIER,
	B_ID_SPECIFIER,
	B_SPECIFIERS_END = 128
};


class BMessage {
public:
	BMessage();
	BMessage(uint32 what);
	BMessage(const BMessage& other);
	virtual ~BMessage();

	BMessage& operator=(const BMessage& other);

	status_t GetInfo(type_code type, int32 index, char** name, type_code* typeFound,
		int32* count = NULL) const;
	status_t GetInfo(const char* name, type_code* typeFound, int32* count = NULL) const;
	status_t GetInfo(const char* name, type_code* typeFound, bool* fixedSize) const;
	int32 CountNames(type_code type) const;
	bool IsEmpty() const;
	bool IsSystem() const;
	bool IsReply() const;
	void PrintToStream() const;
	status_t Rename(const char* oldName, const char* newName);

	bool WasDelivered() const;
	bool IsSourceWaiting() const;
	bool IsSourceRemote() const;
	BMessenger ReturnAddress() const;
	const BMessage* Previous() const;
	bool WasDropped() const;
	BPoint DropPoint(BPoint* offset = NULL) const;

	// A message may be answered once when its sender waits, else any number of times. A reply by
	// code, or by message with where to put the answer to the reply, waits for that answer.
	status_t SendReply(uint32 command, BHandler* replyTo = NULL);
	status_t SendReply(BMessage* reply, BHandler* replyTo = NULL,
		bigtime_t timeout = B_INFINITE_TIMEOUT);
	status_t SendReply(BMessage* reply, BMessenger replyTo, bigtime_t timeout = B_INFINITE_TIMEOUT);
	status_t SendReply(uint32 command, BMessage* replyToReply);
	status_t SendReply(BMessage* reply, BMessage* replyToReply,
		bigtime_t sendTimeout = B_INFINITE_TIMEOUT, bigtime_t replyTimeout = B_INFINITE_TIMEOUT);

	ssize_t FlattenedSize() const;
	status_t Flatten(char* buffer, ssize_t size) const;
	status_t Flatten(BDataIO* stream, ssize_t* size = NULL) const;
	status_t Unflatten(const char* flatBuffer);
	status_t Unflatten(BDataIO* stream);

	status_t AddSpecifier(const char* property);
	status_t AddSpecifier(const char* property, int32 index);
	status_t AddSpecifier(const char* property, int32 index, int32 range);
	status_t AddSpecifier(const char* property, const char* name);
	status_t AddSpecifier(const BMessage* specifier);
	status_t SetCurrentSpecifier(int32 index);
	status_t GetCurrentSpecifier(int32* index, BMessage* specifier = NULL, int32* what = NULL,
		const char** property = NULL) const;
	bool HasSpecifiers() const;
	status_t PopSpecifier();

	status_t AddBool(const char* name, bool value);
	status_t AddInt8(const char* name, int8 value);
	status_t AddUInt8(const char* name, uint8 value);
	status_t AddInt16(const char* name, int16 value);
	status_t AddUInt16(const char* name, uint16 value);
	status_t AddInt32(const char* name, int32 value);
	status_t AddUInt32(const char* name, uint32 value);
	status_t AddInt64(const char* name, int64 value);
	status_t AddUInt64(const char* name, uint64 value);
	status_t AddFloat(const char* name, float value);
	status_t AddDouble(const char* name, double value);
	status_t AddPoint(const char* name, BPoint value);
	status_t AddRect(const char* name, BRect value);
	status_t AddSize(const char* name, BSize value);
	status_t AddColor(const char* name, rgb_color value);
	status_t AddString(const char* name, const char* value);
	status_t AddString(const char* name, const BString& value);
	status_t AddStrings(const char* name, const BStringList& list);
	status_t AddPointer(const char* name, const void* value);
	status_t AddMessenger(const char* name, BMessenger value);
	status_t AddRef(const char* name, const entry_ref* value);
	status_t AddNodeRef(const char* name, const node_ref* value);
	status_t AddMessage(const char* name, const BMessage* value);
	status_t AddFlat(const char* name, const BFlattenable* object, int32 count = 1);
	status_t AddData(const char* name, type_code type, const void* data, ssize_t numBytes,
		bool isFixedSize = true, int32 count = 1);
	status_t Append(const BMessage& message);

	status_t RemoveData(const char* name, int32 index = 0);
	status_t RemoveName(const char* name);
	status_t MakeEmpty();

	// A failed Find clears what it was to fill.
	status_t FindBool(const char* name, bool* value) const;
	status_t FindBool(const char* name, int32 index, bool* value) const;
	status_t FindInt8(const char* name, int8* value) const;
	status_t FindInt8(const char* name, int32 index, int8* value) const;
	status_t FindUInt8(const char* name, uint8* value) const;
	status_t FindUInt8(const char* name, int32 index, uint8* value) const;
	status_t FindInt16(const char* name, int16* value) const;
	status_t FindInt16(const char* name, int32 index, int16* value) const;
	status_t FindUInt16(const char* name, uint16* value) const;
	status_t FindUInt16(const char* name, int32 index, uint16* value) const;
	status_t FindInt32(const char* name, int32* value) const;
	status_t FindInt32(const char* name, int32 index, int32* value) const;
	status_t FindUInt32(const char* name, uint32* value) const;
	status_t FindUInt32(const char* name, int32 index, uint32* value) const;
	status_t FindInt64(const char* name, int64* value) const;
	status_t FindInt64(const char* name, int32 index, int64* value) const;
	status_t FindUInt64(const char* name, uint64* value) const;
	status_t FindUInt64(const char* name, int32 index, uint64* value) const;
	status_t FindFloat(const char* name, float* value) const;
	status_t FindFloat(const char* name, int32 index, float* value) const;
	status_t FindDouble(const char* name, double* value) const;
	status_t FindDouble(const char* name, int32 index, double* value) const;
	status_t FindPoint(const char* name, BPoint* value) const;
	status_t FindPoint(const char* name, int32 index, BPoint* value) const;
	status_t FindRect(const char* name, BRect* value) const;
	status_t FindRect(const char* name, int32 index, BRect* value) const;
	status_t FindSize(const char* name, BSize* value) const;
	status_t FindSize(const char* name, int32 index, BSize* value) const;
	status_t FindColor(const char* name, rgb_color* value) const;
	status_t FindColor(const char* name, int32 index, rgb_color* value) const;
	status_t FindString(const char* name, const char** value) const;
	status_t FindString(const char* name, int32 index, const char** value) const;
	status_t FindString(const char* name, BString* value) const;
	status_t FindString(const char* name, int32 index, BString* value) const;
	status_t FindStrings(const char* name, BStringList* list) const;
	status_t FindPointer(const char* name, void** value) const;
	status_t FindPointer(const char* name, int32 index, void** value) const;
	status_t FindMessenger(const char* name, BMessenger* value) const;
	status_t FindMessenger(const char* name, int32 index, BMessenger* value) const;
	status_t FindRef(const char* name, entry_ref* value) const;
	status_t FindRef(const char* name, int32 index, entry_ref* value) const;
	status_t FindNodeRef(const char* name, node_ref* value) const;
	status_t FindNodeRef(const char* name, int32 index, node_ref* value) const;
	status_t FindMessage(const char* name, BMessage* value) const;
	status_t FindMessage(const char* name, int32 index, BMessage* value) const;
	status_t FindFlat(const char* name, BFlattenable* value) const;
	status_t FindFlat(const char* name, int32 index, BFlattenable* value) const;
	status_t FindData(const char* name, type_code type, const void** data, ssize_t* numBytes) const;
	status_t FindData(const char* name, type_code type, int32 index, const void** data,
		ssize_t* numBytes) const;

	status_t ReplaceBool(const char* name, bool value);
	status_t ReplaceBool(const char* name, int32 index, bool value);
	status_t ReplaceInt8(const char* name, int8 value);
	status_t ReplaceInt8(const char* name, int32 index, int8 value);
	status_t ReplaceUInt8(const char* name, uint8 value);
	status_t ReplaceUInt8(const char* name, int32 index, uint8 value);
	status_t ReplaceInt16(const char* name, int16 value);
	status_t ReplaceInt16(const char* name, int32 index, int16 value);
	status_t ReplaceUInt16(const char* name, uint16 value);
	status_t ReplaceUInt16(const char* name, int32 index, uint16 value);
	status_t ReplaceInt32(const char* name, int32 value);
	status_t ReplaceInt32(const char* name, int32 index, int32 value);
	status_t ReplaceUInt32(const char* name, uint32 value);
	status_t ReplaceUInt32(const char* name, int32 index, uint32 value);
	status_t ReplaceInt64(const char* name, int64 value);
	status_t ReplaceInt64(const char* name, int32 index, int64 value);
	status_t ReplaceUInt64(const char* name, uint64 value);
	status_t ReplaceUInt64(const char* name, int32 index, uint64 value);
	status_t ReplaceFloat(const char* name, float value);
	status_t ReplaceFloat(const char* name, int32 index, float value);
	status_t ReplaceDouble(const char* name, double value);
	status_t ReplaceDouble(const char* name, int32 index, double value);
	status_t ReplacePoint(const char* name, BPoint value);
	status_t ReplacePoint(const char* name, int32 index, BPoint value);
	status_t ReplaceRect(const char* name, BRect value);
	status_t ReplaceRect(const char* name, int32 index, BRect value);
	status_t ReplaceSize(const char* name, BSize value);
	status_t ReplaceSize(const char* name, int32 index, BSize value);
	status_t ReplaceColor(const char* name, rgb_color value);
	status_t ReplaceColor(const char* name, int32 index, rgb_color value);
	status_t ReplaceString(const char* name, const char* value);
	status_t ReplaceString(const char* name, int32 index, const char* value);
	status_t ReplaceString(const char* name, const BString& value);
	status_t ReplaceString(const char* name, int32 index, const BString& value);
	status_t ReplacePointer(const char* name, const void* value);
	status_t ReplacePointer(const char* name, int32 index, const void* value);
	status_t ReplaceMessenger(const char* name, BMessenger value);
	status_t ReplaceMessenger(const char* name, int32 index, BMessenger value);
	status_t ReplaceRef(const char* name, const entry_ref* value);
	status_t ReplaceRef(const char* name, int32 index, const entry_ref* value);
	status_t ReplaceNodeRef(const char* name, const node_ref* value);
	status_t ReplaceNodeRef(const char* name, int32 index, const node_ref* value);
	status_t ReplaceMessage(const char* name, const BMessage* value);
	status_t ReplaceMessage(const char* name, int32 index, const BMessage* value);
	status_t ReplaceFlat(const char* name, const BFlattenable* value);
	status_t ReplaceFlat(const char* name, int32 index, const BFlattenable* value);
	status_t ReplaceData(const char* name, type_code type, const void* data, ssize_t numBytes);
	status_t ReplaceData(const char* name, type_code type, int32 index, const void* data,
		ssize_t numBytes);

	bool HasBool(const char* name, int32 n = 0) const;
	bool HasInt8(const char* name, int32 n = 0) const;
	bool HasUInt8(const char* name, int32 n = 0) const;
	bool HasInt16(const char* name, int32 n = 0) const;
	bool HasUInt16(const char* name, int32 n = 0) const;
	bool HasInt32(const char* name, int32 n = 0) const;
	bool HasUInt32(const char* name, int32 n = 0) const;
	bool HasInt64(const char* name, int32 n = 0) const;
	bool HasUInt64(const char* name, int32 n = 0) const;
	bool HasFloat(const char* name, int32 n = 0) const;
	bool HasDouble(const char* name, int32 n = 0) const;
	bool HasPoint(const char* name, int32 n = 0) const;
	bool HasRect(const char* name, int32 n = 0) const;
	bool HasSize(const char* name, int32 n = 0) const;
	bool HasColor(const char* name, int32 n = 0) const;
	bool HasString(const char* name, int32 n = 0) const;
	bool HasPointer(const char* name, int32 n = 0) const;
	bool HasMessenger(const char* name, int32 n = 0) const;
	bool HasRef(const char* name, int32 n = 0) const;
	bool HasNodeRef(const char* name, int32 n = 0) const;
	bool HasMessage(const char* name, int32 n = 0) const;
	bool HasFlat(const char* name, const BFlattenable* object) const;
	bool HasFlat(const char* name, int32 n, const BFlattenable* object) const;
	bool HasData(const char* name, type_code type, int32 n = 0) const;

	// By value, of what is absent an empty one.
	BRect FindRect(const char* name, int32 n = 0) const;
	BPoint FindPoint(const char* name, int32 n = 0) const;
	const char* FindString(const char* name, int32 n = 0) const;
	int8 FindInt8(const char* name, int32 n = 0) const;
	int16 FindInt16(const char* name, int32 n = 0) const;
	int32 FindInt32(const char* name, int32 n = 0) const;
	int64 FindInt64(const char* name, int32 n = 0) const;
	bool FindBool(const char* name, int32 n = 0) const;
	float FindFloat(const char* name, int32 n = 0) const;
	double FindDouble(const char* name, int32 n = 0) const;

	bool GetBool(const char* name, bool defaultValue = false) const;
	bool GetBool(const char* name, int32 index, bool defaultValue) const;
	int8 GetInt8(const char* name, int8 defaultValue) const;
	int8 GetInt8(const char* name, int32 index, int8 defaultValue) const;
	uint8 GetUInt8(const char* name, uint8 defaultValue) const;
	uint8 GetUInt8(const char* name, int32 index, uint8 defaultValue) const;
	int16 GetInt16(const char* name, int16 defaultValue) const;
	int16 GetInt16(const char* name, int32 index, int16 defaultValue) const;
	uint16 GetUInt16(const char* name, uint16 defaultValue) const;
	uint16 GetUInt16(const char* name, int32 index, uint16 defaultValue) const;
	int32 GetInt32(const char* name, int32 defaultValue) const;
	int32 GetInt32(const char* name, int32 index, int32 defaultValue) const;
	uint32 GetUInt32(const char* name, uint32 defaultValue) const;
	uint32 GetUInt32(const char* name, int32 index, uint32 defaultValue) const;
	int64 GetInt64(const char* name, int64 defaultValue) const;
	int64 GetInt64(const char* name, int32 index, int64 defaultValue) const;
	uint64 GetUInt64(const char* name, uint64 defaultValue) const;
	uint64 GetUInt64(const char* name, int32 index, uint64 defaultValue) const;
	float GetFloat(const char* name, float defaultValue) const;
	float GetFloat(const char* name, int32 index, float defaultValue) const;
	double GetDouble(const char* name, double defaultValue) const;
	double GetDouble(const char* name, int32 index, double defaultValue) const;
	BPoint GetPoint(const char* name, const BPoint& defaultValue) const;
	BPoint GetPoint(const char* name, int32 index, const BPoint& defaultValue) const;
	BRect GetRect(const char* name, const BRect& defaultValue) const;
	BRect GetRect(const char* name, int32 index, const BRect& defaultValue) const;
	BSize GetSize(const char* name, const BSize& defaultValue) const;
	BSize GetSize(const char* name, int32 index, const BSize& defaultValue) const;
	rgb_color GetColor(const char* name, rgb_color defaultValue) const;
	rgb_color GetColor(const char* name, int32 index, rgb_color defaultValue) const;
	const char* GetString(const char* name, const char* defaultValue = NULL) const;
	const char* GetString(const char* name, int32 index, const char* defaultValue) const;
	const void* GetPointer(const char* name, const void* defaultValue = NULL) const;
	const void* GetPointer(const char* name, int32 index, const void* defaultValue) const;

	// Replaces the first value, or adds it.
	status_t SetBool(const char* name, bool value);
	status_t SetInt8(const char* name, int8 value);
	status_t SetUInt8(const char* name, uint8 value);
	status_t SetInt16(const char* name, int16 value);
	status_t SetUInt16(const char* name, uint16 value);
	status_t SetInt32(const char* name, int32 value);
	status_t SetUInt32(const char* name, uint32 value);
	status_t SetInt64(const char* name, int64 value);
	status_t SetUInt64(const char* name, uint64 value);
	status_t SetFloat(const char* name, float value);
	status_t SetDouble(const char* name, double value);
	status_t SetPoint(const char* name, const BPoint& value);
	status_t SetRect(const char* name, const BRect& value);
	status_t SetSize(const char* name, const BSize& value);
	status_t SetColor(const char* name, rgb_color value);
	status_t SetString(const char* name, const char* value);
	status_t SetString(const char* name, const BString& value);
	status_t SetPointer(const char* name, const void* value);
	status_t SetData(const char* name, type_code type, const void* data, ssize_t numBytes,
		bool fixedSize = true, int count = 1);

public:
	uint32 what;

private:
	// Keeps a pointer from being taken for a code or for a message to copy.
	explicit BMessage(BMessage* message);

private:
	friend class hosted::MessageAccess;

	hosted::FieldList* fFields;
	hosted::Envelope* fEnvelope;
};

#endif // MESSAGE_H
