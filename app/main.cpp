// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#include <stdio.h>

#include "app/WYNApplication.h"


int
main()
{
	printf("-WYN begin-\n");
	WYNApplication application;
	application.Run();
	printf("\n-WYN end-\n");
	return 0;
}
