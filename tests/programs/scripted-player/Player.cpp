// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// A player that other programs steer, for the tests of what steers it. It keeps a record of what it
// is asked for, a line each. Variables tell it what to be and how to misbehave:
//
//   PLAYER_SIGNATURE   what it registers as
//   PLAYER_RECORD      the file of the record
//   PLAYER_TRACKS      how many track objects it has; 1 if not said
//   PLAYER_VOLUME      their volume at first; 0.5 if not said
//   PLAYER_WINDOWS     the titles of its windows, each behind a "|"
//   PLAYER_FAULT       see Fault
//   PLAYER_DELAY       milliseconds from its start to its registration
#include <algorithm>
#include <map>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <unistd.h>
#include <vector>

#include <Application.h>
#include <Message.h>
#include <OS.h>
#include <Window.h>


namespace {

enum class Fault {
	kNone,
	// Answers the question for a track after three seconds, or never.
	kLate,
	kSilent,
	// Answers it with an error beside the messenger, or with a text instead of one.
	kError,
	kNoMessenger,
	// Has a track for every number.
	kEndless,
	// Tells the volume as a text, as no number, late, or never.
	kVolumeText,
	kVolumeNotANumber,
	kVolumeLate,
	kVolumeSilent,
	// Ends when it is asked for the second track, for a volume, or to do anything with a track.
	kDiesAtSecondTrack,
	kDiesAtVolume,
	kDiesAtCommand,
	// Has a million windows, or never tells how many.
	kEndlessWindows,
	kSilentWindows,
	// Its windows never tell whether they are active.
	kSilentActive,
};

const std::map<std::string, Fault> kFaults = {{"late", Fault::kLate}, {"silent", Fault::kSilent},
	{"error", Fault::kError}, {"no-messenger", Fault::kNoMessenger}, {"endless", Fault::kEndless},
	{"volume-text", Fault::kVolumeText}, {"volume-nan", Fault::kVolumeNotANumber},
	{"volume-late", Fault::kVolumeLate}, {"volume-silent", Fault::kVolumeSilent},
	{"dies-at-second-track", Fault::kDiesAtSecondTrack}, {"dies-at-volume", Fault::kDiesAtVolume},
	{"dies-at-command", Fault::kDiesAtCommand}, {"endless-windows", Fault::kEndlessWindows},
	{"silent-windows", Fault::kSilentWindows}, {"silent-active", Fault::kSilentActive}};

constexpr bigtime_t kLateness = 3000000;

FILE* sRecord = stdout;
Fault sFault = Fault::kNone;


const char*
variable(const char* name, const char* otherwise)
{
	const char* value = getenv(name);
	return value != nullptr ? value : otherwise;
}


// The message stays undeleted, so that not even its end answers it.
void
never_answer(BLooper* looper)
{
	looper->DetachCurrentMessage();
}


class Track : public BHandler {
public:
	Track(int32 index, float volume)
		:
		fIndex(index),
		fVolume(volume)
	{
	}

	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override
	{
		for (const char* own : {"pitch", "volume", "next", "previous"}) {
			if (std::string(own) == property)
				return this;
		}
		return BHandler::ResolveSpecifier(message, index, specifier, what, property);
	}

	void MessageReceived(BMessage* message) override
	{
		BMessage specifier;
		const char* property = "";
		int32 index;
		int32 form;
		message->GetCurrentSpecifier(&index, &specifier, &form, &property);
		if (message->what == B_GET_PROPERTY && std::string(property) == "volume")
			_TellVolume(message);
		else if (message->what == B_SET_PROPERTY)
			_Set(message, property);
		else if (message->what == B_EXECUTE_PROPERTY)
			_Execute(message, property);
		else
			BHandler::MessageReceived(message);
	}

private:
	void _TellVolume(BMessage* message)
	{
		fprintf(sRecord, "track %d: volume?\n", fIndex);
		BMessage reply(B_REPLY);
		switch (sFault) {
			case Fault::kDiesAtVolume:
				_exit(3);
			case Fault::kVolumeSilent:
				never_answer(Looper());
				return;
			case Fault::kVolumeText:
				reply.AddString("result", "loud");
				break;
			case Fault::kVolumeNotANumber:
				reply.AddFloat("result", __builtin_nanf(""));
				break;
			default:
				if (sFault == Fault::kVolumeLate)
					snooze(kLateness);
				reply.AddFloat("result", fVolume);
				break;
		}
		reply.AddInt32("error", B_OK);
		message->SendReply(&reply);
	}

	void _Set(BMessage* message, const char* property)
	{
		if (sFault == Fault::kDiesAtCommand)
			_exit(3);
		const float value = message->GetFloat("data", -1);
		fprintf(sRecord, "track %d: %s %.2f\n", fIndex, property, static_cast<double>(value));
		if (std::string(property) == "volume")
			fVolume = value;
		_Answer(message);
	}

	void _Execute(BMessage* message, const char* property)
	{
		if (sFault == Fault::kDiesAtCommand)
			_exit(3);
		fprintf(sRecord, "track %d: %s\n", fIndex, property);
		_Answer(message);
	}

	void _Answer(BMessage* message)
	{
		BMessage reply(B_REPLY);
		reply.AddInt32("error", B_OK);
		message->SendReply(&reply);
	}

private:
	const int32 fIndex;
	float fVolume;
};


class PlayerWindow : public BWindow {
public:
	PlayerWindow(BRect frame, const char* title)
		:
		BWindow(frame, title, B_TITLED_WINDOW, 0)
	{
	}

	bool QuitRequested() override
	{
		fprintf(sRecord, "window %s: quit\n", Title());
		return true;
	}

	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override
	{
		if (sFault != Fault::kSilentActive || std::string(property) != "Active")
			return BWindow::ResolveSpecifier(message, index, specifier, what, property);
		never_answer(this);
		return nullptr;
	}

	void WindowActivated(bool active) override
	{
		if (active)
			fprintf(sRecord, "window %s: active\n", Title());
	}
};


class Player : public BApplication {
public:
	explicit Player(const char* signature)
		:
		BApplication(signature)
	{
		const int count = atoi(variable("PLAYER_TRACKS", "1"));
		const double volume = atof(variable("PLAYER_VOLUME", "0.5"));
		for (int32 index = 0; index < count; index++) {
			fTracks.push_back(new Track(index, static_cast<float>(volume)));
			AddHandler(fTracks.back());
		}
	}

	void ReadyToRun() override
	{
		fprintf(sRecord, "ready\n");
		const std::string titles = variable("PLAYER_WINDOWS", "");
		float left = 50;
		for (size_t begin = 0; begin < titles.size(); left += 40) {
			const size_t end = std::min(titles.find('|', begin), titles.size());
			const std::string title = titles.substr(begin, end - begin);
			(new PlayerWindow(BRect(left, 50, left + 99, 149), title.c_str()))->Show();
			begin = end + 1;
		}
	}

	bool QuitRequested() override
	{
		fprintf(sRecord, "quit\n");
		return true;
	}

	BHandler* ResolveSpecifier(BMessage* message, int32 index, BMessage* specifier, int32 what,
		const char* property) override
	{
		if (std::string(property) == "Window" && !_MisbehaveInWindows(message, what))
			return nullptr;
		if (std::string(property) != "track")
			return BApplication::ResolveSpecifier(message, index, specifier, what, property);
		const int32 number = specifier->GetInt32("index", -1);
		if (!_Misbehave(message, number))
			return nullptr;
		const int32 count = static_cast<int32>(fTracks.size());
		if (sFault == Fault::kEndless && number >= count)
			return _Track(message, 0);
		if (number >= 0 && number < count)
			return _Track(message, number);
		BMessage reply(B_MESSAGE_NOT_UNDERSTOOD);
		reply.AddInt32("error", B_BAD_INDEX);
		message->SendReply(&reply);
		return nullptr;
	}

	void MessageReceived(BMessage* message) override
	{
		switch (message->what) {
			case 'mark':
				// Whoever hears the answer knows that everything before is in the record.
				message->SendReply('mark');
				break;
			case B_KEY_DOWN:
				_RecordKey(*message);
				break;
			case B_UNMAPPED_KEY_DOWN:
				fprintf(sRecord, "unmapped key %x modifiers %x when %d states %d\n",
					message->GetInt32("key", -1), message->GetInt32("modifiers", -1),
					message->HasInt64("when") ? 1 : 0, StatesSize(*message));
				break;
			case B_MOUSE_DOWN:
			case B_MOUSE_UP:
				fprintf(sRecord, "%s clicks %d buttons %d\n",
					message->what == B_MOUSE_DOWN ? "press" : "release",
					message->GetInt32("clicks", -1), message->GetInt32("buttons", -1));
				break;
			case 'note':
				fprintf(sRecord, "note %s\n", message->GetString("text", ""));
				break;
			default:
				BApplication::MessageReceived(message);
				break;
		}
	}

private:
	BHandler* _Track(BMessage* message, int32 number)
	{
		message->PopSpecifier();
		return fTracks[static_cast<size_t>(number)];
	}

	// False if the question needs no more answer.
	bool _Misbehave(BMessage* message, int32 number)
	{
		BMessage reply(B_REPLY);
		switch (sFault) {
			case Fault::kLate:
				snooze(kLateness);
				return true;
			case Fault::kSilent:
				never_answer(this);
				return false;
			case Fault::kError:
				reply.AddInt32("error", B_ERROR);
				reply.AddMessenger("result", BMessenger(fTracks.front()));
				message->SendReply(&reply);
				return false;
			case Fault::kNoMessenger:
				reply.AddInt32("error", B_OK);
				reply.AddString("result", "track");
				message->SendReply(&reply);
				return false;
			case Fault::kDiesAtSecondTrack:
				if (number == 1)
					_exit(3);
				return true;
			default:
				return true;
		}
	}

	bool _MisbehaveInWindows(BMessage* message, int32 what)
	{
		if (what != B_DIRECT_SPECIFIER)
			return true;
		if (sFault == Fault::kSilentWindows) {
			never_answer(this);
			return false;
		}
		if (sFault != Fault::kEndlessWindows)
			return true;
		BMessage reply(B_REPLY);
		reply.AddInt32("result", 1000000);
		message->SendReply(&reply);
		return false;
	}

	static int StatesSize(const BMessage& message)
	{
		const void* states;
		ssize_t size = 0;
		message.FindData("states", B_UINT8_TYPE, &states, &size);
		return static_cast<int>(size);
	}

	void _RecordKey(const BMessage& message)
	{
		fprintf(sRecord, "key %x char %x byte %x bytes '%s' modifiers %x when %d states %d\n",
			message.GetInt32("key", -1), message.GetInt32("raw_char", -1),
			message.GetInt8("byte", -1), message.GetString("bytes", "none"),
			message.GetInt32("modifiers", -1), message.HasInt64("when") ? 1 : 0,
			StatesSize(message));
	}

private:
	std::vector<Track*> fTracks;
};

} // namespace


int
main()
{
	const char* record = getenv("PLAYER_RECORD");
	if (record != nullptr)
		sRecord = fopen(record, "a");
	if (sRecord == nullptr)
		return 1;
	setvbuf(sRecord, nullptr, _IOLBF, 0);
	setenv("QT_QPA_PLATFORM", "offscreen", 0);
	const auto fault = kFaults.find(variable("PLAYER_FAULT", ""));
	if (fault != kFaults.end())
		sFault = fault->second;
	usleep(static_cast<useconds_t>(atoi(variable("PLAYER_DELAY", "0"))) * 1000);
	Player player(variable("PLAYER_SIGNATURE", "application/x-vnd.marcone-soundplay"));
	player.Run();
	fprintf(sRecord, "ended\n");
	return 0;
}
