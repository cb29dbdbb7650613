// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef CONTROL_H
#define CONTROL_H

#include <Invoker.h>
#include <String.h>
#include <View.h>


enum {
	B_CONTROL_OFF = 0,
	B_CONTROL_ON = 1,
};


class BControl : public BView, public BInvoker {
public:
	BControl(BRect frame, const char* name, const char* label, BMessage* message,
		uint32 resizingMode, uint32 flags);
	~BControl() override;

	void AttachedToWindow() override;
	void DetachedFromWindow() override;
	void MakeFocus(bool focused = true) override;
	void WindowActivated(bool active) override;
	void KeyDown(const char* bytes, int32 numBytes) override;
	status_t Invoke(BMessage* message = NULL) override;

	virtual void SetLabel(const char* label);
	virtual void SetValue(int32 value);
	virtual void SetEnabled(bool enabled);

	const char* Label() const;
	int32 Value() const;
	bool IsEnabled() const;

protected:
	// How the label is written, by whether the control is enabled.
	rgb_color LabelColor() const;
	bool IsTracking() const;
	void SetTracking(bool tracking);

private:
	BString fLabel;
	bool fHasLabel = false;
	int32 fValue = B_CONTROL_OFF;
	bool fEnabled = true;
	bool fTracking = false;
};

#endif // CONTROL_H
