// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef UNPRIVILEGED_H
#define UNPRIVILEGED_H

#include <unistd.h>


namespace test {

// Lets the rights of files count although the tests may run as the superuser.
class Unprivileged {
public:
	Unprivileged()
		:
		fUser(geteuid())
	{
		if (fUser == 0)
			fIsDone = seteuid(65534) == 0;
	}
	~Unprivileged()
	{
		if (fUser == 0 && seteuid(fUser) != 0)
			_exit(1);
	}
	Unprivileged(const Unprivileged&) = delete;
	Unprivileged& operator=(const Unprivileged&) = delete;

	bool IsDone() const { return fIsDone; }

private:
	uid_t fUser;
	bool fIsDone = true;
};

} // namespace test

#endif // UNPRIVILEGED_H
