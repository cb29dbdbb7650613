// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// The master volume of the sound system.
#include "appcontrol/RemoteCommands.h"

#include <memory>

#include <stdio.h>
#include <string.h>

#include <Button.h>
#include <MediaNode.h>
#include <MediaRoster.h>
#include <OS.h>
#include <ParameterWeb.h>

#include "appcontrol/RemoteViews.h"


static status_t
mixer_web(std::unique_ptr<BParameterWeb>* web)
{
	status_t status = B_OK;
	BMediaRoster* const roster = BMediaRoster::Roster(&status);
	if (roster == nullptr)
		return status != B_OK ? status : B_ERROR;
	media_node mixer;
	status = roster->GetAudioMixer(&mixer);
	if (status != B_OK)
		return status;
	BParameterWeb* found = nullptr;
	status = roster->GetParameterWebFor(mixer, &found);
	roster->ReleaseNode(mixer);
	if (status == B_OK)
		web->reset(found);
	return status;
}


static BParameter*
find_mute(BParameterWeb& web)
{
	for (int32 index = 0; index < web.CountParameters(); index++) {
		BParameter* const parameter = web.ParameterAt(index);
		if (parameter != nullptr && parameter->Type() == BParameter::B_DISCRETE_PARAMETER
			&& strcmp(parameter->Kind(), B_MUTE) == 0)
			return parameter;
	}
	return nullptr;
}


static status_t
read_mute(BParameter& mute, int32* value)
{
	size_t size = sizeof(*value);
	bigtime_t when;
	return mute.GetValue(value, &size, &when);
}


static status_t
mute_master(bool toggle, bool* isMuted)
{
	std::unique_ptr<BParameterWeb> web;
	status_t status = mixer_web(&web);
	if (status != B_OK)
		return status;
	BParameter* const mute = find_mute(*web);
	if (mute == nullptr)
		return B_NAME_NOT_FOUND;

	int32 value = 0;
	status = read_mute(*mute, &value);
	if (status == B_OK && toggle) {
		value = value == 0 ? 1 : 0;
		status = mute->SetValue(&value, sizeof(value), system_time());
	}
	*isMuted = value != 0;
	return status;
}


void
IMuteSound(bool toggle, BButton* button)
{
	bool isMuted = false;
	const status_t status = mute_master(toggle, &isMuted);
	if (status != B_OK) {
		printf("Master volume is out of reach (%lx)\n",
			static_cast<unsigned long>(static_cast<uint32>(status)));
		return;
	}
	printf("Master volume is ");
	printf(isMuted ? "muted   \n" : "unmuted \n");
	WithView(button, [isMuted](BButton& view) {
		// The button's own state, whatever the window's is.
		const bool isHidden = view.IsHidden(&view);
		if (isMuted && isHidden)
			view.Show();
		else if (!isMuted && !isHidden)
			view.Hide();
	});
}
