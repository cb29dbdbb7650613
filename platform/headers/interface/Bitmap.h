// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BITMAP_H
#define BITMAP_H

#include <memory>

#include <Archivable.h>
#include <GraphicsDefs.h>
#include <Rect.h>

class BView;

namespace hosted {
struct BitmapData;
}


enum {
	B_BITMAP_CLEAR_TO_WHITE = 0x00000001,
	B_BITMAP_ACCEPTS_VIEWS = 0x00000002,
	B_BITMAP_IS_AREA = 0x00000004,
	B_BITMAP_IS_LOCKED = 0x00000008 | B_BITMAP_IS_AREA,
	B_BITMAP_IS_CONTIGUOUS = 0x00000010 | B_BITMAP_IS_LOCKED,
	B_BITMAP_WILL_OVERLAY = 0x00000020 | 0x00000040,
	B_BITMAP_NO_SERVER_LINK = 0x00000100
};

#define B_ANY_BYTES_PER_ROW -1


/*!	A picture in memory.

	Drawn are pictures of the color spaces B_CMAP8, B_GRAY8, B_RGB32 and B_RGBA32; those that accept
	views are B_RGB32 or B_RGBA32. ImportBits() converts from more.
*/
class BBitmap : public BArchivable {
public:
	BBitmap(BRect bounds, uint32 flags, color_space space, int32 bytesPerRow = B_ANY_BYTES_PER_ROW,
		screen_id screen = B_MAIN_SCREEN_ID);
	BBitmap(BRect bounds, color_space space, bool acceptsViews = false,
		bool needsContiguous = false);
	BBitmap(const BBitmap& source);
	BBitmap(const BBitmap* source, bool acceptsViews = false, bool needsContiguous = false);
	~BBitmap() override;

	BBitmap& operator=(const BBitmap& source);

	status_t InitCheck() const;
	bool IsValid() const { return InitCheck() == B_OK; }

	void* Bits() const;
	int32 BitsLength() const;
	int32 BytesPerRow() const;
	color_space ColorSpace() const;
	BRect Bounds() const;
	uint32 Flags() const;

	void SetBits(const void* data, int32 length, int32 offset, color_space space);
	status_t ImportBits(const void* data, int32 length, int32 bytesPerRow, int32 offset,
		color_space space);
	status_t ImportBits(const void* data, int32 length, int32 bytesPerRow, color_space space,
		BPoint from, BPoint to, BSize size);
	status_t ImportBits(const BBitmap* bitmap);
	status_t ImportBits(const BBitmap* bitmap, BPoint from, BPoint to, BSize size);

	// For bitmaps that accept views. Drawing in one needs its lock.
	virtual void AddChild(BView* view);
	virtual bool RemoveChild(BView* view);
	bool Lock();
	void Unlock();

private:
	friend struct hosted::BitmapData;

	// Shared with the views that have it as their background.
	std::shared_ptr<hosted::BitmapData> fData;
};

#endif // BITMAP_H
