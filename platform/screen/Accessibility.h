// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ACCESSIBILITY_H
#define ACCESSIBILITY_H

#include <QRect>
#include <QString>


namespace hosted {

// What a screen reader is told of a view: the texts that it has drawn.
struct ShownText {
	// In the window.
	QRect frame;
	QString text;

	bool operator==(const ShownText& other) const
	{
		return frame == other.frame && text == other.text;
	}
};

// Lets the toolkit's bridge ask the windows. Once, from the display thread.
void OfferAccessibility();

} // namespace hosted

#endif // ACCESSIBILITY_H
