// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef KERNEL_KIT_H
#define KERNEL_KIT_H

#include <OS.h>
#include <fs_attr.h>

#endif // KERNEL_KIT_H
