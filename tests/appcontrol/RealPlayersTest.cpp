// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
// Real players, steered as the first audio player.
#include <functional>
#include <math.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <AppDefs.h>
#include <Roster.h>

#include "appcontrol/RemoteCommands.h"
#include "platform/desktop/Mpris.h"
#include "platform/desktop/Players.h"
#include "tests/appcontrol/ScriptedPlayer.h"
#include "tests/support/Wait.h"

using test::Lines;
using test::Program;


namespace {

// What a real player may take to do as it was asked on a busy machine.
constexpr std::chrono::seconds kPatience(20);

class RealPlayersTest : public test::RemoteTest {
protected:
	~RealPlayersTest() override { fPlayer.reset(); }

	// Starts a copy of the player, so that nobody else's is meant, with two titles.
	void Start(const std::string& name, const Lines& options)
	{
		const std::string program = fFolder / name;
		ASSERT_EQ(system(("cp /usr/bin/" + name + " '" + program + "'").c_str()), 0);
		AddPlayers("player " + name
			+ "\n\tsignature application/x-vnd.marcone-soundplay\n"
			  "\texecutable "
			+ program + "\n\tmpris " + name + "\n\ttypes audio\n");
		Lines words = {program};
		words.insert(words.end(), options.begin(), options.end());
		for (const char* title : {"one.wav", "two.wav"}) {
			words.push_back(fFolder / title);
			Program sox({"sox", "-n", "-r", "8000", "-c", "1", words.back(), "synth", "300", "sine",
				"440"});
			ASSERT_TRUE(sox.WaitForEnd());
		}
		fPlayer = std::make_unique<Program>(words);
		hosted::RunningPlayer running;
		ASSERT_TRUE(test::WaitFor(
			[&] {
				return hosted::FindRunningPlayer(fPlayer->Id(), &running)
					&& !running.busNames.empty();
			},
			std::chrono::seconds(40)));
		EXPECT_EQ(running.signature, test::kSoundplaySignature);
		fRemote = std::make_unique<hosted::Mpris>(running.busNames.front());
		ASSERT_TRUE(Plays(true));
		// A player may say that it plays before it has its titles.
		ASSERT_TRUE(HasTitle("one.wav")) << Title();
	}

	void StartMpv()
	{
		Start("mpv",
			{"--no-config", "--script=/etc/mpv/scripts/mpris.so", "--no-video", "--ao=null",
				"--really-quiet", "--no-terminal", "--volume-max=300"});
	}

	void StartVlc()
	{
		if (geteuid() == 0)
			GTEST_SKIP() << "VLC refuses to run as root";
		// The volume needs an output; this one needs no device.
		Start("vlc",
			{"-I", "dummy", "--control", "dbus", "--aout", "alsa", "--alsa-audio-device", "null",
				"--no-video", "--quiet", "--no-play-and-exit"});
	}

	bool Plays(bool wanted)
	{
		bool isPlaying = !wanted;
		return test::WaitFor(
			[&] { return fRemote->GetIsPlaying(&isPlaying) && isPlaying == wanted; }, kPatience);
	}

	bool HasVolume(double wanted)
	{
		double volume = -1;
		const bool has = test::WaitFor(
			[&] { return fRemote->GetVolume(&volume) && fabs(volume - wanted) < 0.011; },
			kPatience);
		EXPECT_TRUE(has) << volume << " instead of " << wanted;
		return has;
	}

	bool SetVolume(double volume) { return fRemote->SetVolume(volume) && HasVolume(volume); }

	// The track is the player itself.
	void TrackIsThePlayer()
	{
		EXPECT_EQ(RemoteTrack(0).Team(), fPlayer->Id());
		EXPECT_FALSE(RemoteTrack(1).IsValid());
	}

	void PlaysAndStops()
	{
		DoCommand(kCommandStop);
		EXPECT_TRUE(Plays(false));
		DoCommand(kCommandPlay);
		EXPECT_TRUE(Plays(true));
		IAudioApps(0x60);
		EXPECT_TRUE(Plays(false));
		IAudioApps(0x5E);
		EXPECT_TRUE(Plays(true));
	}

	void ChangesTheVolume()
	{
		ASSERT_TRUE(SetVolume(0.5));
		DoCommand(kCommandLouder);
		EXPECT_TRUE(HasVolume(0.52));
		DoCommand(kCommandSofter);
		EXPECT_TRUE(HasVolume(0.5));
		// Each of the three steps begins with what the player says after the one before.
		IAudioApps(0x40);
		EXPECT_TRUE(HasVolume(0.56));
		ASSERT_TRUE(SetVolume(0.01));
		DoCommand(kCommandSofter);
		EXPECT_TRUE(HasVolume(0));
		ASSERT_TRUE(SetVolume(1.99));
		DoCommand(kCommandLouder);
		EXPECT_TRUE(HasVolume(2));
		DoCommand(kCommandLouder);
		EXPECT_TRUE(HasVolume(2));
	}

	void Mutes()
	{
		ASSERT_TRUE(SetVolume(0.5));
		DoCommand(kCommandMute);
		EXPECT_TRUE(HasVolume(0));
		DoCommand(kCommandMute);
		EXPECT_TRUE(HasVolume(1));
	}

	void GoesToTheNextTitleAndBack()
	{
		DoCommand(kCommandNext);
		EXPECT_TRUE(HasTitle("two.wav")) << Title();
		DoCommand(kCommandPrevious);
		EXPECT_TRUE(HasTitle("one.wav")) << Title();
	}

	void DelaysOnlyWhileItHangs()
	{
		fPlayer->Kill(SIGSTOP);
		for (const uint32 command : {kCommandLouder, kCommandStop, kCommandMute}) {
			const bigtime_t start = system_time();
			DoCommand(command);
			EXPECT_LT(system_time() - start, 16000000);
		}
		fPlayer->Kill(SIGCONT);
		// What it was asked meanwhile it may do late.
		EXPECT_TRUE(test::WaitFor(
			[this] {
				DoCommand(kCommandStop);
				bool isPlaying = true;
				return fRemote->GetIsPlaying(&isPlaying) && !isPlaying;
			},
			kPatience));
	}

	void Quits()
	{
		EXPECT_EQ(BMessenger(test::kSoundplaySignature).SendMessage(B_QUIT_REQUESTED), B_OK);
		int status = -1;
		EXPECT_TRUE(fPlayer->WaitForEnd(&status, kPatience));
		EXPECT_TRUE(WIFEXITED(status));
		EXPECT_FALSE(be_roster->IsRunning(test::kSoundplaySignature));
	}

	std::string Title();

	bool HasTitle(const std::string& file)
	{
		return test::WaitFor([&] { return Title().find(file) != std::string::npos; }, kPatience);
	}

private:
	std::unique_ptr<Program> fPlayer;
	std::unique_ptr<hosted::Mpris> fRemote;
};


// Where the title that plays is, as the player tells anybody who asks.
std::string
RealPlayersTest::Title()
{
	hosted::RunningPlayer running;
	if (!hosted::FindRunningPlayer(fPlayer->Id(), &running) || running.busNames.empty())
		return "";
	Program asking(
		{"dbus-send", "--session", "--print-reply=literal", "--dest=" + running.busNames.front(),
			"/org/mpris/MediaPlayer2", "org.freedesktop.DBus.Properties.Get",
			"string:org.mpris.MediaPlayer2.Player", "string:Metadata"});
	std::string text;
	for (std::string line = asking.ReadLine(); !line.empty(); line = asking.ReadLine())
		text += line + "\n";
	asking.WaitForEnd();
	return text;
}

} // namespace


TEST_F(RealPlayersTest, MpvPlaysAndStops)
{
	StartMpv();
	TrackIsThePlayer();
	PlaysAndStops();
}


TEST_F(RealPlayersTest, MpvChangesItsVolume)
{
	StartMpv();
	ChangesTheVolume();
	Mutes();
}


TEST_F(RealPlayersTest, MpvGoesThroughItsTitlesAndQuits)
{
	StartMpv();
	GoesToTheNextTitleAndBack();
	Quits();
}


TEST_F(RealPlayersTest, MpvDelaysOnlyWhileItHangs)
{
	StartMpv();
	DelaysOnlyWhileItHangs();
}


TEST_F(RealPlayersTest, VlcPlaysAndStops)
{
	StartVlc();
	if (IsSkipped())
		return;
	TrackIsThePlayer();
	PlaysAndStops();
}


TEST_F(RealPlayersTest, VlcChangesItsVolume)
{
	StartVlc();
	if (IsSkipped())
		return;
	ChangesTheVolume();
	Mutes();
}


TEST_F(RealPlayersTest, VlcGoesThroughItsTitlesAndQuits)
{
	StartVlc();
	if (IsSkipped())
		return;
	GoesToTheNextTitleAndBack();
	Quits();
}
