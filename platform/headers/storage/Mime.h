// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef MIME_H
#define MIME_H

#include <MimeType.h>

#endif // MIME_H
