// Copyright 2026, The VinyloH Authors. Distributed under the terms of the MIT License.
#ifndef SUPPORT_DEFS_H
#define SUPPORT_DEFS_H

#include <Errors.h>
#include <inttypes.h>
#include <stddef.h>
#include <sys/types.h>


typedef signed char int8;
typedef unsigned char uint8;
typedef short int16;
typedef unsigned short uint16;
typedef int int32;
typedef unsigned int uint32;
typedef long int64;
typedef unsigned long uint64;

typedef volatile int32 vint32;
typedef volatile int64 vint64;

typedef unsigned char uchar;

typedef int32 status_t;
// Microseconds.
typedef int64 bigtime_t;
typedef unsigned long addr_t;
typedef uint32 type_code;
typedef uint32 perform_code;

#define B_PRId8 "d"
#define B_PRIu8 "u"
#define B_PRIx8 "x"
#define B_PRId16 "d"
#define B_PRIu16 "u"
#define B_PRIx16 "x"
#define B_PRId32 "d"
#define B_PRIi32 "i"
#define B_PRIu32 "u"
#define B_PRIx32 "x"
#define B_PRIX32 "X"
#define B_PRId64 "ld"
#define B_PRIi64 "li"
#define B_PRIu64 "lu"
#define B_PRIx64 "lx"
#define B_PRIX64 "lX"
#define B_PRIdSSIZE "ld"
#define B_PRIuSIZE "lu"
#define B_PRIxSIZE "lx"
#define B_PRIdOFF "ld"
#define B_PRIdBIGTIME "ld"
#define B_PRIdTIME "ld"
// The system's device and inode numbers are unsigned and as wide as a long.
#define B_PRIdDEV "ld"
#define B_PRIdINO "ld"

#define B_SCNd32 "d"
#define B_SCNu32 "u"
#define B_SCNx32 "x"
#define B_SCNd64 "ld"
#define B_SCNu64 "lu"
#define B_SCNx64 "lx"
#define B_SCNdOFF "ld"
#define B_SCNdBIGTIME "ld"

#ifndef min_c
#define min_c(a, b) ((a) > (b) ? (b) : (a))
#define max_c(a, b) ((a) > (b) ? (a) : (b))
#endif

#define B_COUNT_OF(a) (sizeof(a) / sizeof((a)[0]))

#ifndef FALSE
#define FALSE 0
#endif
#ifndef TRUE
#define TRUE 1
#endif

// Each returns the value that was there before, except the plain setters.
inline void
atomic_set(int32* value, int32 newValue)
{
	__atomic_store_n(value, newValue, __ATOMIC_SEQ_CST);
}


inline int32
atomic_get_and_set(int32* value, int32 newValue)
{
	return __atomic_exchange_n(value, newValue, __ATOMIC_SEQ_CST);
}


inline int32
atomic_test_and_set(int32* value, int32 newValue, int32 testAgainst)
{
	__atomic_compare_exchange_n(value, &testAgainst, newValue, false, __ATOMIC_SEQ_CST,
		__ATOMIC_SEQ_CST);
	return testAgainst;
}


inline int32
atomic_add(int32* value, int32 addValue)
{
	return __atomic_fetch_add(value, addValue, __ATOMIC_SEQ_CST);
}


inline int32
atomic_and(int32* value, int32 andValue)
{
	return __atomic_fetch_and(value, andValue, __ATOMIC_SEQ_CST);
}


inline int32
atomic_or(int32* value, int32 orValue)
{
	return __atomic_fetch_or(value, orValue, __ATOMIC_SEQ_CST);
}


inline int32
atomic_get(int32* value)
{
	return __atomic_load_n(value, __ATOMIC_SEQ_CST);
}


inline void
atomic_set64(int64* value, int64 newValue)
{
	__atomic_store_n(value, newValue, __ATOMIC_SEQ_CST);
}


inline int64
atomic_get_and_set64(int64* value, int64 newValue)
{
	return __atomic_exchange_n(value, newValue, __ATOMIC_SEQ_CST);
}


inline int64
atomic_test_and_set64(int64* value, int64 newValue, int64 testAgainst)
{
	__atomic_compare_exchange_n(value, &testAgainst, newValue, false, __ATOMIC_SEQ_CST,
		__ATOMIC_SEQ_CST);
	return testAgainst;
}


inline int64
atomic_add64(int64* value, int64 addValue)
{
	return __atomic_fetch_add(value, addValue, __ATOMIC_SEQ_CST);
}


inline int64
atomic_and64(int64* value, int64 andValue)
{
	return __atomic_fetch_and(value, andValue, __ATOMIC_SEQ_CST);
}


inline int64
atomic_or64(int64* value, int64 orValue)
{
	return __atomic_fetch_or(value, orValue, __ATOMIC_SEQ_CST);
}


inline int64
atomic_get64(int64* value)
{
	return __atomic_load_n(value, __ATOMIC_SEQ_CST);
}

#endif // SUPPORT_DEFS_H
