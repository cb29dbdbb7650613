// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/screen/Drops.h"

#include <array>
#include <strings.h>
#include <unistd.h>

#include <QByteArray>
#include <QColor>
#include <QMimeData>

#include <AppDefs.h>
#include <Entry.h>
#include <GraphicsDefs.h>
#include <Message.h>
#include <TypeConstants.h>


namespace hosted {

namespace {

constexpr QLatin1String kUriList("text/uri-list");


bool
is_this_computer(const QByteArray& host)
{
	if (host.isEmpty() || host.compare("localhost", Qt::CaseInsensitive) == 0)
		return true;
	std::array<char, 256> name = {};
	if (gethostname(name.data(), name.size() - 1) != 0)
		return false;
	return host.compare(name.data(), Qt::CaseInsensitive) == 0;
}


// The path of a file URL, empty for any other.
std::string
local_path(const QByteArray& url)
{
	constexpr int kSchemeLength = 5;
	if (strncasecmp(url.constData(), "file:", kSchemeLength) != 0)
		return std::string();
	QByteArray path = url.mid(kSchemeLength);
	if (path.startsWith("//")) {
		const qsizetype slash = path.indexOf('/', 2);
		if (slash < 0 || !is_this_computer(path.mid(2, slash - 2)))
			return std::string();
		path = path.mid(slash);
	}
	path = QByteArray::fromPercentEncoding(path);
	if (!path.startsWith('/') || path.contains('\0'))
		return std::string();
	while (path.size() > 1 && path.endsWith('/'))
		path.chop(1);
	return std::string(path.constData(), path.size());
}

} // namespace


std::vector<std::string>
LocalPaths(const QByteArray& uriList)
{
	std::vector<std::string> paths;
	for (QByteArray line : uriList.split('\n')) {
		while (line.endsWith('\r') || line.endsWith('\0'))
			line.chop(1);
		if (line.startsWith('#'))
			continue;
		std::string path = local_path(line);
		if (!path.empty())
			paths.push_back(std::move(path));
	}
	return paths;
}


bool
CanTakeDrop(const QMimeData& data)
{
	return data.hasColor() || !LocalPaths(data.data(kUriList)).empty();
}


bool
MessageForDrop(const QMimeData& data, BMessage& message)
{
	const std::vector<std::string> paths = LocalPaths(data.data(kUriList));
	for (const std::string& path : paths) {
		// Fails only where the folder does not exist either.
		entry_ref ref;
		if (get_ref_for_path(path.c_str(), &ref) == B_OK)
			message.AddRef("refs", &ref);
	}
	if (message.HasRef("refs")) {
		message.what = B_SIMPLE_DATA;
		return true;
	}
	const QColor color = qvariant_cast<QColor>(data.colorData());
	if (!color.isValid())
		return false;
	message.what = B_PASTE;
	const rgb_color dropped = {static_cast<uint8>(color.red()), static_cast<uint8>(color.green()),
		static_cast<uint8>(color.blue()), static_cast<uint8>(color.alpha())};
	message.AddData("RGBColor", B_RGB_COLOR_TYPE, &dropped, sizeof(dropped));
	return true;
}

} // namespace hosted
