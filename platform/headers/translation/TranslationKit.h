// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef TRANSLATION_KIT_H
#define TRANSLATION_KIT_H

#include <BitmapStream.h>
#include <TranslationDefs.h>
#include <TranslationUtils.h>
#include <TranslatorFormats.h>
#include <TranslatorRoster.h>

#endif // TRANSLATION_KIT_H
