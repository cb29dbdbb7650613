// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <stdlib.h>
#include <unistd.h>
#include <vector>

#include <QImage>
#include <QWidget>

#include <Bitmap.h>
#include <View.h>
#include <Window.h>

#include "tests/support/Desktop.h"
#include "tests/support/Wait.h"


namespace {

constexpr int kCoverSide = 80;

// A cover of 80 x 80 pixels in a place of 40 x 40, a line, a round shape and a text.
class FineView : public BView {
public:
	explicit FineView(BRect frame)
		:
		BView(frame, "fine", B_FOLLOW_ALL, B_WILL_DRAW),
		fCover(BRect(0, 0, kCoverSide - 1, kCoverSide - 1), B_RGB32)
	{
		std::vector<uint32> pixels;
		for (int index = 0; index < kCoverSide * kCoverSide; index++) {
			const bool isWhite = (index / kCoverSide + index) % 2 == 0;
			pixels.push_back(isWhite ? 0xffffffff : 0xff000000);
		}
		fCover.SetBits(pixels.data(), static_cast<int32>(pixels.size() * 4), 0, B_RGB32);
	}

	void Draw(BRect) override
	{
		DrawBitmapAsync(&fCover, fCover.Bounds(), BRect(10, 10, 49, 49), B_FILTER_BITMAP_BILINEAR);
		SetHighColor(200, 0, 0);
		FillRect(BRect(60, 10, 69, 19));
		StrokeLine(BPoint(60, 30), BPoint(80, 30));
		FillEllipse(BRect(60, 40, 79, 59));
		SetDrawingMode(B_OP_BLEND);
		FillEllipse(BRect(100, 40, 119, 59));
		SetDrawingMode(B_OP_OVER);
		DrawString("Ü", BPoint(100, 30));
	}

private:
	BBitmap fCover;
};


// Colored dots along a row of dots.
int
count_reddish(const QImage& picture, int y, int left, int right)
{
	int count = 0;
	for (int x = left; x <= right; x++) {
		const QRgb dot = picture.pixel(x, y);
		if (qRed(dot) > qGreen(dot) + 20)
			count++;
	}
	return count;
}


// Returns 0 or the number of the check that failed.
int
check_picture(const QImage& picture)
{
	if (picture.size() != QSize(400, 200))
		return 2;
	// Each pixel of the cover is one dot.
	for (int y = 20; y < 100; y++) {
		for (int x = 20; x < 100; x++) {
			if (picture.pixel(x, y) != ((x + y) % 2 == 0 ? qRgb(255, 255, 255) : qRgb(0, 0, 0)))
				return 3;
		}
	}
	// A pixel is two dots wide and high.
	if (count_reddish(picture, 30, 0, 399) != 20 || count_reddish(picture, 19, 110, 150) != 0
		|| count_reddish(picture, 20, 0, 399) != 20 || count_reddish(picture, 40, 110, 150) != 0)
		return 4;
	if (count_reddish(picture, 60, 110, 180) != 42 || count_reddish(picture, 61, 110, 180) != 42
		|| count_reddish(picture, 62, 110, 180) != 0)
		return 5;
	// A row of dots more of a circle is a little wider.
	if (count_reddish(picture, 81, 110, 170) <= count_reddish(picture, 80, 110, 170))
		return 6;
	if (count_reddish(picture, 81, 190, 250) <= count_reddish(picture, 80, 190, 250))
		return 7;
	return count_reddish(picture, 50, 200, 230) > 0 ? 0 : 8;
}


int
run()
{
	setenv("QT_SCALE_FACTOR", "2", 1);
	test::Application();
	BWindow* window = new BWindow(BRect(60, 70, 259, 169), "fine", B_TITLED_WINDOW, 0);
	window->AddChild(new FineView(window->Bounds()));
	window->Show();
	// The shape in another mode is painted last but the text.
	const bool isPainted = test::WaitFor([window]() {
		const QImage picture = test::PictureOf(window);
		return picture.width() > 220 && count_reddish(picture, 100, 190, 250) > 0;
	});
	if (!isPainted)
		return 1;
	const int failed = check_picture(test::PictureOf(window));
	if (failed != 0)
		return failed;
	// The same arrives on the screen.
	QImage shown;
	test::OnWidget(window, [&shown](QWidget& widget) { shown = widget.grab().toImage(); });
	return check_picture(shown) == 0 ? 0 : 9;
}

} // namespace


// In a process of its own: how fine the screen is stays for good.
TEST(FineScreenDeathTest, ShowsItsDots)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	EXPECT_EXIT(_exit(run()), testing::ExitedWithCode(0), "");
}
