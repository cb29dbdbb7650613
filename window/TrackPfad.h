// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRACK_PFAD_H
#define TRACK_PFAD_H

#include <Path.h>


// A path with its track number, to bring an album into order.
class TrackPfad : public BPath {
public:
	explicit TrackPfad(const char* path);
	~TrackPfad() override;

	void PrintToStream() const;

	int32 fTrackNumber = 999;
	bool fFlag = false;
};

#endif // TRACK_PFAD_H
