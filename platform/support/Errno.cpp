// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include "platform/support/Errno.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <stdio.h>


namespace {

struct NumberAndStatus {
	int number;
	status_t status;
};

constexpr NumberAndStatus kNumbers[] = {
	{ENOMEM, B_NO_MEMORY},
	{EIO, B_IO_ERROR},
	{EACCES, B_PERMISSION_DENIED},
	{EINVAL, B_BAD_VALUE},
	{ETIMEDOUT, B_TIMED_OUT},
	{EINTR, B_INTERRUPTED},
	{EAGAIN, B_WOULD_BLOCK},
	{EBUSY, B_BUSY},
	{ETXTBSY, B_BUSY},
	{EPERM, B_NOT_ALLOWED},
	{EFAULT, B_BAD_ADDRESS},
	{ENOEXEC, B_NOT_AN_EXECUTABLE},
	{EBADF, B_FILE_ERROR},
	{EEXIST, B_FILE_EXISTS},
	{ENOENT, B_ENTRY_NOT_FOUND},
	{ENAMETOOLONG, B_NAME_TOO_LONG},
	{ENOTDIR, B_NOT_A_DIRECTORY},
	{ENOTEMPTY, B_DIRECTORY_NOT_EMPTY},
	{ENOSPC, B_DEVICE_FULL},
	{EDQUOT, B_DEVICE_FULL},
	{EROFS, B_READ_ONLY_DEVICE},
	{EISDIR, B_IS_A_DIRECTORY},
	{EMFILE, B_NO_MORE_FDS},
	{ENFILE, B_NO_MORE_FDS},
	{EXDEV, B_CROSS_DEVICE_LINK},
	{ELOOP, B_LINK_LIMIT},
	{EPIPE, B_BUSTED_PIPE},
	{E2BIG, hosted::kArgumentTooBig},
	{EFBIG, hosted::kFileTooLarge},
	{ENODEV, hosted::kNoSuchDevice},
	{ENXIO, hosted::kNoSuchDevice},
	{ERANGE, B_RESULT_NOT_REPRESENTABLE},
	{EOVERFLOW, B_BUFFER_OVERFLOW},
	{EOPNOTSUPP, B_NOT_SUPPORTED},
	{ENODATA, hosted::kNoData},
};

struct StatusAndText {
	status_t status;
	const char* text;
};

constexpr StatusAndText kTexts[] = {
	{B_NO_MEMORY, "Out of memory"},
	{B_IO_ERROR, "I/O error"},
	{B_PERMISSION_DENIED, "Permission denied"},
	{B_BAD_INDEX, "Index not in range for the data set"},
	{B_BAD_TYPE, "Bad argument type passed to function"},
	{B_BAD_VALUE, "Invalid Argument"},
	{B_MISMATCHED_VALUES, "Mismatched values passed to function"},
	{B_NAME_NOT_FOUND, "Name not found"},
	{B_NAME_IN_USE, "Name in use"},
	{B_TIMED_OUT, "Operation timed out"},
	{B_INTERRUPTED, "Interrupted system call"},
	{B_WOULD_BLOCK, "Operation would block"},
	{B_CANCELED, "Operation canceled"},
	{B_NO_INIT, "Initialization failed"},
	{B_BUSY, "Device/File/Resource busy"},
	{B_NOT_ALLOWED, "Operation not allowed"},
	{B_BAD_DATA, "Bad data"},
	{B_BAD_SEM_ID, "Bad semaphore ID"},
	{B_BAD_THREAD_ID, "Bad thread ID"},
	{B_NO_MORE_THREADS, "No more threads"},
	{B_BAD_THREAD_STATE, "Thread is inappropriate state"},
	{B_BAD_TEAM_ID, "Operation on invalid team"},
	{B_BAD_PORT_ID, "Bad port ID"},
	{B_BAD_ADDRESS, "Bad address"},
	{B_NOT_AN_EXECUTABLE, "Not an executable"},
	{B_BAD_REPLY, "Invalid or unwanted reply"},
	{B_DUPLICATE_REPLY, "Duplicate reply"},
	{B_MESSAGE_TO_SELF, "Can't send message to self"},
	{B_BAD_HANDLER, "Bad handler"},
	{B_ALREADY_RUNNING, "Already running"},
	{B_LAUNCH_FAILED, "Launch failed"},
	{B_UNKNOWN_MIME_TYPE, "Unknown MIME type"},
	{B_BAD_SCRIPT_SYNTAX, "Bad script syntax"},
	{B_LAUNCH_FAILED_NO_RESOLVE_LINK, "Could not resolve a link"},
	{B_LAUNCH_FAILED_EXECUTABLE, "File is mistakenly marked as executable"},
	{B_LAUNCH_FAILED_APP_NOT_FOUND, "Application could not be found"},
	{B_LAUNCH_FAILED_APP_IN_TRASH, "Application is in the trash"},
	{B_LAUNCH_FAILED_NO_PREFERRED_APP, "There is no preferred application for this type of file"},
	{B_NOT_A_MESSAGE, "This is not a message"},
	{B_SHUTTING_DOWN, "Shutting down"},
	{B_LAST_BUFFER_ERROR, "Last buffer"},
	{B_MEDIA_NO_HANDLER, "No handler"},
	{B_NO_TRANSLATOR, "No translator found"},
	{B_ILLEGAL_DATA, "Illegal data"},
	{B_FILE_ERROR, "Bad file descriptor"},
	// A code that lost its name, but not its text.
	{B_STORAGE_ERROR_BASE + 0x1, "No such file or directory"},
	{B_FILE_EXISTS, "File or Directory already exists"},
	{B_ENTRY_NOT_FOUND, "No such file or directory"},
	{B_NAME_TOO_LONG, "File name too long"},
	{B_NOT_A_DIRECTORY, "Not a directory"},
	{B_DIRECTORY_NOT_EMPTY, "Directory not empty"},
	{B_DEVICE_FULL, "No space left on device"},
	{B_READ_ONLY_DEVICE, "Read-only file system"},
	{B_IS_A_DIRECTORY, "Is a directory"},
	{B_NO_MORE_FDS, "Too many open files"},
	{B_CROSS_DEVICE_LINK, "Cross-device link"},
	{B_LINK_LIMIT, "Too many symbolic links"},
	{B_BUSTED_PIPE, "Broken pipe"},
	{B_UNSUPPORTED, "Operation not supported"},
	{B_PARTIAL_READ, "Only a part of the data could be read"},
	{B_PARTIAL_WRITE, "Only a part of the data could be written"},
	{hosted::kArgumentTooBig, "Argument too big"},
	{hosted::kFileTooLarge, "File too large"},
	{hosted::kNoSuchDevice, "No such device"},
	{B_RESULT_NOT_REPRESENTABLE, "Range Error"},
	{B_BUFFER_OVERFLOW, "Value too large for defined type"},
	{B_NOT_SUPPORTED, "Operation not supported"},
	{hosted::kNoData, "No message available"},
	{hosted::kNotSupported, "Not supported"},
	{hosted::kNoSuchAttribute, "No such attribute"},
};


// Who an unknown code belongs to goes by its base.
const char*
kind_of_error(int error)
{
	constexpr StatusAndText kKinds[] = {
		{B_POSIX_ERROR_BASE + 0x1000, "Unknown Error"},
		{B_POSIX_ERROR_BASE, "Unknown POSIX Error"},
		{B_STORAGE_ERROR_BASE, "Unknown Storage Kit Error"},
		{B_TRANSLATION_ERROR_BASE, "Unknown Translation Kit Error"},
		{B_MEDIA_ERROR_BASE, "Unknown Media Kit Error"},
		{B_INTERFACE_ERROR_BASE, "Unknown Interface Kit Error"},
		{B_APP_ERROR_BASE, "Unknown Application Kit Error"},
		{B_OS_ERROR_BASE, "Unknown OS Error"},
	};
	if (error >= 0)
		return "No Error";
	const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds),
		[error](const StatusAndText& item) { return error >= item.status; });
	return kind != std::end(kKinds) ? kind->text : "Unknown General Error";
}

} // namespace


namespace hosted {

status_t
StatusFromErrno(int error)
{
	if (error == 0)
		return B_OK;
	// A kit that sets errno itself sets Haiku's code.
	if (error < 0)
		return error;
	const auto found = std::find_if(std::begin(kNumbers), std::end(kNumbers),
		[error](const NumberAndStatus& item) { return item.number == error; });
	return found != std::end(kNumbers) ? found->status : B_ERROR;
}

} // namespace hosted


extern "C" char*
_haiku_strerror(int error)
{
	if (error == B_OK)
		return const_cast<char*>("No error");
	if (error == B_ERROR)
		return const_cast<char*>("General system error");
	const auto found = std::find_if(std::begin(kTexts), std::end(kTexts),
		[error](const StatusAndText& item) { return item.status == error; });
	if (found != std::end(kTexts))
		return const_cast<char*>(found->text);

	thread_local std::array<char, 64> text;
	snprintf(text.data(), text.size(), "%s (%d)", kind_of_error(error), error);
	return text.data();
}
