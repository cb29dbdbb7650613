// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef VIEW_H
#define VIEW_H

#include <memory>

#include <Font.h>
#include <Handler.h>
#include <InterfaceDefs.h>
#include <Rect.h>

class BBitmap;
class BMessage;
class BRegion;
class BString;
class BWindow;

namespace hosted {
struct ViewData;
}


enum {
	B_PRIMARY_MOUSE_BUTTON = 0x01,
	B_SECONDARY_MOUSE_BUTTON = 0x02,
	B_TERTIARY_MOUSE_BUTTON = 0x04
};

enum { B_ENTERED_VIEW = 0, B_INSIDE_VIEW, B_EXITED_VIEW, B_OUTSIDE_VIEW };

enum { B_POINTER_EVENTS = 0x00000001, B_KEYBOARD_EVENTS = 0x00000002 };

enum { B_LOCK_WINDOW_FOCUS = 0x00000001 };

enum {
	B_FONT_FAMILY_AND_STYLE = 0x00000001,
	B_FONT_SIZE = 0x00000002,
	B_FONT_SHEAR = 0x00000004,
	B_FONT_ROTATION = 0x00000008,
	B_FONT_SPACING = 0x00000010,
	B_FONT_ENCODING = 0x00000020,
	B_FONT_FACE = 0x00000040,
	B_FONT_FLAGS = 0x00000080,
	B_FONT_FALSE_BOLD_WIDTH = 0x00000100,
	B_FONT_ALL = 0x000001ff
};

const uint32 B_FULL_UPDATE_ON_RESIZE = 0x80000000UL;
const uint32 B_WILL_DRAW = 0x20000000UL;
const uint32 B_PULSE_NEEDED = 0x10000000UL;
const uint32 B_NAVIGABLE_JUMP = 0x08000000UL;
const uint32 B_FRAME_EVENTS = 0x04000000UL;
const uint32 B_NAVIGABLE = 0x02000000UL;
const uint32 B_SUBPIXEL_PRECISE = 0x01000000UL;
const uint32 B_DRAW_ON_CHILDREN = 0x00800000UL;
const uint32 B_INPUT_METHOD_AWARE = 0x00400000UL;
const uint32 B_SUPPORTS_LAYOUT = 0x00100000UL;
const uint32 B_TRANSPARENT_BACKGROUND = 0x00040000UL;

// How a frame follows its parent's: a digit each for top, left, bottom and right, which says the
// side that it keeps its distance from.
const uint32 B_FOLLOW_NONE = 0x0000;
const uint32 B_FOLLOW_ALL_SIDES = 0x1234;
const uint32 B_FOLLOW_ALL = B_FOLLOW_ALL_SIDES;
const uint32 B_FOLLOW_LEFT = 0x0202;
const uint32 B_FOLLOW_RIGHT = 0x0404;
const uint32 B_FOLLOW_LEFT_RIGHT = 0x0204;
const uint32 B_FOLLOW_H_CENTER = 0x0505;
const uint32 B_FOLLOW_TOP = 0x1010;
const uint32 B_FOLLOW_BOTTOM = 0x3030;
const uint32 B_FOLLOW_TOP_BOTTOM = 0x1030;
const uint32 B_FOLLOW_V_CENTER = 0x5050;
const uint32 B_FOLLOW_LEFT_TOP = B_FOLLOW_TOP | B_FOLLOW_LEFT;


/*!	A rectangle of a window that draws, and reacts to input.

	A view that is attached to a window is used with the window's lock held.
*/
class BView : public BHandler {
public:
	BView(BRect frame, const char* name, uint32 resizingMode, uint32 flags);
	BView(const char* name, uint32 flags);
	~BView() override;

	BView(const BView& other) = delete;
	BView& operator=(const BView& other) = delete;

	virtual void AttachedToWindow();
	virtual void AllAttached();
	virtual void DetachedFromWindow();
	virtual void AllDetached();

	void MessageReceived(BMessage* message) override;
	// Other programs may get and set "Frame" and "Hidden", count and name a "View".
	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override;

	// The tree.
	void AddChild(BView* child, BView* before = nullptr);
	bool RemoveChild(BView* child);
	int32 CountChildren() const;
	BView* ChildAt(int32 index) const;
	BView* NextSibling() const;
	BView* PreviousSibling() const;
	bool RemoveSelf();
	BWindow* Window() const;
	BView* Parent() const;
	BView* FindView(const char* name) const;

	virtual void Draw(BRect updateRect);
	virtual void DrawAfterChildren(BRect updateRect);
	virtual void MouseDown(BPoint where);
	virtual void MouseUp(BPoint where);
	virtual void MouseMoved(BPoint where, uint32 code, const BMessage* dragMessage);
	virtual void WindowActivated(bool active);
	virtual void KeyDown(const char* bytes, int32 numBytes);
	virtual void KeyUp(const char* bytes, int32 numBytes);
	virtual void Pulse();
	virtual void FrameMoved(BPoint newPosition);
	virtual void FrameResized(float newWidth, float newHeight);

	virtual void GetPreferredSize(float* width, float* height);
	virtual void ResizeToPreferred();

	// Geometry.
	BRect Bounds() const;
	BRect Frame() const;
	BPoint LeftTop() const;

	void MoveBy(float dx, float dy);
	void MoveTo(BPoint where);
	void MoveTo(float x, float y);
	void ResizeBy(float dx, float dy);
	void ResizeTo(float width, float height);
	void ResizeTo(BSize size);
	void ScrollBy(float dx, float dy);
	void ScrollTo(float x, float y) { ScrollTo(BPoint(x, y)); }
	virtual void ScrollTo(BPoint where);

	void ConvertToParent(BPoint* point) const;
	BPoint ConvertToParent(BPoint point) const;
	void ConvertFromParent(BPoint* point) const;
	BPoint ConvertFromParent(BPoint point) const;
	void ConvertToParent(BRect* rect) const;
	BRect ConvertToParent(BRect rect) const;
	void ConvertFromParent(BRect* rect) const;
	BRect ConvertFromParent(BRect rect) const;
	void ConvertToScreen(BPoint* point) const;
	BPoint ConvertToScreen(BPoint point) const;
	void ConvertFromScreen(BPoint* point) const;
	BPoint ConvertFromScreen(BPoint point) const;
	void ConvertToScreen(BRect* rect) const;
	BRect ConvertToScreen(BRect rect) const;
	void ConvertFromScreen(BRect* rect) const;
	BRect ConvertFromScreen(BRect rect) const;

	virtual void SetFlags(uint32 flags);
	uint32 Flags() const;
	virtual void SetResizingMode(uint32 mode);
	uint32 ResizingMode() const;

	virtual void Show();
	virtual void Hide();
	bool IsHidden() const;
	// Whether this view, or one above it up to that one, is hidden.
	bool IsHidden(const BView* lookingFrom) const;
	virtual void MakeFocus(bool focus = true);
	bool IsFocus() const;

	// Input.
	void GetMouse(BPoint* location, uint32* buttons, bool checkMessageQueue = true);
	void SetMouseEventMask(uint32 mask, uint32 options = 0);
	void DragMessage(BMessage* message, BRect dragRect, BHandler* replyTo = nullptr);

	// The drawing state.
	void PushState();
	void PopState();
	void SetOrigin(BPoint where);
	void SetOrigin(float x, float y);
	BPoint Origin() const;

	virtual void SetDrawingMode(drawing_mode mode);
	drawing_mode DrawingMode() const;
	void SetBlendingMode(source_alpha sourceAlpha, alpha_function function);
	void GetBlendingMode(source_alpha* sourceAlpha, alpha_function* function) const;
	virtual void SetPenSize(float size);
	float PenSize() const;
	void SetLineMode(cap_mode cap, join_mode join, float miterLimit = 10);
	cap_mode LineCapMode() const;
	join_mode LineJoinMode() const;
	float LineMiterLimit() const;

	virtual void SetViewColor(rgb_color color);
	void SetViewColor(uchar red, uchar green, uchar blue, uchar alpha = 255)
	{
		SetViewColor(make_color(red, green, blue, alpha));
	}
	rgb_color ViewColor() const;
	virtual void SetHighColor(rgb_color color);
	void SetHighColor(uchar red, uchar green, uchar blue, uchar alpha = 255)
	{
		SetHighColor(make_color(red, green, blue, alpha));
	}
	rgb_color HighColor() const;
	virtual void SetLowColor(rgb_color color);
	void SetLowColor(uchar red, uchar green, uchar blue, uchar alpha = 255)
	{
		SetLowColor(make_color(red, green, blue, alpha));
	}
	rgb_color LowColor() const;

	void SetViewUIColor(color_which which, float tint = B_NO_TINT);
	void SetHighUIColor(color_which which, float tint = B_NO_TINT);
	void SetLowUIColor(color_which which, float tint = B_NO_TINT);
	void AdoptParentColors();

	void SetViewBitmap(const BBitmap* bitmap, BRect source, BRect destination,
		uint32 followFlags = B_FOLLOW_LEFT_TOP, uint32 options = B_TILE_BITMAP);
	void SetViewBitmap(const BBitmap* bitmap, uint32 followFlags = B_FOLLOW_LEFT_TOP,
		uint32 options = B_TILE_BITMAP);
	void ClearViewBitmap();

	void MovePenTo(BPoint point);
	void MovePenTo(float x, float y);
	void MovePenBy(float dx, float dy);
	BPoint PenLocation() const;

	// Text.
	virtual void SetFont(const BFont* font, uint32 mask = B_FONT_ALL);
	void GetFont(BFont* font) const;
	void SetFontSize(float size);
	void GetFontHeight(font_height* height) const;
	float StringWidth(const char* string) const;
	float StringWidth(const char* string, int32 length) const;
	void TruncateString(BString* inOut, uint32 mode, float width) const;

	void DrawChar(char character);
	void DrawChar(char character, BPoint location);
	void DrawString(const char* string, escapement_delta* delta = nullptr);
	void DrawString(const char* string, BPoint location, escapement_delta* delta = nullptr);
	void DrawString(const char* string, int32 length, escapement_delta* delta = nullptr);
	void DrawString(const char* string, int32 length, BPoint location,
		escapement_delta* delta = nullptr);

	// Shapes.
	void StrokeLine(BPoint end, ::pattern pattern = B_SOLID_HIGH);
	void StrokeLine(BPoint start, BPoint end, ::pattern pattern = B_SOLID_HIGH);
	void BeginLineArray(int32 count);
	void AddLine(BPoint start, BPoint end, rgb_color color);
	void EndLineArray();

	void StrokeRect(BRect rect, ::pattern pattern = B_SOLID_HIGH);
	void FillRect(BRect rect, ::pattern pattern = B_SOLID_HIGH);
	void FillRegion(BRegion* region, ::pattern pattern = B_SOLID_HIGH);
	void InvertRect(BRect rect);
	void StrokeRoundRect(BRect rect, float xRadius, float yRadius,
		::pattern pattern = B_SOLID_HIGH);
	void FillRoundRect(BRect rect, float xRadius, float yRadius, ::pattern pattern = B_SOLID_HIGH);
	void StrokeEllipse(BPoint center, float xRadius, float yRadius,
		::pattern pattern = B_SOLID_HIGH);
	void StrokeEllipse(BRect rect, ::pattern pattern = B_SOLID_HIGH);
	void FillEllipse(BPoint center, float xRadius, float yRadius, ::pattern pattern = B_SOLID_HIGH);
	void FillEllipse(BRect rect, ::pattern pattern = B_SOLID_HIGH);
	void StrokeTriangle(BPoint point1, BPoint point2, BPoint point3, BRect bounds,
		::pattern pattern = B_SOLID_HIGH);
	void StrokeTriangle(BPoint point1, BPoint point2, BPoint point3,
		::pattern pattern = B_SOLID_HIGH);
	void FillTriangle(BPoint point1, BPoint point2, BPoint point3, BRect bounds,
		::pattern pattern = B_SOLID_HIGH);
	void FillTriangle(BPoint point1, BPoint point2, BPoint point3,
		::pattern pattern = B_SOLID_HIGH);
	void StrokePolygon(const BPoint* points, int32 count, bool closed = true,
		::pattern pattern = B_SOLID_HIGH);
	void FillPolygon(const BPoint* points, int32 count, ::pattern pattern = B_SOLID_HIGH);

	// Pictures. The Async ones draw at once as well.
	void DrawBitmapAsync(const BBitmap* bitmap, BRect source, BRect destination, uint32 options);
	void DrawBitmapAsync(const BBitmap* bitmap, BRect source, BRect destination);
	void DrawBitmapAsync(const BBitmap* bitmap, BRect destination);
	void DrawBitmapAsync(const BBitmap* bitmap, BPoint where);
	void DrawBitmapAsync(const BBitmap* bitmap);
	void DrawBitmap(const BBitmap* bitmap, BRect source, BRect destination, uint32 options);
	void DrawBitmap(const BBitmap* bitmap, BRect source, BRect destination);
	void DrawBitmap(const BBitmap* bitmap, BRect destination);
	void DrawBitmap(const BBitmap* bitmap, BPoint where);
	void DrawBitmap(const BBitmap* bitmap);

	// Clipping and updates.
	void GetClippingRegion(BRegion* region) const;
	virtual void ConstrainClippingRegion(BRegion* region);
	void Invalidate(BRect rect);
	void Invalidate(const BRegion* region);
	void Invalidate();
	void Flush() const;
	void Sync() const;

private:
	friend struct hosted::ViewData;

	bool _AnswerProperty(BMessage* message);

private:
	std::unique_ptr<hosted::ViewData> fData;
};

#endif // VIEW_H
