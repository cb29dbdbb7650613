// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef STRING_CLASS_H
#define STRING_CLASS_H

#include <SupportDefs.h>
#include <string>

class BStringList;


/*!	A text of UTF-8 bytes.

	Lengths and offsets count bytes unless a name says characters. NULL stands for the empty text in
	every argument that only gives one. Searches answer B_ERROR if there is no match.
*/
class BString {
public:
	BString();
	BString(const char* string);
	BString(const BString& string);
	BString(const char* string, int32 maxLength);
	BString(BString&& string) noexcept;
	~BString();

	const char* String() const;
	int32 Length() const;
	int32 CountChars() const;
	bool IsEmpty() const;

	BString& operator=(const BString& string);
	BString& operator=(BString&& string) noexcept;
	BString& operator=(const char* string);
	BString& operator=(char c);

	BString& SetTo(const char* string);
	BString& SetTo(const char* string, int32 maxLength);
	BString& SetTo(const BString& string);
	BString& SetTo(const BString& string, int32 maxLength);
	BString& SetTo(char c, int32 count);
	BString& Adopt(BString& from);
	BString& Adopt(BString& from, int32 maxLength);
	BString& SetToFormat(const char* format, ...) __attribute__((__format__(__printf__, 2, 3)));

	BString& CopyInto(BString& into, int32 fromOffset, int32 length) const;
	// Writes no terminating zero.
	void CopyInto(char* into, int32 fromOffset, int32 length) const;

	BString& operator+=(const BString& string);
	BString& operator+=(const char* string);
	BString& operator+=(char c);
	BString& Append(const BString& string);
	BString& Append(const BString& string, int32 length);
	BString& Append(const char* string);
	BString& Append(const char* string, int32 length);
	BString& Append(char c, int32 count);

	BString& Prepend(const char* string);
	BString& Prepend(const char* string, int32 length);
	BString& Prepend(const BString& string);
	BString& Prepend(const BString& string, int32 length);
	BString& Prepend(char c, int32 count);

	// A position after the end changes nothing; a negative one leaves out as many bytes of what is
	// inserted and puts the rest at the beginning.
	BString& Insert(const char* string, int32 position);
	BString& Insert(const char* string, int32 length, int32 position);
	BString& Insert(const BString& string, int32 position);
	BString& Insert(const BString& string, int32 length, int32 position);
	BString& Insert(char c, int32 count, int32 position);

	BString& Truncate(int32 newLength, bool lazy = true);
	BString& Remove(int32 from, int32 length);
	BString& RemoveFirst(const BString& string);
	BString& RemoveLast(const BString& string);
	BString& RemoveAll(const BString& string);
	BString& RemoveFirst(const char* string);
	BString& RemoveLast(const char* string);
	BString& RemoveAll(const char* string);
	BString& RemoveSet(const char* setOfBytesToRemove);
	BString& MoveInto(BString& into, int32 from, int32 length);
	void MoveInto(char* into, int32 from, int32 length);

	bool operator<(const BString& string) const;
	bool operator<=(const BString& string) const;
	bool operator==(const BString& string) const;
	bool operator>=(const BString& string) const;
	bool operator>(const BString& string) const;
	bool operator!=(const BString& string) const;
	bool operator<(const char* string) const;
	bool operator<=(const char* string) const;
	bool operator==(const char* string) const;
	bool operator>=(const char* string) const;
	bool operator>(const char* string) const;
	bool operator!=(const char* string) const;
	operator const char*() const;

	int Compare(const BString& string) const;
	int Compare(const char* string) const;
	int Compare(const BString& string, int32 length) const;
	int Compare(const char* string, int32 length) const;
	int ICompare(const BString& string) const;
	int ICompare(const char* string) const;
	int ICompare(const BString& string, int32 length) const;
	int ICompare(const char* string, int32 length) const;

	int32 FindFirst(const BString& string) const;
	int32 FindFirst(const char* string) const;
	int32 FindFirst(const BString& string, int32 fromOffset) const;
	int32 FindFirst(const char* string, int32 fromOffset) const;
	int32 FindFirst(char c) const;
	int32 FindFirst(char c, int32 fromOffset) const;

	// The whole match lies before the given offset.
	int32 FindLast(const BString& string) const;
	int32 FindLast(const char* string) const;
	int32 FindLast(const BString& string, int32 beforeOffset) const;
	int32 FindLast(const char* string, int32 beforeOffset) const;
	int32 FindLast(char c) const;
	int32 FindLast(char c, int32 beforeOffset) const;

	int32 IFindFirst(const BString& string) const;
	int32 IFindFirst(const char* string) const;
	int32 IFindFirst(const BString& string, int32 fromOffset) const;
	int32 IFindFirst(const char* string, int32 fromOffset) const;
	int32 IFindLast(const BString& string) const;
	int32 IFindLast(const char* string) const;
	int32 IFindLast(const BString& string, int32 beforeOffset) const;
	int32 IFindLast(const char* string, int32 beforeOffset) const;

	bool StartsWith(const BString& string) const;
	bool StartsWith(const char* string) const;
	bool StartsWith(const char* string, int32 length) const;
	bool IStartsWith(const BString& string) const;
	bool IStartsWith(const char* string) const;
	bool IStartsWith(const char* string, int32 length) const;
	bool EndsWith(const BString& string) const;
	bool EndsWith(const char* string) const;
	bool EndsWith(const char* string, int32 length) const;
	bool IEndsWith(const BString& string) const;
	bool IEndsWith(const char* string) const;
	bool IEndsWith(const char* string, int32 length) const;

	BString& ReplaceFirst(char replaceThis, char withThis);
	BString& ReplaceLast(char replaceThis, char withThis);
	BString& ReplaceAll(char replaceThis, char withThis, int32 fromOffset = 0);
	BString& Replace(char replaceThis, char withThis, int32 maxReplaceCount, int32 fromOffset = 0);
	BString& ReplaceFirst(const char* replaceThis, const char* withThis);
	BString& ReplaceLast(const char* replaceThis, const char* withThis);
	BString& ReplaceAll(const char* replaceThis, const char* withThis, int32 fromOffset = 0);
	BString& Replace(const char* replaceThis, const char* withThis, int32 maxReplaceCount,
		int32 fromOffset = 0);
	BString& IReplaceFirst(char replaceThis, char withThis);
	BString& IReplaceLast(char replaceThis, char withThis);
	BString& IReplaceAll(char replaceThis, char withThis, int32 fromOffset = 0);
	BString& IReplace(char replaceThis, char withThis, int32 maxReplaceCount, int32 fromOffset = 0);
	BString& IReplaceFirst(const char* replaceThis, const char* withThis);
	BString& IReplaceLast(const char* replaceThis, const char* withThis);
	BString& IReplaceAll(const char* replaceThis, const char* withThis, int32 fromOffset = 0);
	BString& IReplace(const char* replaceThis, const char* withThis, int32 maxReplaceCount,
		int32 fromOffset = 0);
	BString& ReplaceSet(const char* setOfBytes, char with);
	BString& ReplaceSet(const char* setOfBytes, const char* with);

	// Not checked against the length.
	char operator[](int32 index) const;
	char ByteAt(int32 index) const;
	BString& SetByteAt(int32 position, char to);
	const char* CharAt(int32 charIndex, int32* bytes = NULL) const;
	bool CharAt(int32 charIndex, char* buffer, int32* bytes) const;

	char* LockBuffer(int32 maxLength);
	// A length of 0 or less means up to the first zero.
	BString& UnlockBuffer(int32 length = -1);

	BString& ToLower();
	BString& ToUpper();
	BString& Capitalize();
	BString& Trim();
	bool Split(const char* separator, bool noEmptyStrings, BStringList& _list) const;

	BString& operator<<(const char* string);
	BString& operator<<(const BString& string);
	BString& operator<<(char c);
	BString& operator<<(bool value);
	BString& operator<<(int value);
	BString& operator<<(unsigned int value);
	BString& operator<<(unsigned long value);
	BString& operator<<(long value);
	BString& operator<<(unsigned long long value);
	BString& operator<<(long long value);
	BString& operator<<(float value);
	BString& operator<<(double value);

private:
	int32 _FindLast(const char* string, int32 beforeOffset, bool ignoreCase) const;
	int32 _FindFirst(const char* string, int32 fromOffset, bool ignoreCase) const;
	BString& _Replace(const char* what, const char* with, int32 maxCount, int32 fromOffset,
		bool ignoreCase);

private:
	std::string fData;
};

bool operator<(const char* a, const BString& b);
bool operator<=(const char* a, const BString& b);
bool operator==(const char* a, const BString& b);
bool operator>(const char* a, const BString& b);
bool operator>=(const char* a, const BString& b);
bool operator!=(const char* a, const BString& b);

#endif // STRING_CLASS_H
