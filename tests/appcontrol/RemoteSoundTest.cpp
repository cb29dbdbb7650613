// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <signal.h>

#include <Button.h>
#include <OS.h>
#include <Window.h>

#include "appcontrol/RemoteCommands.h"
#include "tests/support/Desktop.h"
#include "tests/support/Output.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/SoundServer.h"

using test::OutputOf;
using test::SoundServer;


namespace {

constexpr char kMuted[] = "Master volume is muted   \n";
constexpr char kUnmuted[] = "Master volume is unmuted \n";

class IMuteSoundTest : public testing::Test {
protected:
	void SetUp() override { ASSERT_TRUE(fServer.Start()) << fServer.Log(); }

	static std::string Call(bool toggle, BButton* button = nullptr)
	{
		return OutputOf([=] { IMuteSound(toggle, button); });
	}

	SoundServer fServer;
};

} // namespace


TEST_F(IMuteSoundTest, TogglesTheMasterVolume)
{
	EXPECT_EQ(Call(true), kMuted);
	EXPECT_EQ(SoundServer::Mute(), "Mute: yes");
	EXPECT_EQ(Call(true), kUnmuted);
	EXPECT_EQ(SoundServer::Mute(), "Mute: no");
}


TEST_F(IMuteSoundTest, OnlyLooksIfNotToChange)
{
	EXPECT_EQ(Call(false), kUnmuted);
	EXPECT_EQ(SoundServer::Mute(), "Mute: no");
	SoundServer::Ask({"set-sink-mute", "@DEFAULT_SINK@", "1"});
	EXPECT_EQ(Call(false), kMuted);
	EXPECT_EQ(SoundServer::Mute(), "Mute: yes");
}


TEST_F(IMuteSoundTest, ButtonIsThereWhileTheSoundIsOff)
{
	BButton button(BRect(0, 0, 59, 29), "mute", "Muted", nullptr);
	Call(false, &button);
	EXPECT_TRUE(button.IsHidden());
	Call(true, &button);
	EXPECT_FALSE(button.IsHidden());
	// Hidden and shown once each, however often it is asked.
	Call(false, &button);
	Call(false, &button);
	EXPECT_FALSE(button.IsHidden());
	Call(true, &button);
	Call(false, &button);
	EXPECT_TRUE(button.IsHidden());
	button.Show();
	EXPECT_FALSE(button.IsHidden());
}


TEST_F(IMuteSoundTest, ButtonMayBeInAWindow)
{
	test::TheApplication();
	BWindow* const window = new BWindow(BRect(50, 50, 149, 149), "own", B_TITLED_WINDOW, 0);
	BButton* const button = new BButton(BRect(0, 0, 59, 29), "mute", "Muted", nullptr);
	window->AddChild(button);
	window->Show();
	Call(false, button);
	ASSERT_TRUE(window->Lock());
	EXPECT_TRUE(button->IsHidden());
	EXPECT_EQ(window->CountLocks(), 1);
	window->Unlock();
	test::CloseWindow(window);
}


TEST_F(IMuteSoundTest, WithoutServerItSaysSo)
{
	fServer.Stop();
	BButton button(BRect(0, 0, 59, 29), "mute", "Muted", nullptr);
	const std::string output = Call(true, &button);
	EXPECT_EQ(output.find("Master volume is out of reach ("), 0u) << output;
	EXPECT_FALSE(button.IsHidden());
}


TEST_F(IMuteSoundTest, ServerThatHangsDelaysOnly)
{
	fServer.Signal(SIGSTOP);
	const bigtime_t start = system_time();
	const std::string output = Call(true);
	EXPECT_LT(system_time() - start, 5000000);
	EXPECT_EQ(output.find("Master volume is out of reach ("), 0u) << output;
	fServer.Signal(SIGCONT);
}
