// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The extensions of files, and the names of types that differ between the systems.
#include "platform/desktop/FileTypeTables.h"

#include <algorithm>
#include <array>

#include "platform/desktop/FileTypes.h"


namespace hosted {

namespace {

constexpr const char* kPlaylist = "text/x-playlist";
constexpr const char* kSource = "text/x-source-code";

// In the order of the extensions, which are looked up by halving.
constexpr ExtensionType kExtensions[] = {
	{"3g2", "video/3gpp2", LookInto::kMpeg4},
	{"3gp", "video/3gpp", LookInto::kMpeg4},
	{"aac", "audio/aac"},
	{"ac3", "audio/ac3"},
	{"aif", "audio/x-aiff"},
	{"aifc", "audio/x-aiff"},
	{"aiff", "audio/x-aiff"},
	{"amr", "audio/amr"},
	{"ape", "audio/x-ape"},
	{"asf", "video/x-asf"},
	{"au", "audio/basic"},
	{"avi", "video/x-msvideo"},
	{"bmp", "image/bmp"},
	{"c", kSource},
	{"caf", "audio/x-caf"},
	{"cpp", kSource},
	{"css", "text/css"},
	{"dff", "audio/x-dff"},
	{"divx", "video/x-msvideo"},
	{"dsf", "audio/x-dsf"},
	{"dts", "audio/vnd.dts"},
	{"dv", "video/dv"},
	{"flac", "audio/x-flac"},
	{"flv", "video/x-flv"},
	{"gif", "image/gif"},
	{"h", kSource},
	{"hpkg", "application/x-vnd.haiku-package"},
	{"htm", "text/html"},
	{"html", "text/html"},
	{"ico", "image/x-icon"},
	{"jfif", "image/jpeg"},
	{"jpe", "image/jpeg"},
	{"jpeg", "image/jpeg"},
	{"jpg", "image/jpeg"},
	{"log", "text/plain"},
	{"m1v", "video/mpeg"},
	{"m2ts", "video/mp2t"},
	{"m2v", "video/mpeg"},
	{"m3u", kPlaylist},
	{"m3u8", kPlaylist},
	{"m4a", "audio/mp4"},
	{"m4b", "audio/mp4"},
	{"m4v", "video/mp4"},
	{"mid", "audio/midi"},
	{"midi", "audio/midi"},
	{"mka", "audio/x-matroska"},
	{"mkv", "video/x-matroska", LookInto::kMatroska},
	{"mov", "video/quicktime"},
	{"mp1", "audio/mpeg"},
	{"mp2", "audio/mpeg"},
	{"mp3", "audio/mpeg"},
	{"mp4", "video/mp4", LookInto::kMpeg4},
	{"mpc", "audio/x-musepack"},
	{"mpe", "video/mpeg"},
	{"mpeg", "video/mpeg"},
	{"mpg", "video/mpeg"},
	{"mpga", "audio/mpeg"},
	{"mts", "video/mp2t"},
	{"nfo", "text/plain"},
	{"oga", "audio/ogg"},
	{"ogg", "audio/ogg", LookInto::kOgg},
	{"ogm", "video/ogg"},
	{"ogv", "video/ogg"},
	{"ogx", "video/ogg", LookInto::kOgg},
	{"opus", "audio/ogg"},
	{"pdf", "application/pdf"},
	{"pls", "audio/x-scpls"},
	{"png", "image/png"},
	{"qt", "video/quicktime"},
	{"ra", "audio/vnd.rn-realaudio"},
	{"rm", "video/vnd.rn-realvideo"},
	{"rmvb", "video/vnd.rn-realvideo"},
	{"s3m", "audio/x-s3m"},
	{"snd", "audio/basic"},
	{"spx", "audio/ogg"},
	{"svg", "image/svg+xml"},
	{"tga", "image/x-targa"},
	{"tif", "image/tiff"},
	{"tiff", "image/tiff"},
	{"ts", "video/mp2t", LookInto::kTransportStream},
	{"tta", "audio/x-tta"},
	{"txt", "text/plain"},
	{"vob", "video/mpeg"},
	{"wav", "audio/x-wav"},
	{"wave", "audio/x-wav"},
	{"weba", "audio/webm"},
	{"webm", "video/webm", LookInto::kMatroska},
	{"webp", "image/webp"},
	{"wma", "audio/x-ms-wma"},
	{"wmv", "video/x-ms-wmv"},
	{"wv", "audio/x-wavpack"},
	{"xm", "audio/x-xm"},
	{"xml", "text/xml"},
	{"zip", "application/zip"},
};

struct NamePair {
	std::string_view desktop;
	std::string_view haiku;
};

// Where several names of one side belong to one of the other, the first is the answer.
constexpr NamePair kNames[] = {
	{"application/vnd.ms-asf", "video/x-asf"},
	{"video/x-ms-asf", "video/x-asf"},
	{"audio/x-vorbis+ogg", "audio/ogg"},
	{"audio/x-opus+ogg", "audio/ogg"},
	{"audio/x-speex+ogg", "audio/ogg"},
	{"audio/x-flac+ogg", "audio/ogg"},
	{"audio/x-oggflac", "audio/ogg"},
	{"audio/x-speex", "audio/ogg"},
	{"video/x-theora+ogg", "video/ogg"},
	{"video/x-ogm+ogg", "video/ogg"},
	{"audio/flac", "audio/x-flac"},
	{"audio/x-wav", "audio/x-wav"},
	{"audio/vnd.wave", "audio/x-wav"},
	{"audio/wav", "audio/x-wav"},
	{"audio/mpeg", "audio/mpeg"},
	{"audio/mpeg", "audio/x-mpeg"},
	{"audio/x-mpeg", "audio/mpeg"},
	{"audio/x-mp3", "audio/mpeg"},
	{"audio/mp3", "audio/mpeg"},
	{"audio/mp2", "audio/mpeg"},
	{"audio/x-mp2", "audio/mpeg"},
	{"audio/mp4", "audio/mp4"},
	{"audio/x-m4a", "audio/mp4"},
	{"audio/m4a", "audio/mp4"},
	{"audio/x-m4b", "audio/mp4"},
	{"video/vnd.avi", "video/x-msvideo"},
	{"video/x-msvideo", "video/x-msvideo"},
	{"video/avi", "video/x-msvideo"},
	{"application/vnd.rn-realmedia", "video/vnd.rn-realvideo"},
	{"application/x-matroska", "video/x-matroska"},
	{"audio/x-mpegurl", "text/x-playlist"},
	{"application/vnd.apple.mpegurl", "text/x-playlist"},
	{"audio/mpegurl", "text/x-playlist"},
	{"application/x-mpegurl", "text/x-playlist"},
	{"inode/directory", "application/x-vnd.Be-directory"},
	{"inode/mount-point", "application/x-vnd.Be-directory"},
	{"inode/symlink", "application/x-vnd.Be-symlink"},
	{"application/x-executable", "application/x-vnd.Be-elfexecutable"},
	{"application/x-pie-executable", "application/x-vnd.Be-elfexecutable"},
	{"application/x-zerosize", "application/octet-stream"},
	{"image/x-tga", "image/x-targa"},
	{"image/vnd.microsoft.icon", "image/x-icon"},
	{"text/x-c++src", kSource},
	{"text/x-csrc", kSource},
	{"text/x-c++hdr", kSource},
	{"text/x-chdr", kSource},
	{"application/xml", "text/xml"},
};

} // namespace


const ExtensionType*
FindExtension(std::string_view extension)
{
	const ExtensionType* const found = std::lower_bound(std::begin(kExtensions),
		std::end(kExtensions), extension, [](const ExtensionType& entry, std::string_view wanted) {
			return entry.extension < wanted;
		});
	if (found == std::end(kExtensions) || found->extension != extension)
		return nullptr;
	return found;
}


std::string
HaikuTypeName(std::string_view desktopType)
{
	for (const NamePair& pair : kNames) {
		if (pair.desktop == desktopType)
			return std::string(pair.haiku);
	}
	return std::string(desktopType);
}


std::string
DesktopTypeName(std::string_view haikuType)
{
	for (const NamePair& pair : kNames) {
		if (pair.haiku == haikuType)
			return std::string(pair.desktop);
	}
	return std::string(haikuType);
}

} // namespace hosted
