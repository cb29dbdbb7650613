// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SOUND_SERVER_H
#define SOUND_SERVER_H

#include <pulse/pulseaudio.h>

#include <SupportDefs.h>


namespace hosted {

struct SoundOutput {
	uint32 index = PA_INVALID_INDEX;
	bool isMuted = false;
	pa_cvolume volume = {};
};

/*!	A connection to the user's sound server, by PulseAudio's protocol.

	It has an event loop of its own that runs inside the calls only. Connecting and all calls
	together take a second at most.
*/
class SoundServer {
public:
	SoundServer();
	~SoundServer();
	SoundServer(const SoundServer&) = delete;
	SoundServer& operator=(const SoundServer&) = delete;

	status_t GetDefaultOutput(SoundOutput* output);
	status_t SetMute(const SoundOutput& output, bool muted);
	status_t SetVolume(const SoundOutput& output);

private:
	status_t _Connect();
	// Handles one batch of events. False when the time is over or the loop is broken.
	bool _HandleEvents();
	// Waits for the end of the operation, which may be null, and drops it.
	status_t _Finish(pa_operation* operation);
	status_t _Error() const;
	static void _Answered(pa_context* context, int success, void* server);

private:
	pa_mainloop* fLoop;
	pa_context* fContext;
	const bigtime_t fDeadline;
	status_t fStatus = B_NO_INIT;
	bool fHasSucceeded = false;
};

} // namespace hosted

#endif // SOUND_SERVER_H
