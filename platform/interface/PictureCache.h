// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PICTURE_CACHE_H
#define PICTURE_CACHE_H

#include <stddef.h>

#include <QImage>
#include <QSize>


/*!	The scaled pictures of all lazy bitmaps, up to a total of bytes. What was not used for longest
	goes first. May be called from any thread.
*/
namespace hosted {

// A null image if it is not there.
QImage CachedPicture(const void* owner, const QSize& size);
void CachePicture(const void* owner, const QSize& size, const QImage& image);
void ForgetPictures(const void* owner);

size_t CachedPictureBytes();
// Returns the old limit.
size_t SetPictureCacheLimit(size_t bytes);

} // namespace hosted

#endif // PICTURE_CACHE_H
