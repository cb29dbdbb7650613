// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef ERRNO_H
#define ERRNO_H

#include <SupportDefs.h>
#include <errno.h>


namespace hosted {

// Codes that Haiku knows by their POSIX names only, which on Linux stand for the system's numbers.
enum : status_t {
	kArgumentTooBig = B_POSIX_ERROR_BASE + 0x1,
	kFileTooLarge = B_POSIX_ERROR_BASE + 0x4,
	kNoSuchDevice = B_POSIX_ERROR_BASE + 0x7,
	kRangeError = B_POSIX_ERROR_BASE + 0x11,
	kNoData = B_POSIX_ERROR_BASE + 0x34,
	kNotSupported = B_POSIX_ERROR_BASE + 0x38,
	kNoSuchAttribute = B_POSIX_ERROR_BASE + 0x3c,
};

// Haiku's code for an error number of the system. 0 is B_OK, one without a code B_ERROR.
status_t StatusFromErrno(int error);

// The code of the call that just failed; never B_OK.
inline status_t
LastStatus()
{
	return StatusFromErrno(errno != 0 ? errno : EIO);
}

} // namespace hosted

#endif // ERRNO_H
