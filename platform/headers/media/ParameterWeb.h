// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef PARAMETER_WEB_H
#define PARAMETER_WEB_H

#include <stddef.h>
#include <vector>

#include <MediaDefs.h>

extern const char* const B_MASTER_GAIN;
extern const char* const B_MUTE;


/*!	One setting of the mixer: its mute (ID 7, int32, 0 or 1) or its gain (ID 8, a float for each
	channel in dB, from -60 to 18).

	The value is the sound server's at the time of the call, for the output that is then the default
	one. Any thread may call; errors are those of BMediaRoster.
*/
class BParameter {
public:
	enum media_parameter_type {
		B_NULL_PARAMETER = 0,
		B_DISCRETE_PARAMETER = 1,
		B_CONTINUOUS_PARAMETER = 2,
		B_TEXT_PARAMETER = 3,
	};

	BParameter(const BParameter&) = delete;
	BParameter& operator=(const BParameter&) = delete;

	media_parameter_type Type() const { return fType; }
	const char* Name() const { return fName; }
	const char* Kind() const { return fKind; }
	int32 ID() const { return fID; }

	// size goes in as the buffer's and comes back as the value's, also with B_NO_MEMORY, which
	// means that the buffer is too small. when, which may be null, is the time of the reading.
	status_t GetValue(void* buffer, size_t* size, bigtime_t* when);
	// Gains beyond the range become the nearest ones. Whatever the time is, it happens at once.
	status_t SetValue(const void* buffer, size_t size, bigtime_t when);
	// As many as the default output had when the web was made.
	int32 CountChannels() { return fChannels; }

private:
	friend class BMediaRoster;
	friend class BParameterWeb;

	BParameter(media_parameter_type type, int32 id, const char* name, const char* kind,
		int32 channels);
	~BParameter() = default;

private:
	const media_parameter_type fType;
	const int32 fID;
	const char* const fName;
	const char* const fKind;
	const int32 fChannels;
};


// The settings of the mixer. It owns them.
class BParameterWeb {
public:
	~BParameterWeb();
	BParameterWeb(const BParameterWeb&) = delete;
	BParameterWeb& operator=(const BParameterWeb&) = delete;

	int32 CountParameters();
	// Null beyond the last one.
	BParameter* ParameterAt(int32 index);

private:
	friend class BMediaRoster;

	explicit BParameterWeb(const std::vector<BParameter*>& parameters);

private:
	std::vector<BParameter*> fParameters;
};

#endif // PARAMETER_WEB_H
