// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <Clipboard.h>

#include <atomic>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include <Message.h>
#include <Messenger.h>

#include <QClipboard>
#include <QGuiApplication>

#include "platform/screen/DisplayThread.h"
#include "tests/support/Desktop.h"
#include "tests/support/Receiver.h"


namespace {

void
set_text(BClipboard& clipboard, const std::string& text)
{
	ASSERT_TRUE(clipboard.Lock());
	clipboard.Clear();
	clipboard.Data()->AddData("text/plain", B_MIME_TYPE, text.data(), ssize_t(text.size()));
	EXPECT_EQ(clipboard.Commit(), B_OK);
	clipboard.Unlock();
}


std::string
text_of(BClipboard& clipboard)
{
	EXPECT_TRUE(clipboard.Lock());
	const void* data = nullptr;
	ssize_t size = 0;
	std::string text = "none";
	if (clipboard.Data()->FindData("text/plain", B_MIME_TYPE, &data, &size) == B_OK)
		text.assign(static_cast<const char*>(data), size_t(size));
	clipboard.Unlock();
	return text;
}


// As another program does.
void
copy_outside(const char* text)
{
	hosted::DisplayThread::Call(
		[text]() { QGuiApplication::clipboard()->setText(QString::fromUtf8(text)); });
}


std::string
paste_outside()
{
	std::string text;
	hosted::DisplayThread::Call(
		[&]() { text = QGuiApplication::clipboard()->text().toStdString(); });
	return text;
}


class ClipboardTest : public testing::Test {
protected:
	void SetUp() override { test::Application(); }
};

} // namespace


TEST_F(ClipboardTest, ApplicationHasTheSystemClipboard)
{
	ASSERT_NE(be_clipboard, nullptr);
	EXPECT_STREQ(be_clipboard->Name(), "system");
}


TEST_F(ClipboardTest, LockIsRecursiveAndExclusive)
{
	BClipboard clipboard("locks");
	EXPECT_FALSE(clipboard.IsLocked());
	ASSERT_TRUE(clipboard.Lock());
	ASSERT_TRUE(clipboard.Lock());
	EXPECT_TRUE(clipboard.IsLocked());
	clipboard.Unlock();
	EXPECT_TRUE(clipboard.IsLocked());

	std::atomic<bool> locked{false};
	std::thread thread([&]() {
		EXPECT_FALSE(clipboard.IsLocked());
		clipboard.Lock();
		locked = true;
		clipboard.Unlock();
	});
	std::this_thread::sleep_for(std::chrono::milliseconds(20));
	EXPECT_FALSE(locked);
	clipboard.Unlock();
	thread.join();
	EXPECT_TRUE(locked);
	EXPECT_FALSE(clipboard.IsLocked());
}


TEST(ClipboardDeathTest, DataNeedsTheLock)
{
	testing::FLAGS_gtest_death_test_style = "threadsafe";
	BClipboard clipboard("unlocked");
	EXPECT_DEATH(clipboard.Clear(), "without being locked");
	EXPECT_DEATH(clipboard.Data(), "without being locked");
	EXPECT_DEATH(clipboard.Commit(), "without being locked");
	EXPECT_DEATH(clipboard.Revert(), "without being locked");
}


TEST_F(ClipboardTest, ClipboardsOfOneNameShareWhatIsCommitted)
{
	BClipboard one("shared");
	BClipboard two("shared");
	BClipboard other("other");
	set_text(one, "text");
	EXPECT_EQ(text_of(two), "text");
	EXPECT_EQ(text_of(other), "none");

	ASSERT_TRUE(one.Lock());
	one.Clear();
	one.Unlock();
	EXPECT_EQ(text_of(two), "text");
}


TEST_F(ClipboardTest, RevertTakesBackWhatWasNotCommitted)
{
	BClipboard clipboard("revert");
	set_text(clipboard, "kept");
	ASSERT_TRUE(clipboard.Lock());
	clipboard.Clear();
	EXPECT_TRUE(clipboard.Data()->IsEmpty());
	EXPECT_EQ(clipboard.Revert(), B_OK);
	EXPECT_FALSE(clipboard.Data()->IsEmpty());
	clipboard.Unlock();
	EXPECT_EQ(text_of(clipboard), "kept");
}


TEST_F(ClipboardTest, CountsTellOfChanges)
{
	BClipboard one("counts");
	BClipboard two("counts");
	set_text(one, "first");
	EXPECT_EQ(one.LocalCount(), one.SystemCount());
	EXPECT_NE(two.LocalCount(), two.SystemCount());
	ASSERT_TRUE(two.Lock());
	EXPECT_EQ(two.LocalCount(), two.SystemCount());
	const uint32 before = two.SystemCount();
	set_text(one, "second");
	EXPECT_EQ(two.SystemCount(), before + 1);
	EXPECT_EQ(two.Commit(true), B_ERROR);
	EXPECT_EQ(two.Commit(false), B_OK);
	two.Unlock();
}


TEST_F(ClipboardTest, WatchersAreTold)
{
	BClipboard clipboard("watched");
	test::Receiver* receiver = new test::Receiver;
	EXPECT_EQ(clipboard.StartWatching(BMessenger(receiver)), B_OK);
	set_text(clipboard, "a");
	EXPECT_TRUE(receiver->WaitForMessages(1));
	EXPECT_EQ(receiver->Messages()[0].what, uint32(B_CLIPBOARD_CHANGED));
	EXPECT_EQ(clipboard.StopWatching(BMessenger(receiver)), B_OK);
	EXPECT_EQ(clipboard.StopWatching(BMessenger(receiver)), B_BAD_VALUE);
	EXPECT_EQ(clipboard.StartWatching(BMessenger()), B_BAD_VALUE);
	set_text(clipboard, "b");
	EXPECT_TRUE(receiver->HasOnly(1));
	receiver->Lock();
	receiver->Quit();
}


TEST_F(ClipboardTest, TextGoesToAndFroOnTheDesktop)
{
	set_text(*be_clipboard, "fr\u00fch");
	EXPECT_EQ(paste_outside(), "fr\u00fch");

	test::Receiver* receiver = new test::Receiver;
	be_clipboard->StartWatching(BMessenger(receiver));
	const uint32 before = be_clipboard->SystemCount();
	copy_outside("sp\u00e4t");
	EXPECT_TRUE(receiver->WaitForMessages(1));
	EXPECT_GT(be_clipboard->SystemCount(), before);
	EXPECT_EQ(text_of(*be_clipboard), "sp\u00e4t");
	be_clipboard->StopWatching(BMessenger(receiver));
	receiver->Lock();
	receiver->Quit();
}


TEST_F(ClipboardTest, OtherDataStaysInsideUntilAnotherProgramCopies)
{
	ASSERT_TRUE(be_clipboard->Lock());
	be_clipboard->Clear();
	be_clipboard->Data()->AddInt32("private", 7);
	EXPECT_EQ(be_clipboard->Commit(), B_OK);
	be_clipboard->Unlock();
	EXPECT_EQ(paste_outside(), "");
	ASSERT_TRUE(be_clipboard->Lock());
	EXPECT_EQ(be_clipboard->Data()->GetInt32("private", 0), 7);
	be_clipboard->Unlock();

	copy_outside("theirs");
	ASSERT_TRUE(be_clipboard->Lock());
	EXPECT_FALSE(be_clipboard->Data()->HasInt32("private"));
	be_clipboard->Unlock();
	EXPECT_EQ(text_of(*be_clipboard), "theirs");
}
