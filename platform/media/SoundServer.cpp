// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/media/SoundServer.h"

#include <errno.h>

#include <OS.h>


namespace hosted {

namespace {

constexpr bigtime_t kLimit = 1000000;


void
take_output(pa_context*, const pa_sink_info* info, int end, void* data)
{
	if (end != 0 || info == nullptr)
		return;
	SoundOutput* const output = static_cast<SoundOutput*>(data);
	output->index = info->index;
	output->isMuted = info->mute != 0;
	output->volume = info->volume;
}

} // namespace


SoundServer::SoundServer()
	:
	fLoop(pa_mainloop_new()),
	fContext(nullptr),
	fDeadline(system_time() + kLimit)
{
	if (fLoop == nullptr)
		return;
	fContext = pa_context_new(pa_mainloop_get_api(fLoop), program_invocation_short_name);
	if (fContext != nullptr)
		fStatus = _Connect();
}


SoundServer::~SoundServer()
{
	if (fContext != nullptr) {
		pa_context_disconnect(fContext);
		pa_context_unref(fContext);
	}
	if (fLoop != nullptr)
		pa_mainloop_free(fLoop);
}


status_t
SoundServer::GetDefaultOutput(SoundOutput* output)
{
	if (fStatus != B_OK)
		return fStatus;
	const status_t status = _Finish(
		pa_context_get_sink_info_by_name(fContext, "@DEFAULT_SINK@", take_output, output));
	if (status != B_OK)
		return status;
	// An answer without an output carries its reason as the context's error.
	return output->index == PA_INVALID_INDEX ? _Error() : B_OK;
}


status_t
SoundServer::SetMute(const SoundOutput& output, bool muted)
{
	if (fStatus != B_OK)
		return fStatus;
	fHasSucceeded = false;
	const status_t status = _Finish(
		pa_context_set_sink_mute_by_index(fContext, output.index, muted ? 1 : 0, _Answered, this));
	if (status != B_OK)
		return status;
	return fHasSucceeded ? B_OK : _Error();
}


status_t
SoundServer::SetVolume(const SoundOutput& output)
{
	if (fStatus != B_OK)
		return fStatus;
	fHasSucceeded = false;
	const status_t status = _Finish(pa_context_set_sink_volume_by_index(fContext, output.index,
		&output.volume, _Answered, this));
	if (status != B_OK)
		return status;
	return fHasSucceeded ? B_OK : _Error();
}


status_t
SoundServer::_Connect()
{
	// A server that has to be started first would neither be in time nor be heard.
	if (pa_context_connect(fContext, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
		return _Error();
	while (true) {
		const pa_context_state_t state = pa_context_get_state(fContext);
		if (state == PA_CONTEXT_READY)
			return B_OK;
		if (!PA_CONTEXT_IS_GOOD(state))
			return _Error();
		if (!_HandleEvents())
			return B_TIMED_OUT;
	}
}


bool
SoundServer::_HandleEvents()
{
	const bigtime_t left = fDeadline - system_time();
	if (left <= 0)
		return false;
	return pa_mainloop_prepare(fLoop, static_cast<int>(left)) >= 0 && pa_mainloop_poll(fLoop) >= 0
		&& pa_mainloop_dispatch(fLoop) >= 0;
}


status_t
SoundServer::_Finish(pa_operation* operation)
{
	if (operation == nullptr)
		return _Error();
	status_t status = B_OK;
	while (pa_operation_get_state(operation) == PA_OPERATION_RUNNING) {
		if (!_HandleEvents()) {
			status = B_TIMED_OUT;
			break;
		}
	}
	// What ends with the connection counts as cancelled.
	if (pa_operation_get_state(operation) == PA_OPERATION_CANCELLED)
		status = _Error();
	pa_operation_cancel(operation);
	pa_operation_unref(operation);
	return status;
}


status_t
SoundServer::_Error() const
{
	switch (pa_context_errno(fContext)) {
		case PA_ERR_CONNECTIONREFUSED:
		case PA_ERR_CONNECTIONTERMINATED:
		case PA_ERR_INVALIDSERVER:
			return B_NO_INIT;
		case PA_ERR_NOENTITY:
			return B_NAME_NOT_FOUND;
		case PA_ERR_ACCESS:
		case PA_ERR_AUTHKEY:
			return B_PERMISSION_DENIED;
		case PA_ERR_TIMEOUT:
			return B_TIMED_OUT;
		default:
			return B_ERROR;
	}
}


void
SoundServer::_Answered(pa_context*, int success, void* server)
{
	static_cast<SoundServer*>(server)->fHasSucceeded = success != 0;
}

} // namespace hosted
