// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "settings/Helpers.h"

#include <atomic>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <Qt>

#include <Autolock.h>
#include <Bitmap.h>
#include <Box.h>
#include <Button.h>
#include <CheckBox.h>
#include <Menu.h>
#include <MenuField.h>
#include <Message.h>
#include <NodeInfo.h>
#include <Roster.h>
#include <StringView.h>
#include <TextControl.h>
#include <TypeConstants.h>
#include <Window.h>
#include <gtest/gtest.h>

#include "tests/support/Desktop.h"
#include "tests/support/RunningApplication.h"
#include "tests/support/Media.h"
#include "tests/support/Output.h"
#include "tests/support/Popups.h"
#include "tests/support/TempFolder.h"
#include "tests/support/Wait.h"


static void
set_type(const std::string& path, const char* type)
{
	BNode node(path.c_str());
	ASSERT_EQ(BNodeInfo(&node).SetType(type), B_OK);
}


static long
duration_of(const std::string& path)
{
	entry_ref ref;
	EXPECT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
	long seconds = -1;
	GetMediaDuration(&ref, &seconds);
	return seconds;
}


TEST(MakeColor, CutsEachNumberToAByte)
{
	EXPECT_EQ(make_color(1, 2, 3, 4), (rgb_color{1, 2, 3, 4}));
	EXPECT_EQ(make_color(256, 257, -1, 511), (rgb_color{0, 1, 255, 255}));
}


TEST(Hex2int, UnderstandsUpperCaseOnly)
{
	EXPECT_EQ(hex2int("$4A"), 74);
	EXPECT_EQ(hex2int("4A"), 74);
	EXPECT_EQ(hex2int("4a"), 64);
	EXPECT_EQ(hex2int("0F"), 15);
	EXPECT_EQ(hex2int("FF"), 255);
}


TEST(Hex2int, ShortTextsCountMissingDigitsAsZero)
{
	EXPECT_EQ(hex2int(""), 0);
	EXPECT_EQ(hex2int("$"), 0);
	EXPECT_EQ(hex2int("7"), 112);
	EXPECT_EQ(hex2int("a much longer text"), 0);
}


TEST(Long2asc, NamesAFourCharacterCode)
{
	EXPECT_STREQ(long2asc(0x42524157), "BRAW");
	EXPECT_STREQ(long2asc('MWpl'), "MWpl");
}


TEST(Long2asc, ShorterCodesAreShifted)
{
	// "2524157": 25, 24, 15, and 7 without a second digit.
	EXPECT_STREQ(long2asc(0x2524157), "%$\x15p");
	EXPECT_STREQ(long2asc(0), "");
}


TEST(IsNodeTypeOk, LooksForThePartInTheType)
{
	const test::TempFolder folder;
	const std::string audio = folder.Write("a", "");
	set_type(audio, "audio/x-mpeg");
	EXPECT_TRUE(IsNodeTypeOk(audio.c_str(), "audio/"));
	EXPECT_FALSE(IsNodeTypeOk(audio.c_str(), "video/"));

	const std::string video = folder.Write("v", "");
	set_type(video, "video/x-asf");
	EXPECT_TRUE(IsNodeTypeOk(video.c_str(), "video/"));
	EXPECT_TRUE(IsNodeTypeOk(video.c_str(), "/x-asf"));
}


TEST(IsNodeTypeOk, MissingFileIsNot)
{
	const test::TempFolder folder;
	EXPECT_FALSE(IsNodeTypeOk((folder / "missing.mp3").c_str(), "audio/"));
	EXPECT_FALSE(IsNodeTypeOk("", ""));
}


TEST(HasMsgColor, WithoutColorGivesTheDefault)
{
	BMessage message(B_PASTE);
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), (rgb_color{9, 8, 7, 6}));
	message.AddData("RGBColor", B_RGB_COLOR_TYPE, "\1\2", 2);
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), (rgb_color{9, 8, 7, 6}));
}


TEST(HasMsgColor, TakesTheColorOfTheMessage)
{
	const rgb_color color = {10, 20, 30, 255};
	BMessage message(B_PASTE);
	message.AddData("RGBColor", B_RGB_COLOR_TYPE, &color, sizeof(color));
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), color);
}


TEST(HasMsgColor, TakesTheColorOfAFile)
{
	const test::TempFolder folder;
	const std::string path = folder.Write("color", "");
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
	BMessage message(B_SIMPLE_DATA);
	message.AddRef("refs", &ref);
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), (rgb_color{9, 8, 7, 6}));

	BNode node(path.c_str());
	node.WriteAttr("RGBCOLOR", B_RGB_COLOR_TYPE, 0, "\5\6\7", 3);
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), (rgb_color{9, 8, 7, 6}));
	node.WriteAttr("RGBCOLOR", B_RGB_COLOR_TYPE, 0, "\5\6\7\10", 4);
	EXPECT_EQ(HasMsgColor(&message, {9, 8, 7, 6}), (rgb_color{5, 6, 7, 8}));
}


TEST(GetImage, LoadsAPicture)
{
	const test::TempFolder folder;
	const std::string path
		= test::MakeMedia(folder / "p.png", "-f lavfi -i color=red:s=8x6 -frames:v 1");
	const std::unique_ptr<BBitmap> bitmap(GetImage(path.c_str()));
	ASSERT_NE(bitmap, nullptr);
	EXPECT_EQ(bitmap->Bounds(), BRect(0, 0, 7, 5));
}


TEST(GetImage, WhatIsNoPictureGivesNone)
{
	const test::TempFolder folder;
	const std::string path = folder.Write("p.jpg", "no picture");
	const std::string output
		= test::OutputOf([&path] { EXPECT_EQ(GetImage(path.c_str()), nullptr); });
	EXPECT_EQ(output,
		"\xA0"
		"can't translate '"
			+ path + "'\n");
	EXPECT_EQ(test::OutputOf([] { EXPECT_EQ(GetImage("/nowhere/p.jpg"), nullptr); }), "");
}


TEST(GetMediaDuration, WholeSecondsOfSound)
{
	const test::TempFolder folder;
	EXPECT_EQ(duration_of(test::MakeMedia(folder / "a.wav", test::Tone(90.5))), 90);
}


TEST(GetMediaDuration, TheLongerOfSoundAndPicture)
{
	const test::TempFolder folder;
	const std::string path = test::MakeMedia(folder / "v.mkv",
		test::Tone(10) + " " + test::Pattern(12) + " -map 0 -map 1");
	EXPECT_EQ(duration_of(path), 12);
}


// Tracks are looked at until there is one of each kind; up to then a later one replaces an earlier.
TEST(GetMediaDuration, LaterTracksCountUntilBothKindsAreFound)
{
	const test::TempFolder folder;
	const std::string tracks = test::Tone(9) + " " + test::Pattern(6) + " " + test::Tone(3);
	EXPECT_EQ(duration_of(test::MakeMedia(folder / "found.mp4",
				  tracks + " -map 0 -map 1 -map 2 -c:v mpeg4")),
		9);
	EXPECT_EQ(duration_of(test::MakeMedia(folder / "replaced.mp4",
				  tracks + " -map 0 -map 2 -map 1 -c:v mpeg4")),
		6);
	EXPECT_EQ(duration_of(test::MakeMedia(folder / "sounds.m4a", tracks + " -map 0 -map 2")), 3);
}


TEST(GetMediaDuration, UncompressedTracksCountAsWell)
{
	const test::TempFolder folder;
	EXPECT_EQ(duration_of(test::MakeMedia(folder / "raw.avi",
				  test::Pattern(2) + " -c:v rawvideo -pix_fmt yuv420p")),
		2);
}


TEST(GetMediaDuration, UnreadableFileHasNone)
{
	const test::TempFolder folder;
	EXPECT_EQ(duration_of(folder.Write("a.mp3", "no sound")), 0);
	const std::string path = folder / "missing.mp3";
	entry_ref ref;
	ASSERT_EQ(get_ref_for_path(path.c_str(), &ref), B_OK);
	EXPECT_EQ(test::OutputOf([&ref] { GetMediaDuration(&ref, nullptr); }),
		":Laufzeit: 0 seconds \n");
}


namespace {

BMessage
notice(uint32 what, const char* signature)
{
	BMessage message(what);
	if (signature != nullptr)
		message.AddString("be:signature", signature);
	return message;
}


// The remembered signature, asked with no message.
BString
remembered()
{
	BString signature;
	GetLastRosterMessenger(nullptr, &signature);
	return signature;
}

} // namespace


TEST(GetLastRosterMessenger, RemembersWhoWasLaunched)
{
	test::TheApplication();
	BMessage message = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.somebody");
	BString signature;
	const std::string output
		= test::OutputOf([&] { GetLastRosterMessenger(&message, &signature); });
	EXPECT_EQ(signature, "application/x-vnd.somebody");
	EXPECT_EQ(remembered(), "application/x-vnd.somebody");
	EXPECT_EQ(output.find("##GetLastRosterMessenger()  'BRAS' LAST | "), 0u) << output;
	EXPECT_NE(output.find(" STORED |  NO Messenger \n Ask over Sig.: "
						  "'application/x-vnd.somebody'\noops - bad messenger \n"),
		std::string::npos)
		<< output;
}


TEST(GetLastRosterMessenger, RefusesTheSystemAndItself)
{
	test::TheApplication();
	BMessage first = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.first");
	const BMessenger messenger = GetLastRosterMessenger(&first, nullptr);
	const std::pair<const char*, const char*> refused[]
		= {{"application/x-vnd.Be-SHEL", "terminal"}, {"application/x-vnd.Be-TRAK", "tracker "},
			{"application/x-vnd.Be-TSKB", "deskbar "}, {"application/x-mw-BeIDE", "beIDE   "},
			{"application/x-vnd.Haiku-Terminal", "terminal"},
			{"application/x-vnd.kv-VinyloH", "MYSELF   "},
			{"x/application/x-vnd.kv-VinyloH-other", "MYSELF   "},
			// Whatever is looked for first decides.
			{"x-Terminal-Be-TRAK", "tracker "}};
	for (const auto& [signature, reason] : refused) {
		BMessage message = notice(B_SOME_APP_QUIT, signature);
		const std::string output = test::OutputOf(
			[&] { EXPECT_EQ(GetLastRosterMessenger(&message, nullptr), messenger); });
		EXPECT_EQ(output,
			"##GetLastRosterMessenger()  'BRAQ' LAST | application/x-vnd.first\n ["
				+ std::string(signature) + "]  NOT STORED | " + reason + "\n");
		EXPECT_EQ(remembered(), "application/x-vnd.first") << signature;
	}
}


TEST(GetLastRosterMessenger, NamesThatBeginLikeTheSystemsAreStored)
{
	test::TheApplication();
	for (const char* signature :
		{"Be-SHEL", "Be-TRAK/x", "Be-TSKB", "BeIDE", "Terminal", "application/x-vnd.kv-Vinylo"}) {
		BMessage message = notice(B_SOME_APP_LAUNCHED, signature);
		GetLastRosterMessenger(&message, nullptr);
		EXPECT_EQ(remembered(), signature);
	}
}


TEST(GetLastRosterMessenger, WithoutAMessageTheLastOneIsTold)
{
	test::TheApplication();
	BMessage message = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.first");
	message.AddMessenger("be:window", be_app_messenger);
	GetLastRosterMessenger(&message, nullptr);
	BString signature;
	const std::string output = test::OutputOf(
		[&] { EXPECT_EQ(GetLastRosterMessenger(nullptr, &signature), be_app_messenger); });
	EXPECT_EQ(output,
		"##GetLastRosterMessenger()  NULL\n (Message==NULL ) BACK | application/x-vnd.first\n");
	EXPECT_EQ(signature, "application/x-vnd.first");
}


TEST(GetLastRosterMessenger, ActivationsChangeNothing)
{
	test::TheApplication();
	BMessage first = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.first");
	GetLastRosterMessenger(&first, nullptr);
	BMessage message = notice(B_SOME_APP_ACTIVATED, "application/x-vnd.second");
	BString signature("untouched");
	const std::string output
		= test::OutputOf([&] { GetLastRosterMessenger(&message, &signature); });
	EXPECT_EQ(output, "##GetLastRosterMessenger()  'BRAW' IGNORE\n");
	EXPECT_EQ(signature, "untouched");
	EXPECT_EQ(remembered(), "application/x-vnd.first");
}


TEST(GetLastRosterMessenger, TakesTheWindowOfTheMessage)
{
	test::TheApplication();
	BMessage message = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.window");
	message.AddMessenger("be:window", be_app_messenger);
	EXPECT_EQ(GetLastRosterMessenger(&message, nullptr), be_app_messenger);

	// A notice without a signature stores an empty one.
	BMessage nameless = notice(B_SOME_APP_LAUNCHED, nullptr);
	nameless.AddMessenger("be:window", be_app_messenger);
	EXPECT_EQ(test::OutputOf([&] { GetLastRosterMessenger(&nameless, nullptr); }),
		"##GetLastRosterMessenger()  'BRAS' LAST | application/x-vnd.window\n"
		" STORED |  has Messenger \n");
	EXPECT_EQ(remembered(), "");

	// Nobody of that name runs: the window stays.
	BMessage unknown = notice(B_SOME_APP_LAUNCHED, "application/x-vnd.unknown");
	EXPECT_EQ(GetLastRosterMessenger(&unknown, nullptr), be_app_messenger);
	EXPECT_EQ(remembered(), "application/x-vnd.unknown");
}


TEST(AnyAlert, PrintsForTheConsole)
{
	EXPECT_EQ(test::OutputOf([] { AnyAlert("Text", true); }), "Text\n");
}


TEST(AnyAlert, ShowsTheTextWithoutWaitingForTheUser)
{
	test::TheApplication();
	EXPECT_EQ(test::OutputOf([] { AnyAlert("Line\nand /a/path", false); }), "");
	ASSERT_TRUE(test::WaitForDialog());
	EXPECT_EQ(test::DialogTitle(), "KORU_Alert");
	EXPECT_EQ(test::DialogText(), "Line\nand /a/path");
	EXPECT_EQ(test::DialogButtons(), std::vector<std::string>{"OK"});
	EXPECT_TRUE(test::DialogHasIcon());
	EXPECT_TRUE(test::PressKey(Qt::Key_Return));
	EXPECT_TRUE(test::WaitForNoDialog());
}


TEST(ColorToChilds, ColorsKnownChildrenOnly)
{
	test::TheApplication();
	BView parent(BRect(0, 0, 99, 99), "parent", 0, 0);
	parent.SetViewColor(1, 2, 3);
	BView* const box = new BCheckBox(BRect(0, 0, 9, 9), "box", "box", nullptr);
	BView* const text = new BStringView(BRect(0, 0, 9, 9), "text", "text");
	BView* const control = new BTextControl(BRect(0, 0, 9, 9), "control", "label", "text", nullptr);
	BView* const field = new BMenuField(BRect(0, 0, 9, 9), "field", "label", new BMenu("menu"));
	BView* const frame = new BBox(BRect(0, 0, 9, 9), "frame");
	BView* const button = new BButton(BRect(0, 0, 9, 9), "button", "button", nullptr);
	BView* const plain = new BView(BRect(0, 0, 9, 9), "plain", 0, 0);
	BView* const deep = new BButton(BRect(0, 0, 9, 9), "deep", "deep", nullptr);
	for (BView* child : {box, text, control, field, frame, button, plain})
		parent.AddChild(child);
	plain->AddChild(deep);
	const rgb_color plainColor = plain->ViewColor();
	const rgb_color deepColor = deep->ViewColor();

	ColorToChilds(&parent);
	for (BView* child : {box, text, control, field, frame, button})
		EXPECT_EQ(child->ViewColor(), parent.ViewColor()) << child->Name();
	EXPECT_EQ(plain->ViewColor(), plainColor);
	EXPECT_EQ(deep->ViewColor(), deepColor);
	EXPECT_EQ(test::OutputOf([] { ColorToChilds(nullptr); }), "View=NULL\n");
}


namespace {

class CountingBox : public BBox {
public:
	using BBox::BBox;

	void Draw(BRect update) override
	{
		fDrawCount++;
		BBox::Draw(update);
	}

	std::atomic<int> fDrawCount = 0;
};

} // namespace


TEST(ColorToChilds, ColoredChildrenAreDrawnAnew)
{
	test::TheApplication();
	BWindow* const window = new BWindow(BRect(0, 0, 99, 99), "colors", B_TITLED_WINDOW, 0);
	CountingBox* const box = new CountingBox(BRect(0, 0, 49, 49), "box");
	BView* const parent = new BView(window->Bounds(), "parent", B_FOLLOW_NONE, 0);
	parent->AddChild(box);
	window->AddChild(parent);
	window->Show();
	ASSERT_TRUE(test::WaitFor([box] { return box->fDrawCount > 0; }));
	test::Settle(window);
	const int before = box->fDrawCount;
	{
		const BAutolock lock(window);
		parent->SetViewColor(1, 2, 3);
		ColorToChilds(parent);
	}
	EXPECT_TRUE(test::WaitFor([box, before] { return box->fDrawCount > before; }));
	test::CloseWindow(window);
}


TEST(AddToolTip, DoesNothing)
{
	EXPECT_EQ(test::OutputOf([] { AddToolTip(nullptr, "tip"); }), "AddTT: bad view\n");
	test::TheApplication();
	BView view(BRect(0, 0, 9, 9), "view", 0, 0);
	EXPECT_EQ(test::OutputOf([&view] { AddToolTip(&view, "tip"); }), "");
}


TEST(ChangeKoruFiletype, TakesAShortNumberButNoByte)
{
	const test::TempFolder folder;
	BNode node(folder.Write("f", "").c_str());
	node.WriteAttr("IR!OWN_FILE", B_INT32_TYPE, 0, "\7", 1);
	EXPECT_EQ(test::OutputOf([&node] { ChangeKoruFiletype(node); }), " err  change type ");
	int32 copied = 0;
	EXPECT_LT(node.ReadAttr("KORU_TYPE", B_INT32_TYPE, 0, &copied, sizeof(copied)), 0);
	node.WriteAttr("IR!OWN_FILE", B_INT32_TYPE, 0, "\7\1", 2);
	EXPECT_EQ(test::OutputOf([&node] { ChangeKoruFiletype(node); }), " changed type  '263' ");
}


TEST(ChangeKoruFiletype, CopiesTheNumber)
{
	const test::TempFolder folder;
	BNode node(folder.Write("f", "").c_str());
	EXPECT_EQ(test::OutputOf([&node] { ChangeKoruFiletype(node); }), " err  change type ");
	const int32 number = 12;
	node.WriteAttr("IR!OWN_FILE", B_INT32_TYPE, 0, &number, sizeof(number));
	EXPECT_EQ(test::OutputOf([&node] { ChangeKoruFiletype(node); }), " changed type  '12' ");
	int32 copied = 0;
	EXPECT_EQ(node.ReadAttr("KORU_TYPE", B_INT32_TYPE, 0, &copied, sizeof(copied)), 4);
	EXPECT_EQ(copied, 12);
}
