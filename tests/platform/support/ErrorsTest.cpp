// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <SupportDefs.h>

#include <errno.h>
#include <gtest/gtest.h>
#include <limits.h>
#include <string>

#include "platform/support/Errno.h"


namespace {

constexpr int
code(unsigned offset)
{
	return static_cast<int>(0x80000000u + offset);
}


static_assert(B_OK == 0 && B_NO_ERROR == 0 && B_ERROR == -1);

static_assert(B_NO_MEMORY == code(0x0));
static_assert(B_IO_ERROR == code(0x1));
static_assert(B_PERMISSION_DENIED == code(0x2) && B_PERMISSION_DENIED == -2147483646);
static_assert(B_BAD_INDEX == code(0x3));
static_assert(B_BAD_TYPE == code(0x4));
static_assert(B_BAD_VALUE == code(0x5) && B_BAD_VALUE == -2147483643);
static_assert(B_MISMATCHED_VALUES == code(0x6));
static_assert(B_NAME_NOT_FOUND == code(0x7));
static_assert(B_NAME_IN_USE == code(0x8));
static_assert(B_TIMED_OUT == code(0x9));
static_assert(B_INTERRUPTED == code(0xa));
static_assert(B_WOULD_BLOCK == code(0xb));
static_assert(B_CANCELED == code(0xc));
static_assert(B_NO_INIT == code(0xd) && B_NOT_INITIALIZED == B_NO_INIT);
static_assert(B_NO_INIT == -2147483635);
static_assert(B_BUSY == code(0xe));
static_assert(B_NOT_ALLOWED == code(0xf));
static_assert(B_BAD_DATA == code(0x10));

static_assert(B_BAD_SEM_ID == code(0x1000));
static_assert(B_BAD_THREAD_ID == code(0x1100));
static_assert(B_BAD_TEAM_ID == code(0x1103));
static_assert(B_BAD_PORT_ID == code(0x1200));
static_assert(B_BAD_ADDRESS == code(0x1301));
static_assert(B_NOT_AN_EXECUTABLE == code(0x1302));

static_assert(B_BAD_REPLY == code(0x2000));
static_assert(B_DUPLICATE_REPLY == code(0x2001));
static_assert(B_MESSAGE_TO_SELF == code(0x2002));
static_assert(B_BAD_HANDLER == code(0x2003));
static_assert(B_ALREADY_RUNNING == code(0x2004));
static_assert(B_LAUNCH_FAILED == code(0x2005));
static_assert(B_UNKNOWN_MIME_TYPE == code(0x2007));
static_assert(B_BAD_SCRIPT_SYNTAX == code(0x2008));
static_assert(B_LAUNCH_FAILED_NO_RESOLVE_LINK == code(0x2009));
static_assert(B_LAUNCH_FAILED_EXECUTABLE == code(0x200a));
static_assert(B_LAUNCH_FAILED_APP_NOT_FOUND == code(0x200b));
static_assert(B_LAUNCH_FAILED_APP_IN_TRASH == code(0x200c));
static_assert(B_LAUNCH_FAILED_NO_PREFERRED_APP == code(0x200d));
static_assert(B_NOT_A_MESSAGE == code(0x2010));
static_assert(B_SHUTTING_DOWN == code(0x2012));

static_assert(B_LAST_BUFFER_ERROR == code(0x4007));
static_assert(B_MEDIA_NO_HANDLER == code(0x407f));
static_assert(B_NO_TRANSLATOR == code(0x4801) && B_NO_TRANSLATOR == -2147465215);
static_assert(B_ILLEGAL_DATA == code(0x4802));

static_assert(B_FILE_ERROR == code(0x6000) && B_FILE_ERROR == -2147459072);
static_assert(B_FILE_EXISTS == code(0x6002) && B_FILE_EXISTS == -2147459070);
static_assert(B_ENTRY_NOT_FOUND == code(0x6003) && B_ENTRY_NOT_FOUND == -2147459069);
static_assert(B_NAME_TOO_LONG == code(0x6004));
static_assert(B_NOT_A_DIRECTORY == code(0x6005));
static_assert(B_DIRECTORY_NOT_EMPTY == code(0x6006));
static_assert(B_DEVICE_FULL == code(0x6007));
static_assert(B_READ_ONLY_DEVICE == code(0x6008));
static_assert(B_IS_A_DIRECTORY == code(0x6009) && B_IS_A_DIRECTORY == -2147459063);
static_assert(B_NO_MORE_FDS == code(0x600a));
static_assert(B_CROSS_DEVICE_LINK == code(0x600b));
static_assert(B_LINK_LIMIT == code(0x600c));
static_assert(B_BUSTED_PIPE == code(0x600d));
static_assert(B_UNSUPPORTED == code(0x600e));

static_assert(B_RESULT_NOT_REPRESENTABLE == code(0x7011));
static_assert(B_BUFFER_OVERFLOW == code(0x7029));
static_assert(B_NOT_SUPPORTED == code(0x702b));

#ifdef B_FILE_NOT_FOUND
#error "that name is gone"
#endif

} // namespace


TEST(Strerror, CommonCodesHaveHaikusTexts)
{
	EXPECT_STREQ(strerror(B_BAD_VALUE), "Invalid Argument");
	EXPECT_STREQ(strerror(B_ENTRY_NOT_FOUND), "No such file or directory");
	EXPECT_STREQ(strerror(B_FILE_ERROR), "Bad file descriptor");
	EXPECT_STREQ(strerror(B_FILE_EXISTS), "File or Directory already exists");
	EXPECT_STREQ(strerror(B_PERMISSION_DENIED), "Permission denied");
	EXPECT_STREQ(strerror(B_NO_INIT), "Initialization failed");
	EXPECT_STREQ(strerror(B_NO_TRANSLATOR), "No translator found");
	EXPECT_STREQ(strerror(B_MEDIA_NO_HANDLER), "No handler");
	EXPECT_STREQ(strerror(B_LAUNCH_FAILED_APP_NOT_FOUND), "Application could not be found");
	EXPECT_STREQ(strerror(B_DEVICE_FULL), "No space left on device");
}


TEST(Strerror, SuccessAndGeneralErrorHaveTexts)
{
	EXPECT_STREQ(strerror(B_OK), "No error");
	EXPECT_STREQ(strerror(B_ERROR), "General system error");
}


TEST(Strerror, CodeWithoutNameKeepsItsText)
{
	EXPECT_STREQ(strerror(code(0x6001)), "No such file or directory");
}


TEST(Strerror, UnknownNegativeCodeNamesItsKit)
{
	EXPECT_STREQ(strerror(code(0x6fff)), "Unknown Storage Kit Error (-2147454977)");
	EXPECT_STREQ(strerror(code(0x2fff)), "Unknown Application Kit Error (-2147471361)");
}


TEST(Strerror, PositiveNumberIsNoError)
{
	EXPECT_STREQ(strerror(2), "No Error (2)");
	EXPECT_STREQ(strerror(INT_MAX), "No Error (2147483647)");
}


TEST(StatusFromErrno, SystemNumbersBecomeHaikusCodes)
{
	EXPECT_EQ(hosted::StatusFromErrno(0), B_OK);
	EXPECT_EQ(hosted::StatusFromErrno(ENOENT), B_ENTRY_NOT_FOUND);
	EXPECT_EQ(hosted::StatusFromErrno(EACCES), B_PERMISSION_DENIED);
	EXPECT_EQ(hosted::StatusFromErrno(EPERM), B_NOT_ALLOWED);
	EXPECT_EQ(hosted::StatusFromErrno(EROFS), B_READ_ONLY_DEVICE);
	EXPECT_EQ(hosted::StatusFromErrno(ELOOP), B_LINK_LIMIT);
	EXPECT_EQ(hosted::StatusFromErrno(E2BIG), code(0x7001));
}


TEST(StatusFromErrno, HaikuCodePassesThrough)
{
	EXPECT_EQ(hosted::StatusFromErrno(B_BAD_DATA), B_BAD_DATA);
}


TEST(StatusFromErrno, NumberWithoutCodeIsAnErrorStill)
{
	EXPECT_EQ(hosted::StatusFromErrno(99999), B_ERROR);
}
