// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The drawing modes, with colors, patterns, smooth edges and pictures.
#include <View.h>

#include <string.h>

#include "tests/platform/interface/Canvas.h"

using test::Canvas;


// What a mode makes of (100, 150, 200) when (30, 200, 255, 50) is painted over it.
static uint32
painted(drawing_mode mode)
{
	Canvas canvas(2, 1);
	canvas.Clear(make_color(100, 150, 200));
	canvas.view->SetDrawingMode(mode);
	canvas.view->SetHighColor(30, 200, 255, 50);
	canvas.view->SetLowColor(1, 2, 3);
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	EXPECT_EQ(canvas.At(1, 0), 0x6496c8u);
	EXPECT_EQ(canvas.Raw(0, 0) >> 24, 255u);
	return canvas.At(0, 0);
}


static uint32
rgb(int red, int green, int blue)
{
	return static_cast<uint32>(red << 16 | green << 8 | blue);
}


TEST(DrawingMode, IgnoresTheColorsAlphaExceptInAlpha)
{
	EXPECT_EQ(painted(B_OP_COPY), rgb(30, 200, 255));
	EXPECT_EQ(painted(B_OP_OVER), rgb(30, 200, 255));
	EXPECT_EQ(painted(B_OP_ERASE), rgb(1, 2, 3));
	EXPECT_EQ(painted(B_OP_INVERT), rgb(155, 105, 55));
	EXPECT_EQ(painted(B_OP_ADD), rgb(130, 255, 255));
	EXPECT_EQ(painted(B_OP_SUBTRACT), rgb(70, 0, 0));
	EXPECT_EQ(painted(B_OP_BLEND), rgb(65, 175, 227));
	// The painted color is the brighter one.
	EXPECT_EQ(painted(B_OP_MIN), rgb(100, 150, 200));
	EXPECT_EQ(painted(B_OP_MAX), rgb(30, 200, 255));
	EXPECT_EQ(painted(B_OP_SELECT), rgb(100, 150, 200));
	EXPECT_EQ(painted(B_OP_ALPHA),
		rgb(100 + (-70 * 50 >> 8), 150 + (50 * 50 >> 8), 200 + (55 * 50 >> 8)));
}


TEST(DrawingMode, SelectSwapsTheTwoColors)
{
	Canvas canvas(3, 1);
	canvas.view->SetHighColor(255, 0, 0);
	canvas.view->SetLowColor(0, 0, 255);
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	canvas.view->FillRect(BRect(1, 0, 1, 0), B_SOLID_LOW);
	canvas.view->SetDrawingMode(B_OP_SELECT);
	canvas.view->FillRect(BRect(0, 0, 2, 0));
	EXPECT_EQ(canvas.At(0, 0), 0x0000ffu);
	EXPECT_EQ(canvas.At(1, 0), 0xff0000u);
	EXPECT_EQ(canvas.At(2, 0), 0xffffffu);
}


TEST(DrawingMode, OverPaintsOnlyThePatternsHighPixels)
{
	Canvas canvas(4, 1);
	canvas.view->SetHighColor(255, 0, 0);
	canvas.view->SetLowColor(0, 0, 255);
	canvas.view->SetDrawingMode(B_OP_OVER);
	canvas.view->FillRect(BRect(0, 0, 3, 0), B_MIXED_COLORS);
	EXPECT_EQ(canvas.At(0, 0), 0xff0000u);
	EXPECT_EQ(canvas.At(1, 0), 0xffffffu);
	canvas.view->SetDrawingMode(B_OP_COPY);
	canvas.view->FillRect(BRect(0, 0, 3, 0), B_MIXED_COLORS);
	EXPECT_EQ(canvas.At(1, 0), 0x0000ffu);
	canvas.view->SetDrawingMode(B_OP_OVER);
	canvas.view->SetLowColor(0, 255, 0);
	canvas.view->FillRect(BRect(0, 0, 3, 0), B_SOLID_LOW);
	EXPECT_EQ(canvas.At(1, 0), 0x0000ffu);
}


TEST(DrawingMode, ConstantAlphaTakesTheHighColors)
{
	Canvas canvas(2, 1);
	canvas.view->SetDrawingMode(B_OP_ALPHA);
	canvas.view->SetBlendingMode(B_CONSTANT_ALPHA, B_ALPHA_OVERLAY);
	canvas.view->SetHighColor(0, 0, 0, 128);
	canvas.view->SetLowColor(0, 0, 0, 255);
	canvas.view->FillRect(BRect(0, 0, 1, 0), B_MIXED_COLORS);
	EXPECT_EQ(canvas.At(0, 0), rgb(127, 127, 127));
	EXPECT_EQ(canvas.At(1, 0), rgb(127, 127, 127));
	source_alpha sourceAlpha;
	alpha_function function;
	canvas.view->GetBlendingMode(&sourceAlpha, &function);
	EXPECT_EQ(sourceAlpha, B_CONSTANT_ALPHA);
	EXPECT_EQ(function, B_ALPHA_OVERLAY);
}


TEST(DrawingMode, CompositeMixesTransparency)
{
	Canvas canvas(1, 1, B_RGBA32);
	memset(canvas.bitmap.Bits(), 0, 4);
	canvas.view->SetDrawingMode(B_OP_ALPHA);
	canvas.view->SetBlendingMode(B_PIXEL_ALPHA, B_ALPHA_COMPOSITE);
	canvas.view->SetHighColor(200, 100, 50, 128);
	canvas.view->FillRect(BRect(0, 0, 0, 0));
	EXPECT_EQ(canvas.Raw(0, 0), 0x80c86432u);
}


TEST(DrawingMode, SmoothEdgesMixWithWhatTheModeGives)
{
	for (drawing_mode mode : {B_OP_COPY, B_OP_OVER, B_OP_BLEND, B_OP_INVERT, B_OP_ALPHA}) {
		Canvas canvas(10, 10);
		canvas.view->SetDrawingMode(mode);
		canvas.view->FillTriangle(BPoint(1, 1), BPoint(8, 1), BPoint(1, 8));
		const int inside = static_cast<int>(canvas.At(3, 3) & 0xff);
		EXPECT_EQ(inside, mode == B_OP_BLEND ? 127 : 0);
		EXPECT_NEAR(static_cast<int>(canvas.At(4, 1) & 0xff), (255 + inside) / 2, 3);
		EXPECT_EQ(canvas.At(8, 8), 0xffffffu);
	}
}


TEST(DrawingMode, SmoothShapesPaintTransparentBitmapsOpaque)
{
	Canvas canvas(10, 10, B_RGBA32);
	memset(canvas.bitmap.Bits(), 0, static_cast<size_t>(canvas.bitmap.BitsLength()));
	canvas.view->SetHighColor(255, 0, 0);
	canvas.view->FillEllipse(BRect(0, 0, 9, 9));
	EXPECT_EQ(canvas.Raw(5, 5), 0xffff0000u);
	EXPECT_EQ(canvas.Raw(0, 0), 0u);
}


// What a mode makes of white when an opaque (40, 80, 120) and a transparent pixel are drawn.
static std::pair<uint32, uint32>
drawn(drawing_mode mode, color_space space)
{
	BBitmap bitmap(BRect(0, 0, 1, 0), space);
	uint32* pixels = static_cast<uint32*>(bitmap.Bits());
	pixels[0] = space == B_RGB32 ? 0x00285078 : 0xff285078;
	pixels[1] = space == B_RGB32 ? 0x00777477 : 0x000a0b0c;
	Canvas canvas(2, 1);
	canvas.view->SetDrawingMode(mode);
	canvas.view->SetHighColor(9, 9, 9);
	canvas.view->SetLowColor(1, 2, 3);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	return {canvas.At(0, 0), canvas.At(1, 0)};
}


using Pair = std::pair<uint32, uint32>;


TEST(DrawingMode, OnlyCopyPaintsTransparentPixels)
{
	EXPECT_EQ(drawn(B_OP_COPY, B_RGBA32), Pair(0x285078, 0x0a0b0c));
	EXPECT_EQ(drawn(B_OP_COPY, B_RGB32), Pair(0x285078, 0x777477));
	for (color_space space : {B_RGB32, B_RGBA32}) {
		EXPECT_EQ(drawn(B_OP_OVER, space), Pair(0x285078, 0xffffff));
		EXPECT_EQ(drawn(B_OP_ERASE, space), Pair(0x010203, 0xffffff));
		EXPECT_EQ(drawn(B_OP_INVERT, space), Pair(0x000000, 0xffffff));
		EXPECT_EQ(drawn(B_OP_SUBTRACT, space), Pair(0xd7af87, 0xffffff));
		EXPECT_EQ(drawn(B_OP_BLEND, space), Pair(0x93a7bb, 0xffffff));
		EXPECT_EQ(drawn(B_OP_MIN, space), Pair(0x285078, 0xffffff));
		EXPECT_EQ(drawn(B_OP_MAX, space), Pair(0xffffff, 0xffffff));
		EXPECT_EQ(drawn(B_OP_ALPHA, space), Pair(0x285078, 0xffffff));
	}
}


TEST(DrawingMode, IndexedPicturesHaveOneTransparentColor)
{
	BBitmap bitmap(BRect(0, 0, 1, 0), B_CMAP8);
	const uint8 indexes[4] = {42, 255, 0, 0};
	bitmap.SetBits(indexes, 4, 0, B_CMAP8);
	Canvas canvas(2, 1);
	canvas.Clear(make_color(0, 255, 0));
	canvas.view->SetDrawingMode(B_OP_OVER);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	EXPECT_EQ(canvas.At(0, 0), 0xff0000u);
	EXPECT_EQ(canvas.At(1, 0), 0x00ff00u);
	canvas.view->SetDrawingMode(B_OP_BLEND);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	EXPECT_EQ(canvas.At(1, 0), 0x00ff00u);
	canvas.view->SetDrawingMode(B_OP_COPY);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	EXPECT_EQ(canvas.At(1, 0), 0xffffffu);
}


TEST(DrawingMode, OverMixesHalfTransparentPixelsUnlessScaled)
{
	BBitmap bitmap(BRect(0, 0, 0, 0), B_RGBA32);
	*static_cast<uint32*>(bitmap.Bits()) = 0x80000000;
	Canvas canvas(4, 1);
	canvas.view->SetDrawingMode(B_OP_OVER);
	canvas.view->DrawBitmap(&bitmap, BPoint(0, 0));
	EXPECT_EQ(canvas.At(0, 0), 0x7f7f7fu);
	canvas.view->DrawBitmap(&bitmap, BRect(2, 0, 3, 0));
	EXPECT_EQ(canvas.At(2, 0), 0x000000u);
}
