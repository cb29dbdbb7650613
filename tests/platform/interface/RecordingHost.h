// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef RECORDING_HOST_H
#define RECORDING_HOST_H

#include <memory>

#include <QImage>
#include <QRegion>

#include <View.h>

#include "platform/interface/ViewHost.h"
#include "platform/interface/ViewPrivate.h"


namespace test {

// A host without a window, which remembers what it is told.
class RecordingHost : public hosted::ViewHost {
public:
	explicit RecordingHost(int32 width = 100, int32 height = 100)
		:
		image(width, height, QImage::Format_RGB32),
		root(hosted::NewRootView(*this, BRect(0, 0, width - 1, height - 1)))
	{
		image.fill(0xff808080);
	}

	~RecordingHost() override { hosted::DetachRoot(*root); }

	QImage* Image() override { return &image; }
	void Painted(const QRegion& pixels) override { painted += pixels; }
	void NeedsUpdate(const QRegion& pixels) override { pending += pixels; }
	const QRegion& PendingUpdate() const override { return pending; }
	BWindow* Window() override { return nullptr; }
	BPoint ScreenOrigin() const override { return BPoint(1000, 2000); }

	void Flush() override { flushes++; }
	bool GetMouse(BPoint* where, uint32* buttons, bool check) override
	{
		*where = BPoint(50, 60);
		*buttons = check ? B_PRIMARY_MOUSE_BUTTON : B_SECONDARY_MOUSE_BUTTON;
		return true;
	}
	void PulseNeeded() override { pulsesNeeded++; }
	void ViewDetached(BView& view) override { detached.push_back(&view); }
	void FocusChanged(BView* view) override { focusChanges.push_back(view); }
	void SetMouseEventMask(BView& view, uint32 mask, uint32 options) override
	{
		maskedView = &view;
		eventMask = mask;
		maskOptions = options;
	}
	void DragMessage(BView& view, BMessage&, BRect rect, BHandler* replyTo) override
	{
		draggingView = &view;
		dragRect = rect;
		dragReplyTo = replyTo;
	}

	// Paints what is pending, as a window does.
	void Update()
	{
		const QRegion pixels = pending;
		pending = QRegion();
		hosted::UpdateViews(*this, *root, pixels);
	}

	uint32 At(int32 x, int32 y) const { return image.pixel(x, y) & 0xffffff; }

	QImage image;
	std::unique_ptr<BView> root;
	QRegion pending;
	QRegion painted;
	int32 flushes = 0;
	int32 pulsesNeeded = 0;
	std::vector<BView*> detached;
	std::vector<BView*> focusChanges;
	BView* maskedView = nullptr;
	uint32 eventMask = 0;
	uint32 maskOptions = 0;
	BView* draggingView = nullptr;
	BRect dragRect;
	BHandler* dragReplyTo = nullptr;
};

} // namespace test

#endif // RECORDING_HOST_H
