// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Where the window is and how large, and what it looks like on the desktop.
#include <Window.h>

#include <algorithm>
#include <array>
#include <math.h>

#include <AppDefs.h>
#include <Autolock.h>
#include <Screen.h>

#include "platform/interface/InputFields.h"
#include "platform/interface/WindowHost.h"
#include "platform/screen/NativeWindow.h"


namespace {

// Looks without a name of their own: the desktop's, which has neither tab nor border, and one with
// its tab at the left.
constexpr int kDesktopLook = 4;
constexpr int kLeftTitledLook = 25;

// No window is larger, or further away from the screen, whatever a program asks for.
constexpr float kLargestSize = 32768;
constexpr float kFarthestPlace = 1000000;

constexpr uint32 kKnownFlags = B_NOT_MOVABLE | B_NOT_RESIZABLE | B_NOT_H_RESIZABLE
	| B_NOT_V_RESIZABLE | B_WILL_ACCEPT_FIRST_CLICK | B_NOT_CLOSABLE | B_NOT_ZOOMABLE
	| B_AVOID_FRONT | B_NO_WORKSPACE_ACTIVATION | B_OUTLINE_RESIZE | B_AVOID_FOCUS
	| B_NOT_MINIMIZABLE | B_ASYNCHRONOUS_CONTROLS | B_QUIT_ON_WINDOW_CLOSE
	| B_SAME_POSITION_IN_ALL_WORKSPACES | B_AUTO_UPDATE_SIZE_LIMITS | B_CLOSE_ON_ESCAPE;

struct TypeRow {
	window_type type;
	window_look look;
	window_feel feel;
};

constexpr std::array<TypeRow, 5> kTypes = {{
	{B_TITLED_WINDOW, B_TITLED_WINDOW_LOOK, B_NORMAL_WINDOW_FEEL},
	{B_DOCUMENT_WINDOW, B_DOCUMENT_WINDOW_LOOK, B_NORMAL_WINDOW_FEEL},
	{B_BORDERED_WINDOW, B_BORDERED_WINDOW_LOOK, B_NORMAL_WINDOW_FEEL},
	{B_MODAL_WINDOW, B_MODAL_WINDOW_LOOK, B_MODAL_APP_WINDOW_FEEL},
	{B_FLOATING_WINDOW, B_FLOATING_WINDOW_LOOK, B_FLOATING_APP_WINDOW_FEEL},
}};


bool
is_known_look(int look)
{
	switch (look) {
		case B_TITLED_WINDOW_LOOK:
		case B_MODAL_WINDOW_LOOK:
		case kDesktopLook:
		case B_FLOATING_WINDOW_LOOK:
		case B_DOCUMENT_WINDOW_LOOK:
		case B_NO_BORDER_WINDOW_LOOK:
		case B_BORDERED_WINDOW_LOOK:
		case kLeftTitledLook:
			return true;
		default:
			return false;
	}
}


// What the desktop is told of a size that may be beyond all measure.
int
size_in_pixels(float size)
{
	return static_cast<int>(std::clamp(size, 0.0f, kLargestSize)) + 1;
}


float
place_within_reach(float place)
{
	return isnan(place) ? 0 : std::clamp(roundf(place), -kFarthestPlace, kFarthestPlace);
}


bool
has_title(int look)
{
	return look != kDesktopLook && look != B_NO_BORDER_WINDOW_LOOK
		&& look != B_BORDERED_WINDOW_LOOK;
}

} // namespace


namespace hosted {

// Hands the frame that the window has decided on to the desktop.
void
WindowHost::_RequestFrame()
{
	fFrameSerial++;
	const QRect frame(static_cast<int>(fFrame.left), static_cast<int>(fFrame.top),
		size_in_pixels(fFrame.Width()), size_in_pixels(fFrame.Height()));
	const int32 serial = fFrameSerial;
	fNative->Change([frame, serial](WindowWishes& wishes) {
		wishes.frame = frame;
		wishes.serial = serial;
	});
}


// The frame that a new window gets when asked for this one, which may come from damaged settings.
BRect
WindowHost::_FirstFrame(BRect frame)
{
	const BRect near(place_within_reach(frame.left), place_within_reach(frame.top),
		place_within_reach(frame.right), place_within_reach(frame.bottom));
	return BRect(near.left, near.top, near.left + std::min(near.Width(), kLargestSize),
		near.top + std::min(near.Height(), kLargestSize));
}


void
WindowHost::_ClampToLimits(float& width, float& height) const
{
	width = std::clamp(std::clamp(width, fMinWidth, fMaxWidth), 0.0f, kLargestSize);
	height = std::clamp(std::clamp(height, fMinHeight, fMaxHeight), 0.0f, kLargestSize);
}


void
WindowHost::_RequestLimits()
{
	const QSize smallest(size_in_pixels(fMinWidth), size_in_pixels(fMinHeight));
	const QSize largest(size_in_pixels(fMaxWidth), size_in_pixels(fMaxHeight));
	fNative->Change([smallest, largest](WindowWishes& wishes) {
		wishes.smallest = smallest;
		wishes.largest = largest;
	});
}


void
WindowHost::_RequestLook()
{
	const bool hasBorder = has_title(fLook);
	const bool staysOnTop = fFeel == B_FLOATING_ALL_WINDOW_FEEL || fFeel == B_MODAL_ALL_WINDOW_FEEL;
	const bool isModal = fWindow->IsModal();
	const bool onAllWorkspaces = fWorkspaces == B_ALL_WORKSPACES;
	const uint32 flags = fFlags;
	fNative->Change([=](WindowWishes& wishes) {
		wishes.hasBorder = hasBorder;
		wishes.staysOnTop = staysOnTop;
		wishes.isModal = isModal;
		wishes.onAllWorkspaces = onAllWorkspaces;
		wishes.flags = flags;
	});
}


// Takes over a frame that the user or the desktop has chosen. False if the message says nothing
// that the window should be told.
bool
WindowHost::_AdoptFrameMessage(BMessage& message)
{
	const bool isFromDesktop = message.RemoveName(kInputKind) == B_OK;
	const int32 serial = message.GetInt32(kInputSerial, fFrameSerial);
	message.RemoveName(kInputSerial);
	if (!isFromDesktop)
		return true;
	// The window has changed its frame since; that request is still on its way.
	if (serial != fFrameSerial)
		return false;
	if (message.what == B_WINDOW_MOVED) {
		fFrame.OffsetTo(message.GetPoint("where", fFrame.LeftTop()));
		return true;
	}
	_SetSize(message.GetInt32("width", 0), message.GetInt32("height", 0));
	return true;
}

} // namespace hosted


void
BWindow::MoveTo(BPoint point)
{
	BAutolock lock(this);
	if (!lock.IsLocked())
		return;
	if (isnan(point.x) || isnan(point.y))
		return;
	point.x = place_within_reach(point.x);
	point.y = place_within_reach(point.y);
	if (fHost->fFrame.LeftTop() == point)
		return;
	fHost->fFrame.OffsetTo(point);
	fHost->_RequestFrame();
	BMessage message(B_WINDOW_MOVED);
	message.AddInt64("when", system_time());
	message.AddPoint("where", point);
	PostMessage(&message);
}


void
BWindow::MoveTo(float x, float y)
{
	MoveTo(BPoint(x, y));
}


void
BWindow::MoveBy(float dx, float dy)
{
	BAutolock lock(this);
	MoveTo(fHost->fFrame.left + dx, fHost->fFrame.top + dy);
}


void
BWindow::ResizeTo(float width, float height)
{
	BAutolock lock(this);
	if (!lock.IsLocked())
		return;
	if (isnan(width) || isnan(height))
		return;
	width = roundf(width);
	height = roundf(height);
	fHost->_ClampToLimits(width, height);
	if (fHost->fFrame.Width() == width && fHost->fFrame.Height() == height)
		return;
	fHost->_SetSize(width, height);
	fHost->_RequestFrame();
	BMessage message(B_WINDOW_RESIZED);
	message.AddInt64("when", system_time());
	message.AddInt32("width", static_cast<int32>(width));
	message.AddInt32("height", static_cast<int32>(height));
	PostMessage(&message);
}


void
BWindow::ResizeBy(float dx, float dy)
{
	BAutolock lock(this);
	ResizeTo(fHost->fFrame.Width() + dx, fHost->fFrame.Height() + dy);
}


void
BWindow::CenterIn(const BRect& rect)
{
	BAutolock lock(this);
	MoveTo(floorf(rect.left + (rect.Width() - fHost->fFrame.Width()) / 2),
		floorf(rect.top + (rect.Height() - fHost->fFrame.Height()) / 2));
}


void
BWindow::CenterOnScreen()
{
	CenterIn(BScreen(this).Frame());
}


BRect
BWindow::Bounds() const
{
	return fHost->fFrame.OffsetToCopy(0, 0);
}


BRect
BWindow::Frame() const
{
	return fHost->fFrame;
}


void
BWindow::SetSizeLimits(float minWidth, float maxWidth, float minHeight, float maxHeight)
{
	// Written so that what is no number is refused, too.
	if (!(minWidth <= maxWidth && minHeight <= maxHeight))
		return;
	BAutolock lock(this);
	if (!lock.IsLocked())
		return;
	fHost->fMinWidth = roundf(minWidth);
	fHost->fMaxWidth = roundf(maxWidth);
	fHost->fMinHeight = roundf(minHeight);
	fHost->fMaxHeight = roundf(maxHeight);
	fHost->_RequestLimits();
	ResizeTo(fHost->fFrame.Width(), fHost->fFrame.Height());
}


void
BWindow::GetSizeLimits(float* minWidth, float* maxWidth, float* minHeight, float* maxHeight)
{
	if (minWidth != nullptr)
		*minWidth = fHost->fMinWidth;
	if (maxWidth != nullptr)
		*maxWidth = fHost->fMaxWidth;
	if (minHeight != nullptr)
		*minHeight = fHost->fMinHeight;
	if (maxHeight != nullptr)
		*maxHeight = fHost->fMaxHeight;
}


void
BWindow::SetZoomLimits(float maxWidth, float maxHeight)
{
	BAutolock lock(this);
	fHost->fMaxZoomWidth = std::min(maxWidth, fHost->fMaxWidth);
	fHost->fMaxZoomHeight = std::min(maxHeight, fHost->fMaxHeight);
}


void
BWindow::Zoom()
{
	BAutolock lock(this);
	const BRect frame = fHost->fFrame;
	if (fHost->fUnzoomedFrame.IsValid() && frame == fHost->fZoomedFrame) {
		const BRect old = fHost->fUnzoomedFrame;
		fHost->fUnzoomedFrame = BRect();
		Zoom(old.LeftTop(), old.Width(), old.Height());
		return;
	}
	const BRect screen = BScreen(this).Frame();
	float width = std::min(screen.Width(), fHost->fMaxZoomWidth);
	float height = std::min(screen.Height(), fHost->fMaxZoomHeight);
	fHost->_ClampToLimits(width, height);
	const BPoint origin(floorf(screen.left + (screen.Width() - width) / 2),
		floorf(screen.top + (screen.Height() - height) / 2));
	fHost->fUnzoomedFrame = frame;
	Zoom(origin, width, height);
	fHost->fZoomedFrame = fHost->fFrame;
}


void
BWindow::Zoom(BPoint origin, float width, float height)
{
	MoveTo(origin);
	ResizeTo(width, height);
}


void
BWindow::Minimize(bool minimize)
{
	BAutolock lock(this);
	if (IsModal() || fHost->fIsMinimized == minimize)
		return;
	fHost->fIsMinimized = minimize;
	fHost->fNative->Change(
		[minimize](hosted::WindowWishes& wishes) { wishes.isMinimized = minimize; });
}


bool
BWindow::IsMinimized() const
{
	return fHost->fIsMinimized;
}


bool
BWindow::IsActive() const
{
	return fHost->fIsActive;
}


bool
BWindow::IsFront() const
{
	return fHost->fIsActive;
}


void
BWindow::Activate(bool active)
{
	BAutolock lock(this);
	if (!lock.IsLocked() || IsHidden())
		return;
	if (active)
		Minimize(false);
	fHost->fNative->Activate(active);
}


const char*
BWindow::Title() const
{
	return fHost->fTitle.c_str();
}


void
BWindow::SetTitle(const char* title)
{
	BAutolock lock(this);
	fHost->fTitle = title == nullptr ? "" : title;
	const std::string& text = fHost->fTitle;
	// Scripts find a window by its title.
	SetName(text.c_str());
	fHost->fNative->Change([&text](hosted::WindowWishes& wishes) { wishes.title = text; });
}


status_t
BWindow::SetType(window_type type)
{
	if (type == B_UNTYPED_WINDOW)
		type = B_TITLED_WINDOW;
	for (const TypeRow& row : kTypes) {
		if (row.type != type)
			continue;
		const status_t status = SetLook(row.look);
		return status != B_OK ? status : SetFeel(row.feel);
	}
	return B_BAD_VALUE;
}


window_type
BWindow::Type() const
{
	for (const TypeRow& row : kTypes) {
		if (row.look == fHost->fLook && row.feel == fHost->fFeel)
			return row.type;
	}
	return B_UNTYPED_WINDOW;
}


status_t
BWindow::SetLook(window_look look)
{
	if (!is_known_look(look))
		return B_BAD_VALUE;
	BAutolock lock(this);
	if (!lock.IsLocked())
		return B_BAD_VALUE;
	fHost->fLook = look;
	fHost->_RequestLook();
	return B_OK;
}


window_look
BWindow::Look() const
{
	return fHost->fLook;
}


status_t
BWindow::SetFeel(window_feel feel)
{
	if (feel < B_NORMAL_WINDOW_FEEL || feel > B_FLOATING_ALL_WINDOW_FEEL)
		return B_BAD_VALUE;
	BAutolock lock(this);
	if (!lock.IsLocked())
		return B_BAD_VALUE;
	fHost->fFeel = feel;
	fHost->_RequestLook();
	return B_OK;
}


window_feel
BWindow::Feel() const
{
	return fHost->fFeel;
}


status_t
BWindow::SetFlags(uint32 flags)
{
	if ((flags & ~kKnownFlags) != 0)
		return B_BAD_VALUE;
	BAutolock lock(this);
	if (!lock.IsLocked())
		return B_BAD_VALUE;
	fHost->fFlags = flags | B_ASYNCHRONOUS_CONTROLS;
	fHost->_RequestLook();
	return B_OK;
}


uint32
BWindow::Flags() const
{
	return fHost->fFlags;
}


bool
BWindow::IsModal() const
{
	return fHost->fFeel >= B_MODAL_APP_WINDOW_FEEL && fHost->fFeel <= B_MODAL_ALL_WINDOW_FEEL;
}


bool
BWindow::IsFloating() const
{
	return fHost->fFeel >= B_FLOATING_APP_WINDOW_FEEL;
}


uint32
BWindow::Workspaces() const
{
	return fHost->fWorkspaces;
}


void
BWindow::SetWorkspaces(uint32 workspaces)
{
	BAutolock lock(this);
	fHost->fWorkspaces = workspaces;
	fHost->_RequestLook();
}


// Between the window's coordinates and the screen's.


void
BWindow::ConvertToScreen(BPoint* point) const
{
	*point += fHost->fFrame.LeftTop();
}


BPoint
BWindow::ConvertToScreen(BPoint point) const
{
	return point + fHost->fFrame.LeftTop();
}


void
BWindow::ConvertFromScreen(BPoint* point) const
{
	*point -= fHost->fFrame.LeftTop();
}


BPoint
BWindow::ConvertFromScreen(BPoint point) const
{
	return point - fHost->fFrame.LeftTop();
}


void
BWindow::ConvertToScreen(BRect* rect) const
{
	rect->OffsetBy(fHost->fFrame.LeftTop());
}


BRect
BWindow::ConvertToScreen(BRect rect) const
{
	return rect.OffsetByCopy(fHost->fFrame.LeftTop());
}


void
BWindow::ConvertFromScreen(BRect* rect) const
{
	rect->OffsetBy(-fHost->fFrame.left, -fHost->fFrame.top);
}


BRect
BWindow::ConvertFromScreen(BRect rect) const
{
	return rect.OffsetByCopy(-fHost->fFrame.left, -fHost->fFrame.top);
}
