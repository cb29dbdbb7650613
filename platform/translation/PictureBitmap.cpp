// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Bitmaps that come from picture files and decode when they are needed.
#include "platform/translation/Picture.h"

#include <fcntl.h>
#include <limits.h>
#include <memory>
#include <stdio.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <BitmapStream.h>
#include <File.h>


namespace hosted {

namespace {

// Opens the file each time: thousands of pictures must not keep thousands of files open.
class FileSource : public PixelSource {
public:
	FileSource(const std::string& path, const PictureFacts& facts)
		:
		fPath(path),
		fFacts(facts)
	{
	}

	QImage Decode(const QSize& size) override;

private:
	const std::string fPath;
	const PictureFacts fFacts;
};


class MemorySource : public PixelSource {
public:
	MemorySource(const QByteArray& contents, const PictureFacts& facts)
		:
		fContents(contents),
		fFacts(facts)
	{
	}

	QImage Decode(const QSize& size) override
	{
		QBuffer device(&fContents);
		if (!device.open(QIODevice::ReadOnly))
			return QImage();
		return DecodePicture(&device, fFacts, size);
	}

private:
	QByteArray fContents;
	const PictureFacts fFacts;
};


QImage
FileSource::Decode(const QSize& size)
{
	// Whatever stands under that name by now, opening it must not wait.
	const int file = open(fPath.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
	if (file < 0)
		return QImage();
	struct stat status;
	QFile device;
	if (fstat(file, &status) != 0 || !S_ISREG(status.st_mode)
		|| !device.open(file, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
		close(file);
		return QImage();
	}
	return DecodePicture(&device, fFacts, size);
}


// Where the file of an open descriptor is; empty if it has no path any more.
std::string
path_of(int file)
{
	char link[64];
	char path[PATH_MAX];
	snprintf(link, sizeof(link), "/proc/self/fd/%d", file);
	const ssize_t length = readlink(link, path, sizeof(path));
	if (length <= 0 || length >= ssize_t(sizeof(path)))
		return "";

	const std::string found(path, length);
	struct stat opened;
	struct stat named;
	if (fstat(file, &opened) != 0 || stat(found.c_str(), &named) != 0
		|| opened.st_dev != named.st_dev || opened.st_ino != named.st_ino)
		return "";
	return found;
}

} // namespace


std::unique_ptr<PixelSource>
NewPictureSource(BPositionIO* stream, const PictureFacts& facts)
{
	BFile* const file = dynamic_cast<BFile*>(stream);
	if (file != nullptr) {
		const int descriptor = file->Dup();
		const std::string path = descriptor >= 0 ? path_of(descriptor) : "";
		if (descriptor >= 0)
			close(descriptor);
		if (!path.empty())
			return std::make_unique<FileSource>(path, facts);
	}

	StreamDevice device(stream);
	if (!device.open(QIODevice::ReadOnly))
		return nullptr;
	const QByteArray contents = device.read(device.size());
	if (contents.isEmpty())
		return nullptr;
	return std::make_unique<MemorySource>(contents, facts);
}


BRect
BoundsOf(const PictureFacts& facts)
{
	return BRect(0, 0, static_cast<float>(facts.size.width() - 1),
		static_cast<float>(facts.size.height() - 1));
}


void
BitmapReceiver::Give(BBitmapStream& stream, BBitmap* bitmap)
{
	stream._TakeBitmap(bitmap);
}

} // namespace hosted
