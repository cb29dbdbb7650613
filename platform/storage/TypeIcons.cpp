// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Icons for types of files.
#include "platform/storage/TypeIcons.h"

#include <vector>

#include <gio/gio.h>

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

#include <Bitmap.h>

#include "platform/desktop/FileTypes.h"
#include "platform/screen/DisplayThread.h"


namespace hosted {

namespace {

// From the special name to the general one.
std::vector<std::string>
icon_names(const std::string& type)
{
	std::vector<std::string> names;
	GIcon* const icon = g_content_type_get_icon(DesktopTypeName(type).c_str());
	if (icon != nullptr && G_IS_THEMED_ICON(icon)) {
		const char* const* name = g_themed_icon_get_names(G_THEMED_ICON(icon));
		for (; name != nullptr && *name != nullptr; name++)
			names.emplace_back(*name);
	}
	if (icon != nullptr)
		g_object_unref(icon);
	return names;
}


QImage
icon_of_theme(const std::string& type, int side)
{
	QImage image;
	const std::vector<std::string> names = icon_names(type);
	DisplayThread::Call([&] {
		for (const std::string& name : names) {
			const QIcon icon = QIcon::fromTheme(QString::fromStdString(name));
			if (icon.isNull())
				continue;
			image = icon.pixmap(side, side).toImage().convertToFormat(QImage::Format_ARGB32);
			if (!image.isNull())
				return;
		}
	});
	if (!image.isNull() && image.size() != QSize(side, side))
		image = image.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
	return image;
}


// All of these are drawn on a field of 32 by 32.
void
draw_folder(QPainter& painter)
{
	painter.setBrush(QColor(255, 203, 0));
	painter.drawPolygon(
		QPolygonF({{2.5, 27.5}, {2.5, 6.5}, {12.5, 6.5}, {15.5, 9.5}, {29.5, 9.5}, {29.5, 27.5}}));
	painter.drawLine(QPointF(2.5, 12.5), QPointF(29.5, 12.5));
}


void
draw_program(QPainter& painter)
{
	painter.setBrush(QColor(120, 160, 220));
	painter.drawPolygon(
		QPolygonF({{16, 2.5}, {29.5, 9.5}, {29.5, 22.5}, {16, 29.5}, {2.5, 22.5}, {2.5, 9.5}}));
	painter.drawPolyline(QPolygonF({{2.5, 9.5}, {16, 16}, {29.5, 9.5}}));
	painter.drawLine(QPointF(16, 16), QPointF(16, 29.5));
}


void
draw_sheet(QPainter& painter)
{
	painter.setBrush(Qt::white);
	painter.drawPolygon(
		QPolygonF({{5.5, 2.5}, {20.5, 2.5}, {26.5, 8.5}, {26.5, 29.5}, {5.5, 29.5}}));
	painter.drawPolyline(QPolygonF({{20.5, 2.5}, {20.5, 8.5}, {26.5, 8.5}}));
}


void
draw_note(QPainter& painter)
{
	painter.setBrush(QColor(70, 100, 190));
	painter.drawEllipse(QRectF(9, 21, 6, 5));
	painter.drawEllipse(QRectF(17, 19, 6, 5));
	painter.drawPolygon(QPolygonF({{14, 11.5}, {22, 9.5}, {22, 12}, {14, 14}}));
	painter.drawLine(QPointF(14.5, 12), QPointF(14.5, 23));
	painter.drawLine(QPointF(22.5, 10), QPointF(22.5, 21));
}


void
draw_film(QPainter& painter)
{
	painter.setBrush(QColor(90, 90, 90));
	painter.drawRect(QRectF(8.5, 11.5, 15, 13));
	painter.setBrush(QColor(190, 70, 70));
	painter.drawPolygon(QPolygonF({{13, 14}, {20, 18}, {13, 22}}));
}


void
draw_picture(QPainter& painter)
{
	painter.setBrush(QColor(150, 200, 240));
	painter.drawRect(QRectF(8.5, 11.5, 15, 13));
	painter.setBrush(QColor(80, 150, 80));
	painter.drawPolygon(QPolygonF({{8.5, 24.5}, {14, 16}, {17, 20}, {19, 18}, {23.5, 24.5}}));
}


void
draw_lines(QPainter& painter)
{
	for (const qreal y : {12.5, 16.5, 20.5, 24.5})
		painter.drawLine(QPointF(9, y), QPointF(23, y));
}


QImage
drawn_icon(const std::string& type, int side)
{
	const std::string supertype = type.substr(0, type.find('/'));
	if (supertype != "application" && supertype != "audio" && supertype != "video"
		&& supertype != "image" && supertype != "text")
		return QImage();

	QImage image(side, side, QImage::Format_ARGB32);
	image.fill(0);
	QPainter painter(&image);
	painter.setRenderHint(QPainter::Antialiasing);
	painter.scale(side / 32.0, side / 32.0);
	painter.setPen(QPen(QColor(60, 60, 60), 1));
	if (type == "application/x-vnd.Be-directory" || type == "application/x-vnd.Be-volume") {
		draw_folder(painter);
		return image;
	}
	if (type == B_APP_MIME_TYPE) {
		draw_program(painter);
		return image;
	}
	draw_sheet(painter);
	if (supertype == "audio")
		draw_note(painter);
	else if (supertype == "video")
		draw_film(painter);
	else if (supertype == "image")
		draw_picture(painter);
	else if (supertype == "text")
		draw_lines(painter);
	return image;
}

} // namespace


status_t
CheckIconBitmap(const BBitmap* bitmap, icon_size size)
{
	if (bitmap == nullptr || bitmap->InitCheck() != B_OK
		|| (size != B_LARGE_ICON && size != B_MINI_ICON))
		return B_BAD_VALUE;
	const float last = static_cast<float>(size - 1);
	const color_space space = bitmap->ColorSpace();
	return bitmap->Bounds() == BRect(0, 0, last, last)
			&& (space == B_CMAP8 || space == B_RGB32 || space == B_RGBA32)
		? B_OK
		: B_BAD_VALUE;
}


QImage
IconOfType(const std::string& type, icon_size size)
{
	const QImage image = icon_of_theme(type, size);
	return image.isNull() ? drawn_icon(type, size) : image;
}


status_t
PutIconOfType(const std::string& type, icon_size size, BBitmap* bitmap)
{
	const QImage image = IconOfType(type, size);
	if (image.isNull())
		return B_ERROR;
	return bitmap->ImportBits(image.constBits(), static_cast<int32>(image.sizeInBytes()),
		static_cast<int32>(image.bytesPerLine()), 0, B_RGBA32);
}

} // namespace hosted
