// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <TranslatorRoster.h>

#include <array>
#include <ctype.h>
#include <memory>
#include <mutex>
#include <stdio.h>
#include <string.h>
#include <string>
#include <utility>

#include <QImage>

#include <Bitmap.h>
#include <BitmapStream.h>
#include <DataIO.h>
#include <TranslatorFormats.h>

#include "platform/translation/Picture.h"
#include "platform/translation/StreamHeader.h"

using hosted::PictureFacts;


namespace {

std::mutex sDefaultLock;
BTranslatorRoster* sDefault = nullptr;

// How the formats are called where Qt's name is no good.
struct FormatName {
	const char* qtName;
	uint32 code;
	const char* type;
};

constexpr std::array<FormatName, 8> kFormats = {{
	{"jpeg", B_JPEG_FORMAT, "image/jpeg"},
	{"png", B_PNG_FORMAT, "image/png"},
	{"gif", B_GIF_FORMAT, "image/gif"},
	{"bmp", 'BMP ', "image/bmp"},
	{"tiff", 'TIFF', "image/tiff"},
	{"webp", 'WebP', "image/webp"},
	{"tga", 'TGA ', "image/x-targa"},
	{"ico", 'ICO ', "image/x-icon"},
}};


bool
read_facts(BPositionIO* source, PictureFacts* facts)
{
	hosted::StreamDevice device(source);
	return device.open(QIODevice::ReadOnly) && hosted::ReadPictureFacts(&device, facts);
}


bool
is_stream_form(BPositionIO* source)
{
	uint8 bytes[hosted::kStreamHeaderSize];
	TranslatorBitmap header;
	return source->ReadAt(0, bytes, sizeof(bytes)) == ssize_t(sizeof(bytes))
		&& hosted::ReadStreamHeader(bytes, &header);
}


void
describe(const char* name, uint32 code, const char* type, translator_info* info)
{
	*info = translator_info();
	info->type = code;
	info->group = B_TRANSLATOR_BITMAP;
	info->quality = 0.5f;
	info->capability = 0.5f;
	snprintf(info->name, sizeof(info->name), "%s", name);
	snprintf(info->MIME, sizeof(info->MIME), "%s", type);
}


void
describe_picture(const PictureFacts& facts, translator_info* info)
{
	const std::string qtName = facts.format == "jpg" ? "jpeg" : facts.format.toStdString();
	for (const FormatName& format : kFormats) {
		if (qtName == format.qtName) {
			describe((qtName + " image").c_str(), format.code, format.type, info);
			return;
		}
	}
	uint32 code = 0;
	for (size_t i = 0; i < 4; i++)
		code = (code << 8) | (i < qtName.size() ? uint8(toupper(uint8(qtName[i]))) : ' ');
	describe((qtName + " image").c_str(), code, ("image/x-" + qtName).c_str(), info);
}


status_t
copy_all(BPositionIO* source, BPositionIO* destination)
{
	constexpr size_t kBlock = 65536;
	const std::unique_ptr<char[]> buffer(new char[kBlock]);
	off_t offset = 0;
	ssize_t count;
	do {
		count = source->ReadAt(offset, buffer.get(), kBlock);
		if (count < 0)
			return static_cast<status_t>(count);
		const status_t status = destination->WriteExactly(buffer.get(), count);
		if (status != B_OK)
			return status;
		offset += count;
	} while (count > 0);
	return B_OK;
}


// Qt's pixels lie in memory as the platform's do.
status_t
write_stream_form(hosted::PixelSource& source, const PictureFacts& facts, BPositionIO* destination)
{
	const QImage image = source.Decode(QSize());
	if (image.isNull())
		return B_ILLEGAL_DATA;
	TranslatorBitmap header;
	header.magic = B_TRANSLATOR_BITMAP;
	header.bounds = hosted::BoundsOf(facts);
	header.rowBytes = static_cast<uint32>(image.bytesPerLine());
	header.colors = facts.space;
	header.dataSize = static_cast<uint32>(image.sizeInBytes());
	uint8 bytes[hosted::kStreamHeaderSize];
	hosted::WriteStreamHeader(header, bytes);
	const status_t status = destination->WriteExactly(bytes, sizeof(bytes));
	if (status != B_OK)
		return status;
	return destination->WriteExactly(image.constBits(), static_cast<size_t>(image.sizeInBytes()));
}

} // namespace


BTranslatorRoster::BTranslatorRoster() = default;


BTranslatorRoster::~BTranslatorRoster()
{
	const std::lock_guard<std::mutex> locked(sDefaultLock);
	if (sDefault == this)
		sDefault = nullptr;
}


BTranslatorRoster*
BTranslatorRoster::Default()
{
	const std::lock_guard<std::mutex> locked(sDefaultLock);
	if (sDefault == nullptr)
		sDefault = new BTranslatorRoster;
	return sDefault;
}


status_t
BTranslatorRoster::Identify(BPositionIO* source, BMessage*, translator_info* info, uint32,
	const char*, uint32 wantType)
{
	if (source == nullptr || info == nullptr)
		return B_BAD_VALUE;
	if (wantType != B_TRANSLATOR_ANY_TYPE && wantType != B_TRANSLATOR_BITMAP)
		return B_NO_TRANSLATOR;

	source->Seek(0, SEEK_SET);
	PictureFacts facts;
	if (is_stream_form(source))
		describe("bitmap stream", B_TRANSLATOR_BITMAP, "image/x-be-bitmap", info);
	else if (read_facts(source, &facts))
		describe_picture(facts, info);
	else
		return B_NO_TRANSLATOR;
	return B_OK;
}


status_t
BTranslatorRoster::Translate(BPositionIO* source, const translator_info* info, BMessage*,
	BPositionIO* destination, uint32 wantOutType, uint32, const char*)
{
	if (source == nullptr || destination == nullptr)
		return B_BAD_VALUE;
	if (wantOutType != B_TRANSLATOR_ANY_TYPE && wantOutType != B_TRANSLATOR_BITMAP)
		return B_NO_TRANSLATOR;
	if (info != nullptr && info->group != B_TRANSLATOR_BITMAP)
		return B_NO_TRANSLATOR;

	source->Seek(0, SEEK_SET);
	if (is_stream_form(source))
		return copy_all(source, destination);
	PictureFacts facts;
	if (!read_facts(source, &facts))
		return B_NO_TRANSLATOR;
	std::unique_ptr<hosted::PixelSource> pixels = hosted::NewPictureSource(source, facts);
	if (pixels == nullptr)
		return B_IO_ERROR;

	BBitmapStream* const stream = dynamic_cast<BBitmapStream*>(destination);
	if (stream == nullptr)
		return write_stream_form(*pixels, facts, destination);
	hosted::BitmapReceiver::Give(*stream,
		hosted::NewLazyBitmap(hosted::BoundsOf(facts), facts.space, std::move(pixels)));
	return B_OK;
}
