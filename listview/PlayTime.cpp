// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "listview/PlayTime.h"

#include <stdio.h>
#include <stdlib.h>


bool
IsTimed(float playMinutes)
{
	return playMinutes > kUntimedMinutes;
}


bigtime_t
PlayMicros(float playMinutes)
{
	return static_cast<bigtime_t>(playMinutes * 60000000.0);
}


MeasuredLength::MeasuredLength(long measuredSeconds)
{
	const long total = measuredSeconds + 1;
	char buffer[32];
	snprintf(buffer, sizeof(buffer), "%02ld:%02ld", total / 60, total % 60);
	text = buffer;
	minutes = atoi(buffer);
	seconds = atoi(buffer + text.Length() - 2);
	packed = minutes * 100 + seconds;
	playMinutes = static_cast<float>(minutes + (seconds / 0.6) / 100 + kMarginMinutes);
}
