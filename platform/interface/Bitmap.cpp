// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Bitmap.h>

#include <algorithm>
#include <string.h>

#include <View.h>

#include "platform/interface/BitmapConvert.h"
#include "platform/interface/BitmapData.h"

using hosted::BitmapData;


BBitmap::BBitmap(BRect bounds, uint32 flags, color_space space, int32 bytesPerRow,
	screen_id /* screen */)
	:
	fData(std::make_shared<BitmapData>())
{
	fData->SetTo(bounds, flags, space, bytesPerRow);
	fData->Allocate();
}


BBitmap::BBitmap(BRect bounds, color_space space, bool acceptsViews, bool needsContiguous)
	:
	BBitmap(bounds,
		(acceptsViews ? B_BITMAP_ACCEPTS_VIEWS : 0)
			| (needsContiguous ? B_BITMAP_IS_CONTIGUOUS : 0),
		space)
{
}


BBitmap::BBitmap(const BBitmap& source)
	:
	BArchivable(source),
	fData(std::make_shared<BitmapData>())
{
	*this = source;
}


BBitmap::BBitmap(const BBitmap* source, bool acceptsViews, bool needsContiguous)
	:
	fData(std::make_shared<BitmapData>())
{
	if (source == nullptr || !source->IsValid())
		return;
	fData->SetTo(source->Bounds(),
		(acceptsViews ? B_BITMAP_ACCEPTS_VIEWS : 0)
			| (needsContiguous ? B_BITMAP_IS_CONTIGUOUS : 0),
		source->ColorSpace(), source->BytesPerRow());
	fData->Allocate();
	ImportBits(source);
}


BBitmap::~BBitmap()
{
	fData->host.reset();
}


BBitmap&
BBitmap::operator=(const BBitmap& source)
{
	if (this == &source)
		return *this;
	fData->host.reset();
	fData = std::make_shared<BitmapData>();
	if (source.IsValid()) {
		fData->SetTo(source.Bounds(), source.Flags(), source.ColorSpace(), source.BytesPerRow());
		fData->Allocate();
		ImportBits(&source);
	}
	return *this;
}


status_t
BBitmap::InitCheck() const
{
	return fData->status;
}


void*
BBitmap::Bits() const
{
	if (!IsValid())
		return nullptr;
	fData->NeedBits();
	return fData->bits.data();
}


int32
BBitmap::BitsLength() const
{
	return IsValid() ? fData->Length() : 0;
}


int32
BBitmap::BytesPerRow() const
{
	return fData->bytesPerRow;
}


color_space
BBitmap::ColorSpace() const
{
	return fData->space;
}


BRect
BBitmap::Bounds() const
{
	return fData->bounds;
}


uint32
BBitmap::Flags() const
{
	return fData->flags;
}


void
BBitmap::SetBits(const void* data, int32 length, int32 offset, color_space space)
{
	if (!IsValid())
		return;
	int32 bytesPerRow = B_ANY_BYTES_PER_ROW;
	if (space == B_RGB32 && length % 3 == 0) {
		// By an old custom this stands for three bytes a pixel.
		space = B_RGB24_BIG;
		bytesPerRow = hosted::RowBytes(space, fData->Width());
	} else if (space == B_CMAP8 && fData->space != B_CMAP8)
		bytesPerRow = fData->Width();
	ImportBits(data, length, bytesPerRow, offset, space);
}


status_t
BBitmap::ImportBits(const void* data, int32 length, int32 bytesPerRow, int32 offset,
	color_space space)
{
	if (!IsValid())
		return B_NO_INIT;
	if (data == nullptr || length < 0 || offset < 0 || offset > fData->Length()
		|| !hosted::IsReadable(space))
		return B_BAD_VALUE;
	fData->NeedBits();
	if (bytesPerRow <= 0)
		bytesPerRow = (hosted::RowBytes(space, fData->Width()) + 3) / 4 * 4;
	const hosted::ConstRows from
		= {static_cast<const uint8*>(data), static_cast<size_t>(length), bytesPerRow, space};
	const hosted::Rows to = {fData->bits.data() + offset,
		static_cast<size_t>(fData->Length() - offset), fData->bytesPerRow, fData->space};
	hosted::ConvertPixels(from, to, fData->Width(), fData->Height());
	return B_OK;
}


status_t
BBitmap::ImportBits(const void* data, int32 length, int32 bytesPerRow, color_space space,
	BPoint from, BPoint to, BSize size)
{
	if (!IsValid())
		return B_NO_INIT;
	const int32 fromX = static_cast<int32>(from.x);
	const int32 fromY = static_cast<int32>(from.y);
	const int32 toX = static_cast<int32>(to.x);
	const int32 toY = static_cast<int32>(to.y);
	if (data == nullptr || length < 0 || fromX < 0 || fromY < 0 || toX < 0 || toY < 0
		|| size.width < 0 || size.height < 0 || !hosted::IsReadable(space))
		return B_BAD_VALUE;
	if (bytesPerRow <= 0)
		bytesPerRow = (hosted::RowBytes(space, fData->Width()) + 3) / 4 * 4;

	const int32 columns = bytesPerRow * 8 / hosted::BitsPerPixel(space) - fromX;
	const int32 width = std::min(std::min(size.IntegerWidth() + 1, fData->Width() - toX), columns);
	const int32 height = std::min(size.IntegerHeight() + 1, fData->Height() - toY);
	const int64 skipped = static_cast<int64>(fromY) * bytesPerRow;
	if (width <= 0 || height <= 0 || skipped >= length)
		return B_OK;
	fData->NeedBits();
	const hosted::ConstRows source = {static_cast<const uint8*>(data) + skipped,
		static_cast<size_t>(length - skipped), bytesPerRow, space, fromX};
	const int32 offset = toY * fData->bytesPerRow;
	const hosted::Rows destination = {fData->bits.data() + offset,
		static_cast<size_t>(fData->Length() - offset), fData->bytesPerRow, fData->space, toX};
	hosted::ConvertPixels(source, destination, width, height);
	return B_OK;
}


status_t
BBitmap::ImportBits(const BBitmap* bitmap)
{
	if (!IsValid())
		return B_NO_INIT;
	if (bitmap == nullptr || !bitmap->IsValid() || bitmap->Bounds() != Bounds())
		return B_BAD_VALUE;
	return ImportBits(bitmap->Bits(), bitmap->BitsLength(), bitmap->BytesPerRow(), 0,
		bitmap->ColorSpace());
}


status_t
BBitmap::ImportBits(const BBitmap* bitmap, BPoint from, BPoint to, BSize size)
{
	if (!IsValid())
		return B_NO_INIT;
	if (bitmap == nullptr || !bitmap->IsValid())
		return B_BAD_VALUE;
	const float lastColumn = static_cast<float>(BitmapData::Of(*bitmap).Width() - 1) - from.x;
	size.width = std::min(size.width, lastColumn);
	return ImportBits(bitmap->Bits(), bitmap->BitsLength(), bitmap->BytesPerRow(),
		bitmap->ColorSpace(), from, to, size);
}


void
BBitmap::AddChild(BView* view)
{
	if (fData->host != nullptr)
		fData->host->Root().AddChild(view);
}


bool
BBitmap::RemoveChild(BView* view)
{
	return fData->host != nullptr && fData->host->Root().RemoveChild(view);
}


bool
BBitmap::Lock()
{
	if (fData->host == nullptr)
		return false;
	fData->host->lock.lock();
	return true;
}


void
BBitmap::Unlock()
{
	if (fData->host != nullptr)
		fData->host->lock.unlock();
}
