// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PLAY_TIME_H
#define PLAY_TIME_H

#include <OS.h>
#include <String.h>


// Minutes up to which a title is not timed, and below which it ends a sum of play times.
inline constexpr float kUntimedMinutes = 0.03f;
// Minutes that are added to a measured length, so that the next title does not start early.
inline constexpr float kMarginMinutes = 0.02f;
// Microseconds up to which a length or an end time stands for none.
inline constexpr bigtime_t kNoPlayLength = 499;
inline constexpr bigtime_t kNoPlayEnd = 500;

// Whether a title of that play time is followed by the next one by itself.
bool IsTimed(float playMinutes);

// The play time in whole microseconds.
bigtime_t PlayMicros(float playMinutes);

/*!	A play time as the attribute "Audio:Length" and the tiles hold it. */
struct MeasuredLength {
	// From a length in whole seconds; one second is added.
	explicit MeasuredLength(long measuredSeconds);

	// "03:07": both at least two digits.
	BString text;
	int32 minutes;
	int32 seconds;
	// minutes * 100 + seconds
	int32 packed;
	// With the margin.
	float playMinutes;
};

#endif // PLAY_TIME_H
