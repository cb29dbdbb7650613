// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef BITMAP_STREAM_H
#define BITMAP_STREAM_H

#include <DataIO.h>
#include <TranslatorFormats.h>

class BBitmap;


namespace hosted {
class BitmapReceiver;
} // namespace hosted


/*!	A bitmap as a stream in the form 'bits': reading gives its header and pixels, writing them makes
	the bitmap.

	The stream owns the bitmap until it is detached.
*/
class BBitmapStream : public BPositionIO {
public:
	explicit BBitmapStream(BBitmap* bitmap = nullptr);
	~BBitmapStream() override;
	BBitmapStream(const BBitmapStream&) = delete;
	BBitmapStream& operator=(const BBitmapStream&) = delete;

	ssize_t ReadAt(off_t position, void* buffer, size_t size) override;
	ssize_t WriteAt(off_t position, const void* data, size_t size) override;
	off_t Seek(off_t position, uint32 whence) override;
	off_t Position() const override;
	virtual off_t Size() const;
	status_t SetSize(off_t size) override;

	status_t DetachBitmap(BBitmap** outBitmap);

private:
	friend class hosted::BitmapReceiver;

	void _TakeBitmap(BBitmap* bitmap);
	status_t _MakeBitmap();

private:
	BBitmap* fBitmap = nullptr;
	bool fDetached = false;
	off_t fPosition = 0;
	off_t fSize = 0;
	// As it stands in the stream.
	uint8 fHeader[32] = {};
};

#endif // BITMAP_STREAM_H
