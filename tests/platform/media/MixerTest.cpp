// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <MediaRoster.h>

#include <atomic>
#include <limits>
#include <memory>
#include <signal.h>
#include <string>
#include <thread>
#include <vector>

#include <OS.h>

#include <gtest/gtest.h>

#include "tests/support/Output.h"
#include "tests/support/SoundServer.h"
#include "tests/support/Wait.h"

static_assert(BParameter::B_NULL_PARAMETER == 0 && BParameter::B_DISCRETE_PARAMETER == 1);
static_assert(BParameter::B_CONTINUOUS_PARAMETER == 2 && BParameter::B_TEXT_PARAMETER == 3);

using test::SoundServer;


namespace {

// A second and what a busy machine adds.
constexpr bigtime_t kLimit = 3000000;


// Tests the mixer of a sound server of its own, whose only output plays to nobody.
class Mixer : public testing::Test {
protected:
	void SetUp() override { StartServer(); }

	void StartServer(const std::string& output = "module-null-sink channels=2")
	{
		ASSERT_TRUE(fServer.Start(output)) << fServer.Log();
	}

	void StopServer() { fServer.Stop(); }
	void Signal(int signal) { fServer.Signal(signal); }
	static std::string Ask(const std::vector<std::string>& words)
	{
		return SoundServer::Ask(words);
	}
	static std::string Mute() { return SoundServer::Mute(); }
	static std::string Volume() { return SoundServer::Volume(); }

	// In steps from full volume, because a number with a sign is a step for pactl.
	static void SetVolume(const std::string& left, const std::string& right)
	{
		Ask({"set-sink-volume", "@DEFAULT_SINK@", "100%"});
		Ask({"set-sink-volume", "@DEFAULT_SINK@", left, right});
	}

	static std::unique_ptr<BParameterWeb> Web()
	{
		BMediaRoster* const roster = BMediaRoster::Roster();
		media_node node;
		BParameterWeb* web = nullptr;
		EXPECT_EQ(roster->GetAudioMixer(&node), B_OK);
		EXPECT_EQ(roster->GetParameterWebFor(node, &web), B_OK);
		EXPECT_EQ(roster->ReleaseNode(node), B_OK);
		return std::unique_ptr<BParameterWeb>(web);
	}

	static BParameter* Find(BParameterWeb& web, int32 id)
	{
		for (int32 i = 0; i < web.CountParameters(); i++) {
			if (web.ParameterAt(i)->ID() == id)
				return web.ParameterAt(i);
		}
		return nullptr;
	}

	static status_t GetMute(BParameter* parameter, int32* value)
	{
		size_t size = sizeof(*value);
		bigtime_t when;
		return parameter->GetValue(value, &size, &when);
	}

	static status_t SetMute(BParameter* parameter, int32 value)
	{
		return parameter->SetValue(&value, sizeof(value), system_time());
	}

	static status_t SetGains(BParameter* parameter, const std::vector<float>& gains)
	{
		return parameter->SetValue(gains.data(), gains.size() * sizeof(float), system_time());
	}

	static std::vector<float> Gains(BParameter* parameter)
	{
		std::vector<float> gains(32, 99);
		size_t size = gains.size() * sizeof(float);
		EXPECT_EQ(parameter->GetValue(gains.data(), &size, nullptr), B_OK);
		gains.resize(size / sizeof(float));
		return gains;
	}

private:
	SoundServer fServer;
};

} // namespace


TEST_F(Mixer, RosterIsSharedAndAlwaysThere)
{
	status_t error = B_ERROR;
	BMediaRoster* const roster = BMediaRoster::Roster(&error);
	ASSERT_NE(roster, nullptr);
	EXPECT_EQ(error, B_OK);
	EXPECT_EQ(BMediaRoster::Roster(), roster);
}


TEST_F(Mixer, HasMuteAndGain)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	ASSERT_NE(web, nullptr);
	ASSERT_EQ(web->CountParameters(), 2);
	EXPECT_EQ(web->ParameterAt(-1), nullptr);
	EXPECT_EQ(web->ParameterAt(2), nullptr);

	BParameter* const mute = Find(*web, 7);
	ASSERT_NE(mute, nullptr);
	EXPECT_EQ(mute->Type(), 1);
	EXPECT_STREQ(mute->Kind(), "Mute");
	EXPECT_STREQ(mute->Kind(), B_MUTE);
	EXPECT_STREQ(mute->Name(), "Mute");
	EXPECT_EQ(mute->CountChannels(), 1);

	BParameter* const gain = Find(*web, 8);
	ASSERT_NE(gain, nullptr);
	EXPECT_EQ(gain->Type(), 2);
	EXPECT_STREQ(gain->Kind(), "Master");
	EXPECT_STREQ(gain->Kind(), B_MASTER_GAIN);
	EXPECT_STREQ(gain->Name(), "Gain");
	EXPECT_EQ(gain->CountChannels(), 2);
}


TEST_F(Mixer, RefusesWhatIsNoMixer)
{
	BMediaRoster* const roster = BMediaRoster::Roster();
	const media_node none;
	BParameterWeb* web = nullptr;
	EXPECT_EQ(roster->GetParameterWebFor(none, &web), B_BAD_VALUE);
	EXPECT_EQ(web, nullptr);
	EXPECT_EQ(roster->ReleaseNode(none), B_BAD_VALUE);
	EXPECT_EQ(roster->GetAudioMixer(nullptr), B_BAD_VALUE);
	media_node mixer;
	ASSERT_EQ(roster->GetAudioMixer(&mixer), B_OK);
	EXPECT_EQ(roster->GetParameterWebFor(mixer, nullptr), B_BAD_VALUE);
}


TEST_F(Mixer, MuteReachesTheServerAndComesBack)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const mute = Find(*web, 7);
	int32 value = -1;
	ASSERT_EQ(GetMute(mute, &value), B_OK);
	EXPECT_EQ(value, 0);
	EXPECT_EQ(Mute(), "Mute: no");

	ASSERT_EQ(SetMute(mute, 1), B_OK);
	EXPECT_EQ(Mute(), "Mute: yes");
	EXPECT_EQ(GetMute(mute, &value), B_OK);
	EXPECT_EQ(value, 1);

	ASSERT_EQ(SetMute(mute, 0), B_OK);
	EXPECT_EQ(Mute(), "Mute: no");

	// Others mute it too.
	Ask({"set-sink-mute", "@DEFAULT_SINK@", "1"});
	EXPECT_EQ(GetMute(mute, &value), B_OK);
	EXPECT_EQ(value, 1);
}


TEST_F(Mixer, MuteLeavesTheGainAlone)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	SetVolume("-6dB", "-12dB");
	const std::string before = Volume();
	EXPECT_NE(before.find("-12.00 dB"), std::string::npos) << before;
	ASSERT_EQ(SetMute(Find(*web, 7), 1), B_OK);
	EXPECT_EQ(Volume(), before);
}


TEST_F(Mixer, RefusesValuesThatAreNoMute)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const mute = Find(*web, 7);
	const int64 wide = 1;
	EXPECT_EQ(SetMute(mute, 2), B_BAD_VALUE);
	EXPECT_EQ(SetMute(mute, -1), B_BAD_VALUE);
	EXPECT_EQ(mute->SetValue(&wide, sizeof(wide), 0), B_BAD_VALUE);
	EXPECT_EQ(mute->SetValue(&wide, 1, 0), B_BAD_VALUE);
	EXPECT_EQ(mute->SetValue(nullptr, sizeof(int32), 0), B_BAD_VALUE);
	EXPECT_EQ(Mute(), "Mute: no");
}


TEST_F(Mixer, SmallBufferLearnsTheSize)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	float gain = 99;
	size_t size = sizeof(gain);
	bigtime_t when = 0;
	EXPECT_EQ(Find(*web, 8)->GetValue(&gain, &size, &when), B_NO_MEMORY);
	EXPECT_EQ(size, 2 * sizeof(float));
	EXPECT_EQ(gain, 99);
	EXPECT_EQ(Find(*web, 8)->GetValue(nullptr, &size, &when), B_BAD_VALUE);
	EXPECT_EQ(Find(*web, 8)->GetValue(&gain, nullptr, &when), B_BAD_VALUE);
}


TEST_F(Mixer, TimeOfAValueIsThatOfTheReading)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	const bigtime_t before = system_time();
	int32 value;
	size_t size = sizeof(value);
	bigtime_t when = 0;
	ASSERT_EQ(Find(*web, 7)->GetValue(&value, &size, &when), B_OK);
	EXPECT_GE(when, before);
	EXPECT_LE(when, system_time());
}


TEST_F(Mixer, GainIsInDecibelsForEachChannel)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const gain = Find(*web, 8);
	ASSERT_EQ(SetGains(gain, {-6, 3.5}), B_OK);
	const std::string volume = Volume();
	EXPECT_NE(volume.find("-6.00 dB"), std::string::npos) << volume;
	EXPECT_NE(volume.find("3.50 dB"), std::string::npos) << volume;

	SetVolume("-20dB", "-3dB");
	const std::vector<float> gains = Gains(gain);
	ASSERT_EQ(gains.size(), 2u);
	EXPECT_NEAR(gains[0], -20, 0.01);
	EXPECT_NEAR(gains[1], -3, 0.01);
	EXPECT_EQ(Mute(), "Mute: no");
}


TEST_F(Mixer, GainStaysInItsRange)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const gain = Find(*web, 8);
	ASSERT_EQ(SetGains(gain, {-100, 40}), B_OK);
	const std::string volume = Volume();
	EXPECT_NE(volume.find("-60.00 dB"), std::string::npos) << volume;
	EXPECT_NE(volume.find("18.00 dB"), std::string::npos) << volume;

	SetVolume("+30dB", "-90dB");
	EXPECT_EQ(Gains(gain), (std::vector<float>{18, -60}));
}


TEST_F(Mixer, SilenceStaysSilenceWhenWrittenBack)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const gain = Find(*web, 8);
	Ask({"set-sink-volume", "@DEFAULT_SINK@", "0%"});
	const std::string before = Volume();
	EXPECT_NE(before.find("-inf dB"), std::string::npos) << before;
	EXPECT_EQ(Gains(gain), (std::vector<float>{-60, -60}));
	ASSERT_EQ(SetGains(gain, {-60, -60}), B_OK);
	EXPECT_EQ(Volume(), before);
}


TEST_F(Mixer, RefusesGainsThatDoNotFit)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const gain = Find(*web, 8);
	const std::string before = Volume();
	const float value = -10;
	EXPECT_EQ(SetGains(gain, {-10}), B_BAD_VALUE);
	EXPECT_EQ(SetGains(gain, {-10, -10, -10}), B_BAD_VALUE);
	EXPECT_EQ(SetGains(gain, {-10, std::numeric_limits<float>::quiet_NaN()}), B_BAD_VALUE);
	EXPECT_EQ(gain->SetValue(&value, 3, 0), B_BAD_VALUE);
	EXPECT_EQ(gain->SetValue(&value, 0, 0), B_BAD_VALUE);
	EXPECT_EQ(Volume(), before);
}


TEST_F(Mixer, FollowsTheDefaultOutput)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	ASSERT_EQ(SetMute(Find(*web, 7), 1), B_OK);
	ASSERT_NE(Ask({"load-module", "module-null-sink", "sink_name=other", "channels=6"}), "");
	Ask({"set-default-sink", "other"});
	int32 value = -1;
	EXPECT_EQ(GetMute(Find(*web, 7), &value), B_OK);
	EXPECT_EQ(value, 0);
	EXPECT_EQ(Gains(Find(*web, 8)).size(), 6u);
	EXPECT_EQ(Find(*Web(), 8)->CountChannels(), 6);
}


TEST_F(Mixer, ServerWithoutOutputHasNoMixer)
{
	StopServer();
	StartServer("");
	media_node node;
	EXPECT_EQ(BMediaRoster::Roster()->GetAudioMixer(&node), B_NAME_NOT_FOUND);
	EXPECT_EQ(node.node, media_node().node);
}


TEST_F(Mixer, WithoutServerFailsSoonAndSilently)
{
	StopServer();
	BMediaRoster* const roster = BMediaRoster::Roster();
	const bigtime_t start = system_time();
	media_node node;
	status_t status = B_OK;
	EXPECT_EQ(test::ErrorsOf([&]() { status = roster->GetAudioMixer(&node); }), "");
	EXPECT_EQ(status, B_NO_INIT);
	EXPECT_EQ(node.node, media_node().node);
	EXPECT_LT(system_time() - start, kLimit);
}


TEST_F(Mixer, ServerMayDieAndComeBack)
{
	media_node node;
	ASSERT_EQ(BMediaRoster::Roster()->GetAudioMixer(&node), B_OK);
	const std::unique_ptr<BParameterWeb> web = Web();
	BParameter* const mute = Find(*web, 7);
	StopServer();

	const bigtime_t start = system_time();
	int32 value = -1;
	EXPECT_EQ(GetMute(mute, &value), B_NO_INIT);
	EXPECT_EQ(value, -1);
	EXPECT_EQ(SetMute(mute, 1), B_NO_INIT);
	EXPECT_EQ(SetGains(Find(*web, 8), {0, 0}), B_NO_INIT);
	BParameterWeb* other = nullptr;
	EXPECT_EQ(BMediaRoster::Roster()->GetParameterWebFor(node, &other), B_NO_INIT);
	EXPECT_EQ(other, nullptr);
	EXPECT_LT(system_time() - start, kLimit);

	StartServer();
	EXPECT_EQ(SetMute(mute, 1), B_OK);
	EXPECT_EQ(Mute(), "Mute: yes");
}


TEST_F(Mixer, ServerThatDoesNotAnswerIsGivenUp)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	Signal(SIGSTOP);
	const bigtime_t start = system_time();
	EXPECT_EQ(SetMute(Find(*web, 7), 1), B_TIMED_OUT);
	EXPECT_GE(system_time() - start, 900000);
	EXPECT_LT(system_time() - start, kLimit);
	Signal(SIGCONT);
	EXPECT_EQ(Mute(), "Mute: no");
}


TEST_F(Mixer, ServerThatDiesWhileItIsAskedIsAnError)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	Signal(SIGSTOP);
	std::atomic<status_t> status = B_OK;
	std::thread asking([&]() { status = SetMute(Find(*web, 7), 1); });
	// Long enough for the question, too short for giving up.
	snooze(200000);
	StopServer();
	asking.join();
	EXPECT_EQ(status, B_NO_INIT);
}


TEST_F(Mixer, AnyThreadMayCall)
{
	const std::unique_ptr<BParameterWeb> web = Web();
	std::atomic<int> failures = 0;
	std::vector<std::thread> threads;
	for (int32 i = 0; i < 6; i++) {
		threads.emplace_back([&, i]() {
			for (int32 round = 0; round < 10; round++) {
				int32 value = -1;
				const bool set = SetMute(Find(*web, 7), (i + round) % 2) == B_OK;
				const bool got
					= GetMute(Find(*web, 7), &value) == B_OK && (value == 0 || value == 1);
				if (!set || !got)
					failures++;
			}
		});
	}
	for (std::thread& thread : threads)
		thread.join();
	EXPECT_EQ(failures, 0);
	EXPECT_EQ(SetMute(Find(*web, 7), 1), B_OK);
	EXPECT_EQ(Mute(), "Mute: yes");
}
