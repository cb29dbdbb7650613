// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/MxView.h"

#include <algorithm>
#include <stdlib.h>
#include <string>

#include <Node.h>
#include <Path.h>
#include <String.h>

#include "entryview/MEView.h"
#include "settings/Helpers.h"
#include "settings/Prefs.h"
#include "tests/listview/ListViewFixture.h"
#include "tests/support/Desktop.h"
#include "window/BitmapPath.h"

#include <QColor>
#include <QImage>
#include <QPainter>


/*	The window's contents compared with the kept pictures in tests/listview/pictures.

	Both are made smaller first, so that another version of a font or of the image library makes no
	difference, but a text, a color or a place does.
*/
namespace {

constexpr int kReduction = 4;
// Per channel, of 255.
constexpr int kTolerance = 24;
constexpr double kMaxDifferentPart = 0.004;

struct Song {
	const char* name;
	const char* artist;
	const char* length;
};

const Song kSongs[] = {
	{"Nachtzug/01 Abfahrt.mp3", "Ensemble Nachtzug", "03:07"},
	{"Nachtzug/02 Zwischenhalt.mp3", "Ensemble Nachtzug", "12:05"},
	{"Nachtzug/03 Don't look back.mp3", "Ensemble Nachtzug", "04:35"},
	{"Garden/A song whose name is so long that it never fits into any tile of any size.mp3",
		"The Society of Gardeners, with the Choir and Orchestra of the Botanical Institute",
		"61:12"},
	{"Garden/東京の夜はとても長くて美しいと歌う長い長い題名の歌そして続き.mp3",
		"東京スカパラダイスオーケストラと仲間たちの特別な楽団の演奏", "05:59"},
	{"plain/Übermütiges Ständchen für Gäste.mp3", "Die Köche", "02:30"},
	{"plain/A film.avi", "", ""},
	{"gone/Lost in a move.mp3", "", ""},
	{"Blue/Ὕμνος εἰς τὴν Ἐλευθερίαν.mp3", "Νικόλαος Μάντζαρος", "03:40"},
	{"Blue/Песня о далёкой родине.mp3", "Хор", "04:04"},
	{"Blue/أغنية المساء.mp3", "فرقة النور", "04:44"},
	{"Blue/Finale.mp3", "Ensemble", "00:58"},
};


QImage
cover(int hue)
{
	QImage image(500, 500, QImage::Format_RGB32);
	QPainter painter(&image);
	painter.setRenderHint(QPainter::Antialiasing);
	// Flat colors keep the kept pictures small.
	painter.fillRect(image.rect(), QColor::fromHsv(hue, 190, 110));
	painter.setBrush(QColor::fromHsv((hue + 40) % 360, 150, 225));
	painter.setPen(Qt::NoPen);
	painter.drawEllipse(QPoint(250, 560), 420, 330);
	painter.setBrush(Qt::NoBrush);
	painter.setPen(QPen(QColor(250, 240, 215), 9));
	painter.drawEllipse(QPoint(250, 250), 150, 150);
	return image;
}


class WindowPictures : public ListViewFixture {
protected:
	WindowPictures() { Prefs::getSTPrefs()->window_mtab = false; }

	void AddCover(const std::string& folder, int hue)
	{
		fFolder.MakeFolder(folder);
		const std::string path = fFolder / (folder + "/Folder.png");
		ASSERT_TRUE(cover(hue).save(QString::fromStdString(path), "png"));
		AddAlbum(folder);
		static_cast<BitmapPath*>(fAlbums.LastItem())->fBitmap = GetImage(path.c_str());
	}

	void FillLists()
	{
		AddCover("Nachtzug", 225);
		AddCover("Garden", 120);
		AddAlbum("plain");
		AddCover("Blue", 290);
		for (int number = 0; number < 11; number++)
			AddCover("more" + std::to_string(number), number * 32);
		for (const Song& song : kSongs)
			_AddSong(song);
		fTitles.AddItem(new BPath("/music/gone/Lost in a move.mp3"), 7);
		delete static_cast<BPath*>(fTitles.RemoveItem(8));
	}

	// Shows the view with one title playing for a third of its time and another one next.
	void Show(float right, float bottom, int32 linkSize)
	{
		FillLists();
		Prefs::getSTPrefs()->LINK_SIZE = linkSize;
		MakeView(right, bottom);
		fView->CenterMediaFile(4, true, 0);
		MEView::IsNext = 5;
		_Settle();
	}

	void Compare(const std::string& name)
	{
		QImage picture;
		// The pulse that draws the time bar comes after the update.
		fWindow->Lock();
		if (fView->playEnd != 0)
			sNow = fView->playEnd - fView->playLength * 2 / 3;
		fView->Pulse();
		fWindow->Unlock();
		test::Settle(fWindow);
		picture = test::PictureOf(fWindow).convertToFormat(QImage::Format_RGB32);
		fWindow->Lock();

		const QString kept = QString::fromStdString(
			std::string(VINYLOH_SOURCES "/tests/listview/pictures/") + name + ".png");
		if (getenv("VINYLOH_KEEP_PICTURES") != nullptr) {
			ASSERT_TRUE(picture.save(kept, "png", 0));
			return;
		}
		const QImage expected(kept);
		ASSERT_EQ(picture.size(), expected.size()) << name;
		const double part = _DifferentPart(picture, expected);
		EXPECT_LT(part, kMaxDifferentPart) << name;
		if (part >= kMaxDifferentPart)
			picture.save(QString::fromStdString("different-" + name + ".png"));
	}

	void _Settle()
	{
		fWindow->Unlock();
		fWindow->Show();
		test::Settle(fWindow);
	}

	// Of the reduced pictures.
	static double _DifferentPart(const QImage& one, const QImage& other)
	{
		const QSize size(one.width() / kReduction, one.height() / kReduction);
		const QImage first = one.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
		const QImage second = other.convertToFormat(one.format())
								  .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
		int different = 0;
		for (int y = 0; y < size.height(); y++) {
			for (int x = 0; x < size.width(); x++) {
				const QRgb a = first.pixel(x, y);
				const QRgb b = second.pixel(x, y);
				const int distance = std::max(
					{abs(qRed(a) - qRed(b)), abs(qGreen(a) - qGreen(b)), abs(qBlue(a) - qBlue(b))});
				different += distance > kTolerance ? 1 : 0;
			}
		}
		return static_cast<double>(different) / (size.width() * size.height());
	}

private:
	void _AddSong(const Song& song)
	{
		const std::string path = AddTitle(song.name, song.length);
		const BString artist(song.artist);
		BNode(path.c_str()).WriteAttrString("Audio:Artist", &artist);
		const int32 track = fTitles.CountItems();
		BNode(path.c_str()).WriteAttr("Audio:Track", B_INT32_TYPE, 0, &track, sizeof(track));
	}
};

} // namespace


TEST_F(WindowPictures, Smallest)
{
	Show(600, 382, 1);
	Compare("600x382");
}


TEST_F(WindowPictures, WithoutRoomForCovers)
{
	Show(700, 400, 1);
	Compare("700x400");
}


TEST_F(WindowPictures, Ordinary)
{
	Show(1000, 700, 1);
	Compare("1000x700");
}


TEST_F(WindowPictures, Largest)
{
	Show(1240, 1024, 1);
	Compare("1240x1024");
}


TEST_F(WindowPictures, EachTileSize)
{
	for (const int32 size : {2, 3, 4, 5}) {
		Show(1000, 700, size);
		Compare("tiles-" + std::to_string(size));
		CloseView();
		EmptyLists();
	}
}


TEST_F(WindowPictures, Album)
{
	FillLists();
	MxView::SingleAlbum = true;
	MEView::SepListSelected = true;
	MakeView(1000, 700);
	fView->CenterMediaFile(2, true, 0);
	fView->listChanged = true;
	_Settle();
	Compare("album");
}


TEST_F(WindowPictures, EmptyList)
{
	MakeView(1000, 700);
	_Settle();
	Compare("empty");
}


// The comparison itself.
TEST_F(WindowPictures, DifferencesCount)
{
	QImage picture(400, 400, QImage::Format_RGB32);
	picture.fill(QColor(220, 220, 220));
	QImage other = picture;
	EXPECT_EQ(_DifferentPart(picture, other), 0);
	for (int y = 100; y < 140; y++) {
		for (int x = 100; x < 140; x++)
			other.setPixel(x, y, qRgb(20, 20, 20));
	}
	EXPECT_GE(_DifferentPart(picture, other), 0.01);
}
