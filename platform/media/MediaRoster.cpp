// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaRoster.h>

#include "platform/media/Mixer.h"


namespace {

constexpr media_node_id kMixerNode = 1;
constexpr int32 kMuteID = 7;
constexpr int32 kGainID = 8;

} // namespace


BMediaRoster*
BMediaRoster::Roster(status_t* error)
{
	static BMediaRoster sRoster;
	if (error != nullptr)
		*error = B_OK;
	return &sRoster;
}


status_t
BMediaRoster::GetAudioMixer(media_node* node)
{
	if (node == nullptr)
		return B_BAD_VALUE;
	hosted::MixerState state;
	const status_t status = hosted::GetMixer(&state);
	if (status == B_OK)
		node->node = kMixerNode;
	return status;
}


status_t
BMediaRoster::ReleaseNode(const media_node& node)
{
	// The mixer is the sound server's, and no connection stays open for it.
	return node.node == kMixerNode ? B_OK : B_BAD_VALUE;
}


status_t
BMediaRoster::GetParameterWebFor(const media_node& node, BParameterWeb** web)
{
	if (web == nullptr || node.node != kMixerNode)
		return B_BAD_VALUE;
	hosted::MixerState state;
	const status_t status = hosted::GetMixer(&state);
	if (status != B_OK)
		return status;
	*web = new BParameterWeb({
		new BParameter(BParameter::B_DISCRETE_PARAMETER, kMuteID, "Mute", B_MUTE, 1),
		new BParameter(BParameter::B_CONTINUOUS_PARAMETER, kGainID, "Gain", B_MASTER_GAIN,
			static_cast<int32>(state.gains.size())),
	});
	return B_OK;
}
