// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ALERT_DISPLAY_H
#define ALERT_DISPLAY_H

#include <chrono>
#include <memory>
#include <string>
#include <vector>


namespace hosted {

enum class AlertIcon { kNone, kInformation, kIdea, kWarning, kStop };

struct AlertButton {
	std::string label;
	// As the "byte" of a key message; 0 for none.
	char key = 0;
};

struct AlertContents {
	// The buttons' width: at least the usual one, that of the widest, or what the label needs.
	enum Width { kAsUsual, kFromWidest, kFromLabel };

	std::string title;
	std::string text;
	AlertIcon icon = AlertIcon::kNone;
	// The last one is the one for Enter, unless the dialog's keys say otherwise.
	std::vector<AlertButton> buttons;
	Width width = kAsUsual;
	// The first of three buttons stands apart.
	bool offset = false;
	bool closesOnEscape = false;
	// The dialog is placed over this part of the screen; over the active window if right < left.
	int overLeft = 0;
	int overTop = 0;
	int overRight = -1;
	int overBottom = -1;
};


/*!	A dialog with a text and buttons on the desktop, which the user has to answer before going on
	with the application's other windows.

	Used by any thread but the display thread. Over by a click, by Close(), or when the display
	thread ends.
*/
class NativeAlert {
public:
	static std::shared_ptr<NativeAlert> Open(const AlertContents& contents);

	// Whether the dialog is over, after waiting at most that long.
	bool WaitFor(std::chrono::milliseconds limit);
	void Wait();
	// Index of the button, -1 if none was pressed. Only once the dialog is over.
	int Choice();
	// Returns at once; the dialog is over soon after.
	void Close();

private:
	struct State;
	class Dialog;

	explicit NativeAlert(std::shared_ptr<State> state);

private:
	std::shared_ptr<State> fState;
};

} // namespace hosted

#endif // ALERT_DISPLAY_H
