// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/interface/PictureCache.h"

#include <list>
#include <map>
#include <mutex>
#include <tuple>


namespace hosted {

namespace {

// Some four hundred covers of the largest size that the lists show.
constexpr size_t kDefaultLimit = 96 * 1024 * 1024;

using Key = std::tuple<const void*, int, int>;

struct Entry {
	Key key;
	QImage image;
};

struct Cache {
	std::mutex mutex;
	// The last used one first.
	std::list<Entry> entries;
	std::map<Key, std::list<Entry>::iterator> places;
	size_t bytes = 0;
	size_t limit = kDefaultLimit;
};

// Lives as long as the process: bitmaps may be static objects.
Cache&
cache()
{
	static Cache* sCache = new Cache;
	return *sCache;
}


size_t
bytes_of(const QImage& image)
{
	return static_cast<size_t>(image.sizeInBytes());
}


void
remove(Cache& shared, std::list<Entry>::iterator entry)
{
	shared.bytes -= bytes_of(entry->image);
	shared.places.erase(entry->key);
	shared.entries.erase(entry);
}


void
shrink(Cache& shared)
{
	while (shared.bytes > shared.limit && !shared.entries.empty())
		remove(shared, std::prev(shared.entries.end()));
}

} // namespace


QImage
CachedPicture(const void* owner, const QSize& size)
{
	Cache& shared = cache();
	std::lock_guard<std::mutex> lock(shared.mutex);
	const auto place = shared.places.find(Key(owner, size.width(), size.height()));
	if (place == shared.places.end())
		return QImage();
	shared.entries.splice(shared.entries.begin(), shared.entries, place->second);
	return place->second->image;
}


void
CachePicture(const void* owner, const QSize& size, const QImage& image)
{
	Cache& shared = cache();
	std::lock_guard<std::mutex> lock(shared.mutex);
	const Key key(owner, size.width(), size.height());
	const auto place = shared.places.find(key);
	if (place != shared.places.end())
		remove(shared, place->second);
	shared.entries.push_front({key, image});
	shared.places[key] = shared.entries.begin();
	shared.bytes += bytes_of(image);
	shrink(shared);
}


void
ForgetPictures(const void* owner)
{
	Cache& shared = cache();
	std::lock_guard<std::mutex> lock(shared.mutex);
	auto place = shared.places.lower_bound(Key(owner, 0, 0));
	while (place != shared.places.end() && std::get<0>(place->first) == owner)
		remove(shared, (place++)->second);
}


size_t
CachedPictureBytes()
{
	Cache& shared = cache();
	std::lock_guard<std::mutex> lock(shared.mutex);
	return shared.bytes;
}


size_t
SetPictureCacheLimit(size_t bytes)
{
	Cache& shared = cache();
	std::lock_guard<std::mutex> lock(shared.mutex);
	const size_t before = shared.limit;
	shared.limit = bytes;
	shrink(shared);
	return before;
}

} // namespace hosted
