// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/media/Mixer.h"

#include <algorithm>
#include <math.h>

#include "platform/media/SoundServer.h"


namespace hosted {

namespace {

float
gain_of(pa_volume_t volume)
{
	const float gain = static_cast<float>(pa_sw_volume_to_dB(volume));
	return std::clamp(gain, kMinGain, kMaxGain);
}

} // namespace


status_t
GetMixer(MixerState* state)
{
	SoundServer server;
	SoundOutput output;
	const status_t status = server.GetDefaultOutput(&output);
	if (status != B_OK)
		return status;
	state->isMuted = output.isMuted;
	state->gains.clear();
	for (uint8 i = 0; i < output.volume.channels; i++)
		state->gains.push_back(gain_of(output.volume.values[i]));
	return B_OK;
}


status_t
SetMixerMute(bool muted)
{
	SoundServer server;
	SoundOutput output;
	const status_t status = server.GetDefaultOutput(&output);
	if (status != B_OK)
		return status;
	return server.SetMute(output, muted);
}


status_t
SetMixerGains(const std::vector<float>& gains)
{
	if (std::any_of(gains.begin(), gains.end(), [](float gain) { return isnan(gain); }))
		return B_BAD_VALUE;
	SoundServer server;
	SoundOutput output;
	const status_t status = server.GetDefaultOutput(&output);
	if (status != B_OK)
		return status;
	if (gains.size() != output.volume.channels)
		return B_BAD_VALUE;
	for (size_t i = 0; i < gains.size(); i++) {
		// Silence reads as the lowest gain, and has to stay silence when that is written back.
		const float gain = std::clamp(gains[i], kMinGain, kMaxGain);
		if (gain_of(output.volume.values[i]) != gain)
			output.volume.values[i] = pa_sw_volume_from_dB(static_cast<double>(gain));
	}
	return server.SetVolume(output);
}

} // namespace hosted
