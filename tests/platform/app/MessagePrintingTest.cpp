// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <Entry.h>
#include <Message.h>
#include <Messenger.h>
#include <Node.h>

#include "tests/support/Output.h"
#include "tests/support/TempFolder.h"


namespace {

std::string
printed(const BMessage& message)
{
	return test::OutputOf([&message]() { message.PrintToStream(); });
}

} // namespace


TEST(MessagePrintToStream, EmptyMessage)
{
	EXPECT_EQ(printed(BMessage('MW_Q')), "BMessage('MW_Q') {\n}\n");
}


TEST(MessagePrintToStream, UnprintableCodeIsHexadecimal)
{
	EXPECT_EQ(printed(BMessage(0x1234)), "BMessage(0x1234) {\n}\n");
}


TEST(MessagePrintToStream, Integers)
{
	BMessage message('mpl1');
	message.AddInt32("mpl_nr", 999);
	message.AddInt32("mpl_what", 13);
	EXPECT_EQ(printed(message),
		"BMessage('mpl1') {\n"
		"        mpl_nr = int32(0x3e7 or 999)\n"
		"        mpl_what = int32(0xd or 13)\n"
		"}\n");
}


TEST(MessagePrintToStream, NegativeInt32IsPrintedUnsigned)
{
	BMessage message('test');
	message.AddInt32("n", -1);
	message.AddInt64("l", -1);
	message.AddInt8("b", 65);
	message.AddUInt16("s", 65535);
	EXPECT_EQ(printed(message),
		"BMessage('test') {\n"
		"        n = int32(0xffffffff or 4294967295)\n"
		"        l = int64(0xffffffffffffffff or -1)\n"
		"        b = int8(0x41 or 65 or 'A')\n"
		"        s = uint16(0xffff or 65535)\n"
		"}\n");
}


TEST(MessagePrintToStream, FilesOfADrop)
{
	test::TempFolder folder;
	struct stat place;
	ASSERT_EQ(stat(folder.Path().c_str(), &place), 0);
	BMessage message('DATA');
	for (const char* name : {"a.mp3", "b.mp3"}) {
		entry_ref ref;
		ASSERT_EQ(get_ref_for_path((folder / name).c_str(), &ref), B_OK);
		message.AddRef("refs", &ref);
	}
	message.AddRect("frame", BRect(60, 100, 760, 300));
	message.AddString("aa_mime", " -none-");
	message.AddBool("on", true);

	const std::string where = "entry_ref(device=" + std::to_string(static_cast<int>(place.st_dev))
		+ ", directory=" + std::to_string(place.st_ino) + ", name=\"";
	EXPECT_EQ(printed(message),
		"BMessage('DATA') {\n"
		"        refs[0] = "
			+ where + "a.mp3\", path=\"" + folder / "a.mp3"
			+ "\")\n"
			  "        refs[1] = "
			+ where + "b.mp3\", path=\"" + folder / "b.mp3"
			+ "\")\n"
			  "        frame = BRect(l:60.0, t:100.0, r:760.0, b:300.0)\n"
			  "        aa_mime = string(\" -none-\", 8 bytes)\n"
			  "        on = bool(true)\n"
			  "}\n");
}


TEST(MessagePrintToStream, OtherValues)
{
	BMessage message('test');
	message.AddFloat("f", 1.5f);
	message.AddDouble("d", 2.25);
	message.AddPoint("p", BPoint(1, 2));
	rgb_color color = {1, 2, 3, 4};
	message.AddColor("c", color);
	message.AddData("drop", B_RGB_COLOR_TYPE, &color, 4);
	message.AddMessenger("who", BMessenger());
	message.AddPointer("ptr", nullptr);
	EXPECT_EQ(printed(message),
		"BMessage('test') {\n"
		"        f = float(1.5000)\n"
		"        d = double(2.25000000)\n"
		"        p = BPoint(x:1.000000, y:2.000000)\n"
		"        c = rgb_color(1, 2, 3, 4)\n"
		"        drop = (type = 'RGBC')(size = 4)\n"
		"        who = (type = 'MSNG')(size = 24)\n"
		"        ptr = (type = 'PNTR')(size = 8)\n"
		"}\n");
}


TEST(MessagePrintToStream, KeyStatesShowTheirFirstByte)
{
	const uint8 states[16] = {0x41, 1, 2};
	BMessage message('test');
	message.AddData("states", B_UINT8_TYPE, states, 16);
	EXPECT_EQ(printed(message),
		"BMessage('test') {\n        states = uint8(0x41 or 65 or 'A')\n}\n");
}


TEST(MessagePrintToStream, NodeRefHasNoEnd)
{
	BMessage message('test');
	const node_ref node(3, 17);
	message.AddNodeRef("node", &node);
	EXPECT_EQ(printed(message),
		"BMessage('test') {\n        node = node_ref(device=3, node=17, }\n");
}


TEST(MessagePrintToStream, NestedMessageStandsDeeper)
{
	BMessage inner('innr');
	inner.AddInt32("n", 1);
	BMessage message('outr');
	message.AddMessage("m", &inner);
	message.AddBool("after", false);
	EXPECT_EQ(printed(message),
		"BMessage('outr') {\n"
		"        m = BMessage('innr') {\n"
		"                n = int32(0x1 or 1)\n"
		"        }\n"
		"        after = bool(false)\n"
		"}\n");
}
