// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <ParameterWeb.h>

#include <string.h>

#include <OS.h>

#include "platform/media/Mixer.h"


const char* const B_MASTER_GAIN = "Master";
const char* const B_MUTE = "Mute";


namespace {

status_t
set_mute(const void* buffer, size_t size)
{
	int32 value;
	if (size != sizeof(value))
		return B_BAD_VALUE;
	memcpy(&value, buffer, size);
	if (value != 0 && value != 1)
		return B_BAD_VALUE;
	return hosted::SetMixerMute(value == 1);
}


status_t
set_gains(const void* buffer, size_t size)
{
	if (size == 0 || size % sizeof(float) != 0)
		return B_BAD_VALUE;
	std::vector<float> gains(size / sizeof(float));
	memcpy(gains.data(), buffer, size);
	return hosted::SetMixerGains(gains);
}

} // namespace


BParameter::BParameter(media_parameter_type type, int32 id, const char* name, const char* kind,
	int32 channels)
	:
	fType(type),
	fID(id),
	fName(name),
	fKind(kind),
	fChannels(channels)
{
}


status_t
BParameter::GetValue(void* buffer, size_t* size, bigtime_t* when)
{
	if (buffer == nullptr || size == nullptr)
		return B_BAD_VALUE;
	hosted::MixerState state;
	const status_t status = hosted::GetMixer(&state);
	if (status != B_OK)
		return status;

	const int32 mute = state.isMuted ? 1 : 0;
	const bool isMute = fType == B_DISCRETE_PARAMETER;
	const size_t needed = isMute ? sizeof(mute) : state.gains.size() * sizeof(float);
	const size_t room = *size;
	*size = needed;
	if (room < needed)
		return B_NO_MEMORY;
	if (isMute)
		memcpy(buffer, &mute, needed);
	else
		memcpy(buffer, state.gains.data(), needed);
	if (when != nullptr)
		*when = system_time();
	return B_OK;
}


status_t
BParameter::SetValue(const void* buffer, size_t size, bigtime_t)
{
	if (buffer == nullptr)
		return B_BAD_VALUE;
	return fType == B_DISCRETE_PARAMETER ? set_mute(buffer, size) : set_gains(buffer, size);
}


BParameterWeb::BParameterWeb(const std::vector<BParameter*>& parameters)
	:
	fParameters(parameters)
{
}


BParameterWeb::~BParameterWeb()
{
	for (BParameter* parameter : fParameters)
		delete parameter;
}


int32
BParameterWeb::CountParameters()
{
	return static_cast<int32>(fParameters.size());
}


BParameter*
BParameterWeb::ParameterAt(int32 index)
{
	if (index < 0 || index >= CountParameters())
		return nullptr;
	return fParameters[static_cast<size_t>(index)];
}
