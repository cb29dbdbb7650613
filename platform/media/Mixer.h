// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MIXER_H
#define MIXER_H

#include <stddef.h>
#include <vector>

#include <SupportDefs.h>


/*!	The mute and the volume of the default output.

	Each call opens a connection of its own and closes it, so it may come from any thread and a
	server may come and go in between. It takes a second at most.
*/
namespace hosted {

constexpr float kMinGain = -60;
constexpr float kMaxGain = 18;

struct MixerState {
	bool isMuted = false;
	// Of each channel, in dB.
	std::vector<float> gains;
};

status_t GetMixer(MixerState* state);
status_t SetMixerMute(bool muted);
// B_BAD_VALUE if the output has not this many channels, or one gain is no number.
status_t SetMixerGains(const std::vector<float>& gains);

} // namespace hosted

#endif // MIXER_H
