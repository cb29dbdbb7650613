// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef NATIVE_WIDGET_H
#define NATIVE_WIDGET_H

#include <chrono>
#include <memory>
#include <vector>

#include <QWidget>

#include <SupportDefs.h>

#include "platform/screen/Accessibility.h"
#include "platform/screen/NativeWindow.h"

class BMessage;


namespace hosted {

/*!	The widget of a window: shows its picture and turns what the user does into messages.

	Display thread only.
*/
class NativeWidget : public QWidget {
public:
	explicit NativeWidget(NativeWindow& window);
	~NativeWidget() override;

	void Apply(const WindowWishes& wishes);
	void Activate(bool activate);

	// Between the place that the window believes to be at and Qt's own, which is another one where
	// the desktop keeps places to itself.
	QPointF ToScreen(const QPointF& where) const;
	QPointF FromScreen(const QPointF& screenWhere) const;
	QPoint QtOffset() const;

	// What the views show, for screen readers; empty where there is no such view.
	int CountTexts() const;
	ShownText TextAt(int index) const;

	// Whether an open modal window keeps input from this one.
	bool IsBlocked() const;

protected:
	void paintEvent(QPaintEvent* event) override;
	void resizeEvent(QResizeEvent* event) override;
	void moveEvent(QMoveEvent* event) override;
	void changeEvent(QEvent* event) override;
	void closeEvent(QCloseEvent* event) override;

	void mousePressEvent(QMouseEvent* event) override;
	void mouseReleaseEvent(QMouseEvent* event) override;
	void mouseDoubleClickEvent(QMouseEvent* event) override;
	void mouseMoveEvent(QMouseEvent* event) override;
	void enterEvent(QEnterEvent* event) override;
	void leaveEvent(QEvent* event) override;
	void wheelEvent(QWheelEvent* event) override;

	void keyPressEvent(QKeyEvent* event) override;
	void keyReleaseEvent(QKeyEvent* event) override;
	void focusInEvent(QFocusEvent* event) override;
	void focusOutEvent(QFocusEvent* event) override;
	bool focusNextPrevChild(bool next) override;
	void inputMethodEvent(QInputMethodEvent* event) override;
	QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

	void dragEnterEvent(QDragEnterEvent* event) override;
	void dragMoveEvent(QDragMoveEvent* event) override;
	void dropEvent(QDropEvent* event) override;

private:
	void _ApplyFlags(const WindowWishes& wishes);
	void _ApplyFrame(const WindowWishes& wishes);
	void _ApplyVisibility(const WindowWishes& wishes);
	bool _IsEcho(const QRect& frame);
	void _ReportFrame();
	void _SendKeys(QKeyEvent* event, bool down);
	void _SendPointer(uint32 what, QMouseEvent* event);
	void _SendDrop(BMessage& message, const QPointF& where, BPoint offset,
		const BMessenger& replyTo);
	void _EndViewDrag(QMouseEvent* event);
	void _SendPointerMessage(BMessage& message, const QPointF& where, Qt::MouseButtons buttons);

private:
	struct PastFrame {
		QRect frame;
		std::chrono::steady_clock::time_point time;
	};

	std::shared_ptr<NativeWindow> fWindow;
	WindowWishes fWishes;
	bool fIsNew = true;
	bool fIsApplying = false;
	// The frame as the window knows it, and those that it has asked for shortly before: the desktop
	// may still report them.
	QRect fKnownFrame;
	std::vector<PastFrame> fPastFrames;
};

} // namespace hosted

#endif // NATIVE_WIDGET_H
