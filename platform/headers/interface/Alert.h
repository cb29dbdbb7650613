// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ALERT_H
#define ALERT_H

#include <memory>

#include <InterfaceDefs.h>
#include <Window.h>

class BInvoker;

namespace hosted {
struct AlertBox;
} // namespace hosted


enum alert_type {
	B_EMPTY_ALERT = 0,
	B_INFO_ALERT = 1,
	B_IDEA_ALERT = 2,
	B_WARNING_ALERT = 3,
	B_STOP_ALERT = 4,
};

enum button_spacing {
	B_EVEN_SPACING = 0,
	B_OFFSET_SPACING = 1,
};


/*!	A question with buttons, shown by a native dialog.

	Always made with new: it deletes itself after Go(). The last button is the one for Enter.
*/
class BAlert : public BWindow {
public:
	BAlert(const char* title, const char* text, const char* button1, const char* button2 = NULL,
		const char* button3 = NULL, button_width width = B_WIDTH_AS_USUAL,
		alert_type type = B_INFO_ALERT);
	BAlert(const char* title, const char* text, const char* button1, const char* button2,
		const char* button3, button_width width, button_spacing spacing,
		alert_type type = B_INFO_ALERT);
	// Closes the dialog if it is open; whoever waits for it gets -1.
	~BAlert() override;

	void AddButton(const char* label, char key = 0);
	int32 CountButtons() const;
	// key is what B_KEY_DOWN has as "byte". A bad index changes nothing.
	void SetShortcut(int32 buttonIndex, char key);
	char Shortcut(int32 buttonIndex) const;
	void SetText(const char* text);
	void SetType(alert_type type);
	alert_type Type() const;
	void SetButtonWidth(button_width width);
	void SetButtonSpacing(button_spacing spacing);

	int32 Go();
	status_t Go(BInvoker* invoker);

private:
	void _PrepareToGo();

private:
	std::shared_ptr<hosted::AlertBox> fBox;
};

#endif // ALERT_H
