// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Measures and draws text in a process that never opens a display, and prints what it gets.
#include <stdio.h>

#include <Bitmap.h>
#include <Font.h>
#include <String.h>
#include <View.h>


int
main()
{
	BFont font;
	font_height height;
	font.GetHeight(&height);
	BString text("Album");
	font.TruncateString(&text, B_TRUNCATE_END, 10);
	printf("%g %g %s\n", font.StringWidth("Album"), height.ascent, text.String());

	BBitmap bitmap(BRect(0, 0, 19, 19), B_BITMAP_ACCEPTS_VIEWS | B_BITMAP_CLEAR_TO_WHITE, B_RGB32);
	BView* view = new BView(bitmap.Bounds(), "view", B_FOLLOW_NONE, B_WILL_DRAW);
	bitmap.Lock();
	bitmap.AddChild(view);
	view->DrawString("Album", BPoint(0, 15));
	view->FillEllipse(BRect(4, 4, 11, 11));
	bitmap.Unlock();
	const uint32* pixels = static_cast<const uint32*>(bitmap.Bits());
	printf("%06x %06x\n", pixels[13 * 20 + 1] & 0xffffff, pixels[8 * 20 + 8] & 0xffffff);
	return 0;
}
