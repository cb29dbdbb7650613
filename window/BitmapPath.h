// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BITMAP_PATH_H
#define BITMAP_PATH_H

#include <Path.h>

class BBitmap;


// An album folder with its picture.
class BitmapPath : public BPath {
public:
	// What fBitmap shows.
	enum : int32 {
		kNoPicture = 0,
		// A cover, or the built-in picture of an audio CD.
		kCover = 1,
		// The file manager's icon.
		kIcon = 2,
	};

	explicit BitmapPath(const char* folder);
	~BitmapPath() override;
	BitmapPath(const BitmapPath&) = delete;
	BitmapPath& operator=(const BitmapPath&) = delete;

	void PrintToStream() const;

	// Owned; null if there is no picture.
	BBitmap* fBitmap = nullptr;
	bool fBuiltIn = false;
	int32 fKind = kNoPicture;

private:
	void _LoadCover(const char* folder);
	void _MakeAudioCD();
	void _TakeIcon(const char* path);
};

#endif // BITMAP_PATH_H
