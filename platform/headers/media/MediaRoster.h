// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MEDIA_ROSTER_H
#define MEDIA_ROSTER_H

#include <MediaNode.h>
#include <ParameterWeb.h>


/*!	The way to the mixer of the sound system.

	Any thread may call it. A call that asks the sound server fails with B_NO_INIT if none runs,
	with B_NAME_NOT_FOUND if it has no output, and with B_TIMED_OUT if it has not answered after a
	second.
*/
class BMediaRoster {
public:
	// The one roster, which is there even if no sound server runs.
	static BMediaRoster* Roster(status_t* error = nullptr);
	BMediaRoster(const BMediaRoster&) = delete;
	BMediaRoster& operator=(const BMediaRoster&) = delete;

	status_t GetAudioMixer(media_node* node);
	// B_BAD_VALUE for what is no mixer.
	status_t ReleaseNode(const media_node& node);
	// The caller deletes the web, which is there only if this returns B_OK.
	status_t GetParameterWebFor(const media_node& node, BParameterWeb** web);

private:
	BMediaRoster() = default;
	~BMediaRoster() = default;
};

#endif // MEDIA_ROSTER_H
